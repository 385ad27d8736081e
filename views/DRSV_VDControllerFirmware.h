#pragma once
// The controller's firmware in the host view: "Veldra Controller DRVD<n>".
#include "ViewInstance.h"

namespace QLN {

class DRSV_VDControllerFirmware : public ViewInstance {
public:
    DRSV_VDControllerFirmware(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _name;
};

} // namespace QLN
