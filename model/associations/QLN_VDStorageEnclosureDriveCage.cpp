#include "QLN_VDStorageEnclosureDriveCage.h"

namespace {
char const* const className = "QLN_VDStorageEnclosureDriveCage";
}

namespace QLN {

QLN_VDStorageEnclosureDriveCage::QLN_VDStorageEnclosureDriveCage(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageEnclosure,
    CmpiManagedInstance* driveCage)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::SecondEnd},
                        logger, nameSpace, storageEnclosure, driveCage) {}

} // namespace QLN
