#pragma once
// Where the array system is, for people and for tools that sort by slot:
// the location of the controller, named by its location tag.
#include "ControllerLocationInstance.h"

namespace QLN {

class QLN_VDArraySystemLocation : public ControllerLocationInstance {
public:
    QLN_VDArraySystemLocation(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller);
};

} // namespace QLN
