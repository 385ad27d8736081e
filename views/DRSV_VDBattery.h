#pragma once
// The cache battery of a controller in the host view: "Battery on DRVD<n>".
// Made only for a controller whose cache reported a battery at start.
#include "ViewInstance.h"

namespace QLN {

class DRSV_VDBattery : public ViewInstance {
public:
    DRSV_VDBattery(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                   VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    struct Health {
        unsigned short healthState;
        unsigned short batteryStatus;
    };
    Health _getHealthState(VeldraControllerData const& data) const;

    std::string _name;
};

} // namespace QLN
