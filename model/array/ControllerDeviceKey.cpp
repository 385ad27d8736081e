#include "ControllerDeviceKey.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {
char const* const arraySystemClass = "QLN_VDArraySystem";
} // namespace

namespace QLN {

std::string ControllerDeviceKey::serialOr(VeldraControllerData const& data,
                                          std::string const& fallback) {
    std::string serial;
    if (data.getControllerSerialNumber(serial) == 0)
        return serial;
    return fallback;
}

std::string ControllerDeviceKey::systemName(VeldraControllerData const& data,
                                            unsigned int controllerIndex) {
    return getControllerName(data, static_cast<int>(controllerIndex));
}

CmpiCpp::CmpiObjectPath
ControllerDeviceKey::path(std::string const& nameSpace, std::string const& className,
                          char const* lastKeyName, std::string const& lastKeyValue,
                          VeldraControllerData const& data, unsigned int controllerIndex) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, nameSpace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("CreationClassName", className);
    path.addKey("SystemCreationClassName", arraySystemClass);
    path.addKey("SystemName", systemName(data, controllerIndex));
    path.addKey(lastKeyName, lastKeyValue);
    return path;
}

} // namespace QLN
