#pragma once
// Where the controller's own package sits: the slot, board position or
// external attachment of the controller, named by its location tag.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArrayControllerLocation : public CmpiManagedInstance {
public:
    QLN_VDArrayControllerLocation(Logger& logger, std::string const& nameSpace,
                                  unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDArrayControllerLocation() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
