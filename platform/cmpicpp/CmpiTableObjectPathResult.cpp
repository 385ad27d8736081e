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
    if (_done)
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "returnObjectPath after returnDone");
    _table.push_back(path);
}

void CmpiTableObjectPathResult::returnDone() {
    if (_done || !_result || !_result->ft)
        return;
    _done = true;
    std::vector<CmpiObjectPath> table = std::move(_table);
    for (CmpiObjectPath const& path : table) {
        // Given back once the object manager has copied it, as instances are.
        CmpiConvert::Made made;
        CMPIStatus const rc =
            _result->ft->returnObjectPath(_result, CmpiConvert::toCMPI(_broker, path, &made));
        if (rc.rc != CMPI_RC_OK)
            throw CmpiStatus(rc.rc, "returnObjectPath failed: " + CmpiConvert::fromCMPI(rc.msg));
    }
    _result->ft->returnDone(_result);
}

} // namespace CmpiCpp
