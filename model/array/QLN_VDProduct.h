#pragma once
// The controller as a product that was bought: model, maker and the
// number that identifies the piece, tied to the array system's package.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDProduct : public ControllerManagedInstance {
public:
    QLN_VDProduct(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                  VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
