#pragma once
// The graph code passes the exact end classes: QLN_VDPrimordialPool and
// QLN_VDStoragePool.
#include "VeldraAssociation.h"
#include "VeldraController.h"

namespace QLN {

class QLN_VDPrimordialPoolStoragePool : public VeldraAssociation {
public:
    QLN_VDPrimordialPoolStoragePool(Logger& logger, std::string const& nameSpace,
                                    CmpiManagedInstance* primordialPool,
                                    CmpiManagedInstance* storagePool, VeldraController* controller);

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    VeldraController* _controller;
};

} // namespace QLN
