#include "QLN_VDStorageSpecificCollectionArraySystem.h"

namespace {
char const* const className = "QLN_VDStorageSpecificCollectionArraySystem";
}

namespace QLN {

QLN_VDStorageSpecificCollectionArraySystem::QLN_VDStorageSpecificCollectionArraySystem(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageSpecificCollection,
    CmpiManagedInstance* arraySystem)
    : VeldraAssociation({className, "Collection", "Member", WrittenFirst::SecondEnd}, logger,
                        nameSpace, storageSpecificCollection, arraySystem) {}

} // namespace QLN
