#include "ViewInstance.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {
char const* const hostSystemClass = "QLN_ComputerSystem";
} // namespace

namespace QLN {

ViewInstance::ViewInstance(Logger& logger, char const* className, std::string const& nameSpace,
                           unsigned int controllerIndex, VeldraController* controller)
    : _namespace(nameSpace), _controllerIndex(controllerIndex), _controller(controller),
      _className(className) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

ViewInstance::~ViewInstance() {
    _logger.info("dxtor()");
}

CmpiCpp::CmpiName ViewInstance::getClassName() const {
    return CmpiCpp::CmpiName(_className);
}

std::uint64_t ViewInstance::sizeInGB(std::uint64_t totalBlocks, std::uint64_t blockSize) {
    return (totalBlocks >> 20) * blockSize >> 10;
}

std::string ViewInstance::_drvd(bool onWord) const {
    return std::string(onWord ? " on DRVD" : "DRVD") + std::to_string(_controllerIndex);
}

CmpiCpp::CmpiObjectPath ViewInstance::_emptyPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, _className);
    path.setHost(QLNUtil::getHostName());
    return path;
}

CmpiCpp::CmpiObjectPath ViewInstance::_devicePath(std::string const& deviceId) const {
    CmpiCpp::CmpiObjectPath path = _emptyPath();
    path.addKey("CreationClassName", _className);
    path.addKey("DeviceID", deviceId);
    path.addKey("SystemCreationClassName", hostSystemClass);
    path.addKey("SystemName", QLNUtil::getHostName());
    return path;
}

CmpiCpp::CmpiInstance ViewInstance::_deviceInstance(std::string const& deviceId) const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, _devicePath(deviceId));
    instance.addProperty("CreationClassName", _className);
    instance.addProperty("DeviceID", deviceId);
    instance.addProperty("SystemCreationClassName", hostSystemClass);
    instance.addProperty("SystemName", QLNUtil::getHostName());
    return instance;
}

} // namespace QLN
