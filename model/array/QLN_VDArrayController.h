#pragma once
// One array controller as a system of its own. Its instance is where nearly
// all of the controller's stored data becomes CIM properties; a property
// whose getter cannot answer is left out rather than guessed.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayController : public CmpiManagedInstance {
public:
    QLN_VDArrayController(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDArrayController() override;

    // Shares its Name with the array system; only the class tells them apart.
    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }
    // True until the change detection has made its first survey.
    bool isFirstStatus() const { return _firstStatus; }

private:
    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
    bool _firstStatus;
};

} // namespace QLN
