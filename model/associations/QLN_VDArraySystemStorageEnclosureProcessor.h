#pragma once
// The graph code passes the exact end classes: QLN_VDArraySystem and
// QLN_VDStorageEnclosureProcessor.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDArraySystemStorageEnclosureProcessor : public VeldraAssociation {
public:
    QLN_VDArraySystemStorageEnclosureProcessor(Logger& logger, std::string const& nameSpace,
                                               CmpiManagedInstance* arraySystem,
                                               CmpiManagedInstance* storageEnclosureProcessor);
};

} // namespace QLN
