#pragma once
// The host machine as a CIM computer system: the system that the array
// systems, port controllers and the storage group hang from. Its path is the
// one every association of the main provider points at.
#include "CmpiManagedInstance.h"
#include "Logger.h"

#include <string>

namespace QLN {

class QLN_ComputerSystem : public CmpiManagedInstance {
public:
    QLN_ComputerSystem(Logger& logger, std::string const& nameSpace);
    ~QLN_ComputerSystem() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

private:
    std::string _namespace;
    Logger _logger;
};

} // namespace QLN
