#include "QLN_VDArrayControllerPhysicalPackageArrayController.h"

namespace {
char const* const className = "QLN_VDArrayControllerPhysicalPackageArrayController";
}

namespace QLN {

QLN_VDArrayControllerPhysicalPackageArrayController::
    QLN_VDArrayControllerPhysicalPackageArrayController(
        Logger& logger, std::string const& nameSpace,
        CmpiManagedInstance* arrayControllerPhysicalPackage, CmpiManagedInstance* arrayController)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, arrayControllerPhysicalPackage, arrayController) {}

} // namespace QLN
