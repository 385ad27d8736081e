#pragma once
// Where the controller's own package sits: the slot, board position or
// external attachment of the controller, named by its location tag.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayControllerLocation : public ControllerManagedInstance {
public:
    QLN_VDArrayControllerLocation(Logger& logger, std::string const& nameSpace,
                                  unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
