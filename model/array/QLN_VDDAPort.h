#pragma once
// The controller's port towards the host bus: one per controller, carrying
// the controller's own status and how the card is attached.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDDAPort : public CmpiManagedInstance {
public:
    QLN_VDDAPort(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                 VeldraController* controller);
    ~QLN_VDDAPort() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _keyValue(VeldraControllerData const& data) const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
