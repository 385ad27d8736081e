#include "QLN_VDStorageEnclosureProcessorEnclosureFirmware.h"

namespace {
char const* const className = "QLN_VDStorageEnclosureProcessorEnclosureFirmware";
}

namespace QLN {

QLN_VDStorageEnclosureProcessorEnclosureFirmware::QLN_VDStorageEnclosureProcessorEnclosureFirmware(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageEnclosureProcessor,
    CmpiManagedInstance* enclosureFirmware)
    : VeldraAssociation({className, "Dependent", "Antecedent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, storageEnclosureProcessor, enclosureFirmware) {}

void QLN_VDStorageEnclosureProcessorEnclosureFirmware::_addExtraProperties(
    CmpiCpp::CmpiInstance& instance) const {
    _addFirmwarePairProperties(instance);
}

} // namespace QLN
