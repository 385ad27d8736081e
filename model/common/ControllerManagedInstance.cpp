#include "ControllerManagedInstance.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace QLN {

ControllerManagedInstance::ControllerManagedInstance(Logger& logger, char const* className,
                                                     std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraController* controller)
    : _namespace(nameSpace), _controllerIndex(controllerIndex), _controller(controller),
      _className(className) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

ControllerManagedInstance::~ControllerManagedInstance() {
    _logger.info("dxtor()");
}

CmpiCpp::CmpiName ControllerManagedInstance::getClassName() const {
    return CmpiCpp::CmpiName(_className);
}

VeldraControllerData ControllerManagedInstance::_lastData() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    return data;
}

CmpiCpp::CmpiObjectPath ControllerManagedInstance::_hostPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, _className);
    path.setHost(QLNUtil::getHostName());
    return path;
}

CmpiCpp::CmpiObjectPath ControllerManagedInstance::_pathByKey(char const* keyName,
                                                              std::string const& keyValue) const {
    CmpiCpp::CmpiObjectPath path = _hostPath();
    path.addKey(keyName, keyValue);
    return path;
}

CmpiCpp::CmpiObjectPath
ControllerManagedInstance::_pathByClassAndKey(char const* keyName,
                                              std::string const& keyValue) const {
    CmpiCpp::CmpiObjectPath path = _hostPath();
    path.addKey("CreationClassName", _className);
    path.addKey(keyName, keyValue);
    return path;
}

CmpiCpp::CmpiObjectPath
ControllerManagedInstance::_locationPath(std::string const& physicalPosition) const {
    CmpiCpp::CmpiObjectPath path = _hostPath();
    path.addKey("Name", _className);
    path.addKey("PhysicalPosition", physicalPosition);
    return path;
}

} // namespace QLN
