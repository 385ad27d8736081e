#pragma once
// Where the array system is, for people and for tools that sort by slot:
// the location of the controller, named by its location tag.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArraySystemLocation : public ControllerManagedInstance {
public:
    QLN_VDArraySystemLocation(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
