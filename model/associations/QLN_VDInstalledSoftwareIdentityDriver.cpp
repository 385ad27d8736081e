#include "QLN_VDInstalledSoftwareIdentityDriver.h"

namespace {
char const* const className = "QLN_VDInstalledSoftwareIdentityDriver";
}

namespace QLN {

QLN_VDInstalledSoftwareIdentityDriver::QLN_VDInstalledSoftwareIdentityDriver(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* softwareIdentityDriver)
    : VeldraAssociation({className, "System", "InstalledSoftware", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, softwareIdentityDriver) {}

} // namespace QLN
