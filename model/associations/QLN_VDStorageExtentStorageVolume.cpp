#include "QLN_VDStorageExtentStorageVolume.h"

namespace {
char const* const className = "QLN_VDStorageExtentStorageVolume";
}

namespace QLN {

QLN_VDStorageExtentStorageVolume::QLN_VDStorageExtentStorageVolume(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageExtent,
    CmpiManagedInstance* storageVolume)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, storageExtent, storageVolume) {}

} // namespace QLN
