#include "QLN_VDFirmwareArraySystem.h"

namespace {
char const* const className = "QLN_VDFirmwareArraySystem";
}

namespace QLN {

QLN_VDFirmwareArraySystem::QLN_VDFirmwareArraySystem(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* firmware,
                                                     CmpiManagedInstance* arraySystem)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, firmware, arraySystem) {}

void QLN_VDFirmwareArraySystem::_addExtraProperties(CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
