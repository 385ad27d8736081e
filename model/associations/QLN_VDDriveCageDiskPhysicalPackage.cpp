#include "QLN_VDDriveCageDiskPhysicalPackage.h"

namespace {
char const* const className = "QLN_VDDriveCageDiskPhysicalPackage";
}

namespace QLN {

QLN_VDDriveCageDiskPhysicalPackage::QLN_VDDriveCageDiskPhysicalPackage(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* driveCage,
    CmpiManagedInstance* diskPhysicalPackage)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::SecondEnd},
                        logger, nameSpace, driveCage, diskPhysicalPackage) {}

} // namespace QLN
