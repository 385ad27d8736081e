#pragma once
// The operating system's driver of the controller as a software identity: one
// per controller. The driver does not change while the provider runs, so its
// texts are taken once, from the controller data given at construction.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraControllerData.h"

#include <string>

namespace QLN {

class QLN_VDSoftwareIdentityDriver : public CmpiManagedInstance {
public:
    QLN_VDSoftwareIdentityDriver(Logger& logger, std::string const& nameSpace,
                                 unsigned int controllerIndex, VeldraControllerData const& data);
    ~QLN_VDSoftwareIdentityDriver() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    // Empty when the controller could not tell.
    std::string _driverVersion;
    std::string _driverName;
    std::string _model;
    std::string _manufacturer;
};

} // namespace QLN
