#include "ControllerDeviceInstance.h"

#include "CmpiBroker.h"
#include "ControllerDeviceKey.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {
char const* const arraySystemClass = "QLN_VDArraySystem";
} // namespace

namespace QLN {

ControllerDeviceInstance::ControllerDeviceInstance(Logger& logger, char const* className,
                                                   std::string const& nameSpace,
                                                   unsigned int controllerIndex,
                                                   VeldraController* controller,
                                                   char const* keyName)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _keyName(keyName) {}

CmpiCpp::CmpiObjectPath ControllerDeviceInstance::getPath() const {
    VeldraControllerData data = _lastData();
    return makeSystemDevicePath(_namespace, _cimClassName(),
                                getControllerName(data, static_cast<int>(_controllerIndex)),
                                DeviceKeyOrder::ClassFirst, _keyName, _keyValue(data));
}

CmpiCpp::CmpiInstance
ControllerDeviceInstance::_newInstance(VeldraControllerData const& data) const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("CreationClassName", _cimClassName());
    instance.addProperty("SystemCreationClassName", arraySystemClass);
    instance.addProperty("SystemName", getControllerName(data, static_cast<int>(_controllerIndex)));
    return instance;
}

} // namespace QLN
