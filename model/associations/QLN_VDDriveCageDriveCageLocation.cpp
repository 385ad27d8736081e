#include "QLN_VDDriveCageDriveCageLocation.h"

namespace {
char const* const className = "QLN_VDDriveCageDriveCageLocation";
}

namespace QLN {

QLN_VDDriveCageDriveCageLocation::QLN_VDDriveCageDriveCageLocation(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* driveCage,
    CmpiManagedInstance* driveCageLocation)
    : VeldraAssociation({className, "Element", "PhysicalLocation", WrittenFirst::SecondEnd}, logger,
                        nameSpace, driveCage, driveCageLocation) {}

} // namespace QLN
