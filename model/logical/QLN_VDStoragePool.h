#pragma once
// The concrete pool of one array of a controller. Each controller has one
// array record today, with the identifier "1".
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraCFUArray.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDStoragePool : public ControllerManagedInstance {
public:
    QLN_VDStoragePool(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                      VeldraCFUArray const& array, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // The worker rebuilds its list of pools from these two.
    std::string const& getArrayId() const { return _arrayId; }

private:
    std::string _instanceId() const;

    std::string _arrayId;
};

} // namespace QLN
