#pragma once
// The consolidated statuses of arrays and groups, with their CIM values.
namespace QLN {

enum operationalStatus {
    OPERATIONAL_STATUS_UNKNOWN = 0,
    OPERATIONAL_STATUS_OK = 2,
    OPERATIONAL_STATUS_DEGRADED = 3,
    OPERATIONAL_STATUS_FAILED = 6,
};

// The worse of two statuses. Failed is worst, then degraded, then unknown,
// then OK: an unknown member must not hide a real problem, but it must not
// pass for OK either. A value outside the enum counts as unknown.
operationalStatus updateWorst(operationalStatus current, operationalStatus candidate);
// For callers that hold the status as a plain number.
int updateWorst(int current, int candidate);

} // namespace QLN
