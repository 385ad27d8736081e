#pragma once
// The one association with three ends: an initiator endpoint of the
// controller, a target endpoint on a disk's path, and that disk's extent.
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
#include <utility>
#include <vector>

namespace QLN {

class QLN_VDISASSCSIProtocolEndpoint;
class QLN_VDStorageExtent;
class QLN_VDTSASSCSIProtocolEndpoint;

class QLN_VDSCSIInitiatorTargetLogicalUnitPath : public CmpiManagedInstanceMultiAssociation {
public:
    using StateReader = std::function<std::uint32_t()>;

    // Typed ends; a template only so that it is compiled where they are complete.
    template <int N = 0>
    QLN_VDSCSIInitiatorTargetLogicalUnitPath(Logger& logger, std::string const& nameSpace,
                                             QLN_VDISASSCSIProtocolEndpoint* initiator,
                                             QLN_VDTSASSCSIProtocolEndpoint* target,
                                             QLN_VDStorageExtent* logicalUnit,
                                             VeldraController* controller, StateReader targetState)
        : QLN_VDSCSIInitiatorTargetLogicalUnitPath(
              Ends{_upcast<N>(initiator), _upcast<N>(target), _upcast<N>(logicalUnit)}, logger,
              nameSpace, controller, std::move(targetState)) {}
    ~QLN_VDSCSIInitiatorTargetLogicalUnitPath() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;
    std::vector<CmpiCpp::CmpiObjectPath>
    otherEnd(CmpiCpp::CmpiObjectPath const& end,
             CmpiCpp::CmpiName const& resultRole = {}) const override;

private:
    // Dependent on N, so that the conversion waits for the constructor's use.
    template <int, typename End> static CmpiManagedInstance* _upcast(End* end) { return end; }
    struct Ends {
        CmpiManagedInstance* initiator;
        CmpiManagedInstance* target;
        CmpiManagedInstance* logicalUnit;
    };
    QLN_VDSCSIInitiatorTargetLogicalUnitPath(Ends ends, Logger& logger,
                                             std::string const& nameSpace,
                                             VeldraController* controller, StateReader targetState);

    std::string _namespace;
    Logger _logger;
    CmpiManagedInstance* _initiator;
    CmpiManagedInstance* _target;
    CmpiManagedInstance* _logicalUnit;
    StateReader _targetState;
};

} // namespace QLN
