#pragma once
// The SCSI endpoint by which the host reaches the controller: one per
// controller, always reported healthy since it has no state of its own.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDSCSIProtocolEndpoint : public CmpiManagedInstance {
public:
    QLN_VDSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDSCSIProtocolEndpoint() override;

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
