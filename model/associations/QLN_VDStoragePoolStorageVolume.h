#pragma once
// The graph code passes the exact end classes: QLN_VDStoragePool and
// QLN_VDStorageVolume.
#include "VeldraAssociation.h"
#include "VeldraController.h"

namespace QLN {

class QLN_VDStoragePoolStorageVolume : public VeldraAssociation {
public:
    QLN_VDStoragePoolStorageVolume(Logger& logger, std::string const& nameSpace,
                                   CmpiManagedInstance* storagePool,
                                   CmpiManagedInstance* storageVolume,
                                   VeldraController* controller);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    VeldraController* _controller;
};

} // namespace QLN
