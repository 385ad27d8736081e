#include "QLN_VDElementSoftwareIdentityDriver.h"

namespace {
char const* const className = "QLN_VDElementSoftwareIdentityDriver";
}

namespace QLN {

QLN_VDElementSoftwareIdentityDriver::QLN_VDElementSoftwareIdentityDriver(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* softwareIdentityDriver,
    CmpiManagedInstance* arraySystem)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, softwareIdentityDriver, arraySystem) {}

void QLN_VDElementSoftwareIdentityDriver::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
