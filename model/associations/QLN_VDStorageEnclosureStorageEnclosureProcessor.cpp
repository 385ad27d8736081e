#include "QLN_VDStorageEnclosureStorageEnclosureProcessor.h"

namespace {
char const* const className = "QLN_VDStorageEnclosureStorageEnclosureProcessor";
}

namespace QLN {

QLN_VDStorageEnclosureStorageEnclosureProcessor::QLN_VDStorageEnclosureStorageEnclosureProcessor(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* storageEnclosure,
    CmpiManagedInstance* storageEnclosureProcessor)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, storageEnclosure, storageEnclosureProcessor) {}

} // namespace QLN
