#include "QLN_VDDiskPhysicalPackageDiskDrive.h"

namespace {
char const* const className = "QLN_VDDiskPhysicalPackageDiskDrive";
}

namespace QLN {

QLN_VDDiskPhysicalPackageDiskDrive::QLN_VDDiskPhysicalPackageDiskDrive(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskPhysicalPackage,
    CmpiManagedInstance* diskDrive)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, diskPhysicalPackage, diskDrive) {}

} // namespace QLN
