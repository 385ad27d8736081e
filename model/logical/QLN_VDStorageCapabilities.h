#pragma once
// What protection a controller's pools can offer. One for the primordial pool
// (empty array identifier) and one for each concrete pool; the values follow
// from the number of data disks alone, so both report the same.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraCFUArray.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDStorageCapabilities : public CmpiManagedInstance {
public:
    QLN_VDStorageCapabilities(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraCFUArray const& array,
                              VeldraController* controller);
    ~QLN_VDStorageCapabilities() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    std::string const& getArrayId() const { return _arrayId; }
    unsigned int getControllerIndex() const { return _controllerIndex; }

private:
    std::string _instanceId() const;
    std::string _elementName(VeldraControllerData const& data) const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    std::string _arrayId;
    VeldraController* _controller;
};

} // namespace QLN
