#include "CmpiTableInstanceResult.h"

#include "CmpiConvert.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiTableInstanceResult::CmpiTableInstanceResult(CmpiBroker const& broker, CMPIResult const* result,
                                                 char const** properties)
    : _broker(broker), _result(result), _properties(properties) {}

void CmpiTableInstanceResult::returnInstance(CmpiInstance const& instance) {
    if (!_result || !_result->ft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no result to return an instance to");
    // Without a property list the instance goes as it is, without a copy.
    CMPIInstance* raw = _properties ? CmpiConvert::toCMPI(_broker, instance.filtered(_properties))
                                    : CmpiConvert::toCMPI(_broker, instance);
    CMPIStatus const rc = _result->ft->returnInstance(_result, raw);
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, "returnInstance failed: " + CmpiConvert::fromCMPI(rc.msg));
}

void CmpiTableInstanceResult::returnDone() {
    if (_done || !_result || !_result->ft)
        return;
    _done = true;
    _result->ft->returnDone(_result);
}

} // namespace CmpiCpp
