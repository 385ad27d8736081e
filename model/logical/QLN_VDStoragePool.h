#pragma once
// The concrete pool of one array of a controller. Each controller has one
// array record today, with the identifier "1".
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraCFUArray.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDStoragePool : public CmpiManagedInstance {
public:
    QLN_VDStoragePool(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                      VeldraCFUArray const& array, VeldraController* controller);
    ~QLN_VDStoragePool() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // The worker rebuilds its list of pools from these two.
    std::string const& getArrayId() const { return _arrayId; }
    VeldraController* getController() const { return _controller; }
    unsigned int getControllerIndex() const { return _controllerIndex; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    std::string _arrayId;
    VeldraController* _controller;
};

} // namespace QLN
