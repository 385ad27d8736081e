#include "CmpiTableInstanceResult.h"

#include "CmpiConvert.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiTableInstanceResult::CmpiTableInstanceResult(CmpiBroker const& broker, CMPIResult const* result,
                                                 char const** properties)
    : _broker(broker), _result(result), _properties(properties) {}

void CmpiTableInstanceResult::returnInstance(CmpiInstance const& instance) {
    _keep(_properties ? instance.filtered(_properties) : instance);
}

void CmpiTableInstanceResult::returnInstance(CmpiInstance&& instance) {
    _keep(_properties ? instance.filtered(_properties) : std::move(instance));
}

void CmpiTableInstanceResult::_keep(CmpiInstance instance) {
    if (!_result || !_result->ft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no result to return an instance to");
    if (_done)
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "returnInstance after returnDone");
    _table.push_back(std::move(instance));
}

void CmpiTableInstanceResult::returnDone() {
    if (_done || !_result || !_result->ft)
        return;
    _done = true;
    std::vector<CmpiInstance> table = std::move(_table);
    for (CmpiInstance& instance : table) {
        // The object manager copies what it is given, so the objects made
        // for one instance go back at once, and so does the instance: only
        // one instance's worth is alive twice.
        {
            CmpiConvert::Made made;
            CMPIStatus const rc =
                _result->ft->returnInstance(_result, CmpiConvert::toCMPI(_broker, instance, &made));
            if (rc.rc != CMPI_RC_OK)
                throw CmpiStatus(rc.rc, "returnInstance failed: " + CmpiConvert::fromCMPI(rc.msg));
        }
        instance = CmpiInstance();
    }
    _result->ft->returnDone(_result);
}

} // namespace CmpiCpp
