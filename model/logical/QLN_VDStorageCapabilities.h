#pragma once
// What protection a controller's pools can offer. One for the primordial pool
// (empty array identifier) and one for each concrete pool; the values follow
// from the number of data disks alone, so both report the same.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraCFUArray.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDStorageCapabilities : public ControllerManagedInstance {
public:
    QLN_VDStorageCapabilities(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraCFUArray const& array,
                              VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    std::string const& getArrayId() const { return _arrayId; }

private:
    std::string _instanceId() const;
    std::string _elementName(VeldraControllerData const& data) const;

    std::string _arrayId;
};

} // namespace QLN
