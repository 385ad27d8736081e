#include "ControllerLocationInstance.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "LocationInfoProperties.h"
#include "QLNUtil.h"

namespace QLN {

ControllerLocationInstance::ControllerLocationInstance(Logger& logger, char const* className,
                                                       std::string const& nameSpace,
                                                       unsigned int controllerIndex,
                                                       VeldraController* controller,
                                                       DisplayText displayText)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _displayText(displayText) {}

CmpiCpp::CmpiObjectPath ControllerLocationInstance::getPath() const {
    // The tag keeps controllers apart, external ones included (their tag
    // carries the controller's number); the hardware location text may not.
    return _locationPath(getControllerTag(_lastData(), static_cast<int>(_controllerIndex)));
}

CmpiCpp::CmpiInstance ControllerLocationInstance::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data = _lastData();

    // Name and PhysicalPosition are the path's keys, set with it.
    physloc_t location = BMC_physloc_NULL;
    bool located = data.getPhysloc(location) == 0;
    std::string display = _displayText(data);
    instance.addProperty("Caption", display);
    instance.addProperty("Description", display);
    instance.addProperty("ElementName", display);
    // The parts of the location, outermost first; only when the location is known.
    if (located)
        LocationInfoProperties::add(instance, location);
    return instance;
}

} // namespace QLN
