#pragma once
// All raw capacity of one controller, before any array takes from it: one per
// controller, the source pool of the concrete pool.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPrimordialPool : public ControllerManagedInstance {
public:
    QLN_VDPrimordialPool(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _instanceId() const;
};

} // namespace QLN
