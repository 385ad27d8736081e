#pragma once
// The graph code passes the exact end classes: QLN_VDStorageEnclosureProcessor and
// QLN_VDEnclosureFirmware.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDStorageEnclosureProcessorEnclosureFirmware : public VeldraAssociation {
public:
    QLN_VDStorageEnclosureProcessorEnclosureFirmware(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* storageEnclosureProcessor,
                                                     CmpiManagedInstance* enclosureFirmware);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
