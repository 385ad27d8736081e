#include "QLN_VDArrayControllerPhysicalPackageArrayControllerLocation.h"

namespace {
char const* const className = "QLN_VDArrayControllerPhysicalPackageArrayControllerLocation";
}

namespace QLN {

QLN_VDArrayControllerPhysicalPackageArrayControllerLocation::
    QLN_VDArrayControllerPhysicalPackageArrayControllerLocation(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* arrayControllerPhysicalPackage,
        CmpiManagedInstance* arrayControllerLocation)
    : VeldraAssociation({className, "Element", "PhysicalLocation", WrittenFirst::SecondEnd}, logger,
                        nameSpace, arrayControllerPhysicalPackage, arrayControllerLocation) {}

} // namespace QLN
