#pragma once
// The graph code passes the exact end classes: QLN_VDFirmware and
// QLN_VDArraySystem.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDFirmwareArraySystem : public VeldraAssociation {
public:
    QLN_VDFirmwareArraySystem(Logger& logger, std::string const& nameSpace,
                              CmpiManagedInstance* firmware, CmpiManagedInstance* arraySystem);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
