#include "QLN_VDSpareExtentStorageExtent.h"

namespace {
char const* const className = "QLN_VDSpareExtentStorageExtent";
}

namespace QLN {

QLN_VDSpareExtentStorageExtent::QLN_VDSpareExtentStorageExtent(Logger& logger,
                                                               std::string const& nameSpace,
                                                               CmpiManagedInstance* spareExtent,
                                                               CmpiManagedInstance* storageExtent)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, spareExtent, storageExtent) {}

} // namespace QLN
