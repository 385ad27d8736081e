#include "ViewInstance.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {
char const* const hostSystemClass = "QLN_ComputerSystem";
} // namespace

namespace QLN {

ViewInstance::ViewInstance(Logger& logger, char const* className, std::string const& nameSpace,
                           unsigned int controllerIndex, VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

std::uint64_t ViewInstance::sizeInGB(std::uint64_t totalBlocks, std::uint64_t blockSize) {
    return (totalBlocks >> 20) * blockSize >> 10;
}

std::string ViewInstance::_drvd(bool onWord) const {
    return std::string(onWord ? " on DRVD" : "DRVD") + std::to_string(_controllerIndex);
}

CmpiCpp::CmpiObjectPath ViewInstance::_emptyPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, _cimClassName());
    path.setHost(QLNUtil::getHostName());
    return path;
}

CmpiCpp::CmpiObjectPath ViewInstance::_devicePath(std::string const& deviceId) const {
    CmpiCpp::CmpiObjectPath path = _emptyPath();
    path.addKey("CreationClassName", _cimClassName());
    path.addKey("DeviceID", deviceId);
    path.addKey("SystemCreationClassName", hostSystemClass);
    path.addKey("SystemName", QLNUtil::getHostName());
    return path;
}

CmpiCpp::CmpiInstance ViewInstance::_deviceInstance(std::string const& deviceId) const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, _devicePath(deviceId));
    instance.addProperty("CreationClassName", _cimClassName());
    instance.addProperty("DeviceID", deviceId);
    instance.addProperty("SystemCreationClassName", hostSystemClass);
    instance.addProperty("SystemName", QLNUtil::getHostName());
    return instance;
}

} // namespace QLN
