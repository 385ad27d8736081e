#include "QLN_VDPhysicalPackageStorageEnclosure.h"

namespace {
char const* const className = "QLN_VDPhysicalPackageStorageEnclosure";
}

namespace QLN {

QLN_VDPhysicalPackageStorageEnclosure::QLN_VDPhysicalPackageStorageEnclosure(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
    CmpiManagedInstance* storageEnclosure)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::SecondEnd},
                        logger, nameSpace, physicalPackage, storageEnclosure) {}

} // namespace QLN
