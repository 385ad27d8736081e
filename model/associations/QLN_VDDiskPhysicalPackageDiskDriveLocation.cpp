#include "QLN_VDDiskPhysicalPackageDiskDriveLocation.h"

namespace {
char const* const className = "QLN_VDDiskPhysicalPackageDiskDriveLocation";
}

namespace QLN {

QLN_VDDiskPhysicalPackageDiskDriveLocation::QLN_VDDiskPhysicalPackageDiskDriveLocation(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskPhysicalPackage,
    CmpiManagedInstance* diskDriveLocation)
    : VeldraAssociation({className, "Element", "PhysicalLocation", WrittenFirst::SecondEnd}, logger,
                        nameSpace, diskPhysicalPackage, diskDriveLocation) {}

} // namespace QLN
