#include "QLN_VDPhysicalPackageArraySystem.h"

namespace {
char const* const className = "QLN_VDPhysicalPackageArraySystem";
}

namespace QLN {

QLN_VDPhysicalPackageArraySystem::QLN_VDPhysicalPackageArraySystem(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
    CmpiManagedInstance* arraySystem)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, physicalPackage, arraySystem) {}

} // namespace QLN
