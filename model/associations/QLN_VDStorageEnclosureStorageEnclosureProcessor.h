#pragma once
// The graph code passes the exact end classes: QLN_VDStorageEnclosure and
// QLN_VDStorageEnclosureProcessor.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosureStorageEnclosureProcessor : public VeldraAssociation {
public:
    QLN_VDStorageEnclosureStorageEnclosureProcessor(Logger& logger, std::string const& nameSpace,
                                                    CmpiManagedInstance* storageEnclosure,
                                                    CmpiManagedInstance* storageEnclosureProcessor);
};

} // namespace QLN
