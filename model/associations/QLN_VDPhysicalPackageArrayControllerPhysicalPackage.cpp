#include "QLN_VDPhysicalPackageArrayControllerPhysicalPackage.h"

namespace {
char const* const className = "QLN_VDPhysicalPackageArrayControllerPhysicalPackage";
}

namespace QLN {

QLN_VDPhysicalPackageArrayControllerPhysicalPackage::
    QLN_VDPhysicalPackageArrayControllerPhysicalPackage(
        Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
        CmpiManagedInstance* arrayControllerPhysicalPackage)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::SecondEnd},
                        logger, nameSpace, physicalPackage, arrayControllerPhysicalPackage) {}

} // namespace QLN
