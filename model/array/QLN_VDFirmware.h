#pragma once
// The controller's firmware as a software identity: one per controller. The
// version and model come from the last controller snapshot at each request.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDFirmware : public CmpiManagedInstance {
public:
    QLN_VDFirmware(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                   VeldraController* controller);
    ~QLN_VDFirmware() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
