#include "QLN_VDArrayControllerLocation.h"

#include "ControllerLocationText.h"

namespace QLN {

// The controller's own wording: no "External", as its ElementName has none.
QLN_VDArrayControllerLocation::QLN_VDArrayControllerLocation(Logger& logger,
                                                             std::string const& nameSpace,
                                                             unsigned int controllerIndex,
                                                             VeldraController* controller)
    : ControllerLocationInstance(logger, "QLN_VDArrayControllerLocation", nameSpace,
                                 controllerIndex, controller,
                                 &ControllerLocationText::withoutExternal) {}

} // namespace QLN
