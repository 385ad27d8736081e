#pragma once
// Where the controller's own package sits: the slot, board position or
// external attachment of the controller, named by its location tag.
#include "ControllerLocationInstance.h"

namespace QLN {

class QLN_VDArrayControllerLocation : public ControllerLocationInstance {
public:
    QLN_VDArrayControllerLocation(Logger& logger, std::string const& nameSpace,
                                  unsigned int controllerIndex, VeldraController* controller);
};

} // namespace QLN
