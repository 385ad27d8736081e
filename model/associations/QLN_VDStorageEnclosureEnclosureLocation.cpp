#include "QLN_VDStorageEnclosureEnclosureLocation.h"

namespace {
char const* const className = "QLN_VDStorageEnclosureEnclosureLocation";
}

namespace QLN {

QLN_VDStorageEnclosureEnclosureLocation::QLN_VDStorageEnclosureEnclosureLocation(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageEnclosure,
    CmpiManagedInstance* storageEnclosureLocation)
    : VeldraAssociation({className, "Element", "PhysicalLocation", WrittenFirst::SecondEnd}, logger,
                        nameSpace, storageEnclosure, storageEnclosureLocation) {}

} // namespace QLN
