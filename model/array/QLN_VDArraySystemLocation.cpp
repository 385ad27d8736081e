#include "QLN_VDArraySystemLocation.h"

#include "ControllerLocationText.h"

namespace QLN {

// The array system's wording knows "External", as its ElementName does.
QLN_VDArraySystemLocation::QLN_VDArraySystemLocation(Logger& logger, std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraController* controller)
    : ControllerLocationInstance(logger, "QLN_VDArraySystemLocation", nameSpace, controllerIndex,
                                 controller, &ControllerLocationText::withExternal) {}

} // namespace QLN
