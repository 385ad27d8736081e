#pragma once
// The graph code passes the exact end classes: QLN_VDSoftwareIdentityDriver and
// QLN_VDArraySystem.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDElementSoftwareIdentityDriver : public VeldraAssociation {
public:
    QLN_VDElementSoftwareIdentityDriver(Logger& logger, std::string const& nameSpace,
                                        CmpiManagedInstance* softwareIdentityDriver,
                                        CmpiManagedInstance* arraySystem);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;
};

} // namespace QLN
