#pragma once
// One array controller as a system of its own. Its instance is where nearly
// all of the controller's stored data becomes CIM properties; a property
// whose getter cannot answer is left out rather than guessed.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayController : public ControllerManagedInstance {
public:
    QLN_VDArrayController(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);

    // Shares its Name with the array system; only the class tells them apart.
    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // True until the change detection has made its first survey.
    bool isFirstStatus() const { return _firstStatus; }

private:
    bool _firstStatus;
};

} // namespace QLN
