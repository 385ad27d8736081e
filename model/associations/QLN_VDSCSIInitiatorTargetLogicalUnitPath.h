#pragma once
// The one association with three ends: an initiator endpoint of the
// controller, a target endpoint on a disk's path, and that disk's extent.
// The graph code passes the exact end classes (QLN_VDISASSCSIProtocolEndpoint,
// QLN_VDTSASSCSIProtocolEndpoint, QLN_VDStorageExtent).
//
// State is the status of the disk path that the target endpoint stored when
// it was made. The target class reads that from its own record, so the
// association is handed a reader for it (typically a lambda over the target's
// accessor) rather than a second copy that could drift from the target's.
#include "CmpiManagedInstanceMultiAssociation.h"
#include "Logger.h"
#include "VeldraController.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace QLN {

class QLN_VDSCSIInitiatorTargetLogicalUnitPath : public CmpiManagedInstanceMultiAssociation {
public:
    using StateReader = std::function<std::uint32_t()>;

    QLN_VDSCSIInitiatorTargetLogicalUnitPath(Logger& logger, std::string const& nameSpace,
                                             CmpiManagedInstance* initiator,
                                             CmpiManagedInstance* target,
                                             CmpiManagedInstance* logicalUnit,
                                             VeldraController* controller, StateReader targetState);
    ~QLN_VDSCSIInitiatorTargetLogicalUnitPath() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;
    std::vector<CmpiCpp::CmpiObjectPath>
    otherEnd(CmpiCpp::CmpiObjectPath const& end,
             CmpiCpp::CmpiName const& resultRole = {}) const override;

private:
    std::string _namespace;
    Logger _logger;
    CmpiManagedInstance* _initiator;
    CmpiManagedInstance* _target;
    CmpiManagedInstance* _logicalUnit;
    StateReader _targetState;
};

} // namespace QLN
