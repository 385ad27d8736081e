#pragma once
// The SCSI initiator endpoint on one SAS port of the controller; the disks'
// paths start here.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDISASSCSIProtocolEndpoint : public CmpiManagedInstance {
public:
    QLN_VDISASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                   unsigned int controllerIndex, VeldraController* controller,
                                   std::string const& port);
    ~QLN_VDISASSCSIProtocolEndpoint() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // The graph matches disks' paths to initiators by port and controller number.
    std::string const& getPort() const { return _port; }
    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _keyValue(VeldraControllerData const& data) const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    std::string _port;
    VeldraController* _controller;
};

} // namespace QLN
