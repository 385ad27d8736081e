#include "QLN_VDSpareExtentStorageRedundancySet.h"

namespace {
char const* const className = "QLN_VDSpareExtentStorageRedundancySet";
}

namespace QLN {

QLN_VDSpareExtentStorageRedundancySet::QLN_VDSpareExtentStorageRedundancySet(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* spareExtent,
    CmpiManagedInstance* storageRedundancySet)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, spareExtent, storageRedundancySet) {}

} // namespace QLN
