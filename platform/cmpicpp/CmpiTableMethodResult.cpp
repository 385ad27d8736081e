#include "CmpiTableMethodResult.h"

#include "CmpiArgs.h"
#include "CmpiConvert.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiTableMethodResult::CmpiTableMethodResult(CmpiBroker const& broker, CMPIResult const* result,
                                             CMPIArgs* out)
    : _broker(broker), _result(result), _out(out) {}

void CmpiTableMethodResult::returnData(std::uint32_t returnValue) {
    if (!_result || !_result->ft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no result to return a value to");
    CMPIValue value{};
    value.uint32 = returnValue;
    CMPIStatus const rc = _result->ft->returnData(_result, &value, CMPI_uint32);
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, "returnData failed: " + CmpiConvert::fromCMPI(rc.msg));
}

void CmpiTableMethodResult::addOutArg(CmpiName const& name, CmpiData const& value) {
    CmpiArgs one;
    one.setArg(name, value);
    CmpiConvert::addArgs(_broker, _out, one);
}

void CmpiTableMethodResult::returnDone() {
    if (_done || !_result || !_result->ft)
        return;
    _done = true;
    _result->ft->returnDone(_result);
}

} // namespace CmpiCpp
