#pragma once
// A Veldra controller as the host sees it: one PCI function. The path is the
// one the main provider's port controller points at; it is fixed at
// construction, since a controller does not move on the bus while it runs.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_PCIDevice : public CmpiManagedInstance {
public:
    QLN_PCIDevice(Logger& logger, std::string const& nameSpace, VeldraController* controller);
    ~QLN_PCIDevice() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

private:
    std::string _namespace;
    Logger _logger;
    VeldraController* _controller;
    CmpiCpp::CmpiObjectPath _path;
};

} // namespace QLN
