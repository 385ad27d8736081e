#include "QLN_VDPhysicalPackageArraySystemLocation.h"

namespace {
char const* const className = "QLN_VDPhysicalPackageArraySystemLocation";
}

namespace QLN {

QLN_VDPhysicalPackageArraySystemLocation::QLN_VDPhysicalPackageArraySystemLocation(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
    CmpiManagedInstance* arraySystemLocation)
    : VeldraAssociation({className, "Element", "PhysicalLocation", WrittenFirst::SecondEnd}, logger,
                        nameSpace, physicalPackage, arraySystemLocation) {}

} // namespace QLN
