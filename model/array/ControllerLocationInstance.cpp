#include "ControllerLocationInstance.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "LocationInfoProperties.h"
#include "QLNPhysloc.h"
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
    VeldraControllerData data = _lastData();
    // Name is the only key of a location: the tag keeps controllers apart,
    // external ones included (their tag carries the controller's number).
    return _pathByKey("Name", std::string(_cimClassName()) + "-" +
                                  getControllerTag(data, static_cast<int>(_controllerIndex)));
}

CmpiCpp::CmpiInstance ControllerLocationInstance::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data = _lastData();

    instance.addProperty("Name", path.getKey("Name"));
    physloc_t location = BMC_physloc_NULL;
    bool located = data.getPhysloc(location) == 0;
    instance.addProperty("PhysicalPosition", QLNPhysloc::physlocToHWLocation(location));
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
