#include "QLN_VDArraySystemStorageEnclosureProcessor.h"

namespace {
char const* const className = "QLN_VDArraySystemStorageEnclosureProcessor";
}

namespace QLN {

QLN_VDArraySystemStorageEnclosureProcessor::QLN_VDArraySystemStorageEnclosureProcessor(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* storageEnclosureProcessor)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, storageEnclosureProcessor) {}

} // namespace QLN
