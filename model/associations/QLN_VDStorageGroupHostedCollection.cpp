#include "QLN_VDStorageGroupHostedCollection.h"

namespace {
char const* const className = "QLN_VDStorageGroupHostedCollection";
}

namespace QLN {

QLN_VDStorageGroupHostedCollection::QLN_VDStorageGroupHostedCollection(
    Logger& logger, std::string const& nameSpace, CmpiCpp::CmpiObjectPath const& computerSystemPath,
    CmpiManagedInstance* storageSpecificCollection)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, computerSystemPath, storageSpecificCollection) {}

} // namespace QLN
