#pragma once
// The controller as the SCSI protocol controller that exposes the volumes
// to the host: one per controller, always reported healthy.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDSCSIProtocolController : public CmpiManagedInstance {
public:
    QLN_VDSCSIProtocolController(Logger& logger, std::string const& nameSpace,
                                 unsigned int controllerIndex, VeldraController* controller);
    ~QLN_VDSCSIProtocolController() override;

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
