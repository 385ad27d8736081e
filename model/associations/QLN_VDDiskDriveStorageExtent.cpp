#include "QLN_VDDiskDriveStorageExtent.h"

namespace {
char const* const className = "QLN_VDDiskDriveStorageExtent";
}

namespace QLN {

QLN_VDDiskDriveStorageExtent::QLN_VDDiskDriveStorageExtent(Logger& logger,
                                                           std::string const& nameSpace,
                                                           CmpiManagedInstance* diskDrive,
                                                           CmpiManagedInstance* storageExtent)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, diskDrive, storageExtent) {}

} // namespace QLN
