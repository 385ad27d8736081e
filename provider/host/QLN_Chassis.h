#pragma once
// The host's chassis. Maker, model and serial number come from the
// firmware's DMI tables as the kernel publishes them; a field the kernel
// does not show (or shows only to root) is left out rather than guessed.
#include "CmpiManagedInstance.h"
#include "Logger.h"

#include <string>

namespace QLN {

class QLN_Chassis : public CmpiManagedInstance {
public:
    QLN_Chassis(Logger& logger, std::string const& nameSpace,
                std::string dmiDirectory = "/sys/class/dmi/id");
    ~QLN_Chassis() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

private:
    // The trimmed content of one DMI file, empty when it cannot be read.
    std::string _dmi(char const* field) const;

    std::string _namespace;
    Logger _logger;
    std::string _dmiDirectory;
};

} // namespace QLN
