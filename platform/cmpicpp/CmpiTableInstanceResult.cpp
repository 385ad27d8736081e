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
    // The object manager copies what it is given, so the objects made for
    // this instance go back at once: an enumeration of thousands then keeps
    // one instance's worth alive in the broker instead of all of them.
    CmpiConvert::Made made;
    // Without a property list the instance goes as it is, without a copy.
    CMPIInstance* raw = _properties
                            ? CmpiConvert::toCMPI(_broker, instance.filtered(_properties), &made)
                            : CmpiConvert::toCMPI(_broker, instance, &made);
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
