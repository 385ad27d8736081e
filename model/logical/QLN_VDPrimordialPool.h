#pragma once
// All raw capacity of one controller, before any array takes from it: one per
// controller, the source pool of the concrete pool.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDPrimordialPool : public CmpiManagedInstance {
public:
    QLN_VDPrimordialPool(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         VeldraController* controller);
    ~QLN_VDPrimordialPool() override;

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
