#pragma once
// The controller's firmware as a software identity: one per controller. The
// version and model come from the last controller snapshot at each request.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDFirmware : public ControllerManagedInstance {
public:
    QLN_VDFirmware(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                   VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _instanceId() const;
};

} // namespace QLN
