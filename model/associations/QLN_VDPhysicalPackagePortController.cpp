#include "QLN_VDPhysicalPackagePortController.h"

namespace {
char const* const className = "QLN_VDPhysicalPackagePortController";
}

namespace QLN {

QLN_VDPhysicalPackagePortController::QLN_VDPhysicalPackagePortController(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* physicalPackage,
    CmpiManagedInstance* portController)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, physicalPackage, portController) {}

} // namespace QLN
