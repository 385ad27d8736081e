#include "CmpiTableObjectPathResult.h"

#include "CmpiConvert.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiTableObjectPathResult::CmpiTableObjectPathResult(CmpiBroker const& broker,
                                                     CMPIResult const* result)
    : _broker(broker), _result(result) {}

void CmpiTableObjectPathResult::returnObjectPath(CmpiObjectPath const& path) {
    if (!_result || !_result->ft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no result to return a path to");
    // Given back once the object manager has copied it, as instances are.
    CmpiConvert::Made made;
    CMPIObjectPath* raw = CmpiConvert::toCMPI(_broker, path, &made);
    CMPIStatus const rc = _result->ft->returnObjectPath(_result, raw);
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, "returnObjectPath failed: " + CmpiConvert::fromCMPI(rc.msg));
}

void CmpiTableObjectPathResult::returnDone() {
    if (_done || !_result || !_result->ft)
        return;
    _done = true;
    _result->ft->returnDone(_result);
}

} // namespace CmpiCpp
