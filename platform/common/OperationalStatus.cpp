#include "OperationalStatus.h"

namespace QLN {

namespace {

int severity(operationalStatus status) {
    switch (status) {
    case OPERATIONAL_STATUS_OK:
        return 0;
    case OPERATIONAL_STATUS_UNKNOWN:
        return 1;
    case OPERATIONAL_STATUS_DEGRADED:
        return 2;
    case OPERATIONAL_STATUS_FAILED:
        return 3;
    }
    return 1; // a value cast in from outside the enum
}

operationalStatus normalised(int value) {
    switch (value) {
    case OPERATIONAL_STATUS_OK:
    case OPERATIONAL_STATUS_DEGRADED:
    case OPERATIONAL_STATUS_FAILED:
        return static_cast<operationalStatus>(value);
    default:
        return OPERATIONAL_STATUS_UNKNOWN;
    }
}

} // namespace

operationalStatus updateWorst(operationalStatus current, operationalStatus candidate) {
    current = normalised(current);
    candidate = normalised(candidate);
    return severity(candidate) > severity(current) ? candidate : current;
}

int updateWorst(int current, int candidate) {
    return updateWorst(normalised(current), normalised(candidate));
}

} // namespace QLN
