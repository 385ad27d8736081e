#include "CmpiMBService.h"

#include "CmpiConvert.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiMBService::CmpiMBService(CMPIBroker const* broker, Logger&) : _broker(broker) {}

void CmpiMBService::deliverIndication(CmpiContext const& context, CmpiName const& nameSpace,
                                      CmpiInstance const& indication) const {
    if (!_broker || !_broker->bft || !_broker->bft->deliverIndication)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no broker to deliver the indication");
    // The indication is handed over by copy; the objects made for it are
    // given back at once, since a provider's attached thread would otherwise
    // hold them until it detaches.
    CmpiConvert::Made made;
    CMPIInstance* raw = CmpiConvert::toCMPI(CmpiBroker(_broker), indication, &made);
    CMPIStatus const rc =
        _broker->bft->deliverIndication(_broker, context.toCMPI(), nameSpace.c_str(), raw);
    if (rc.rc != CMPI_RC_OK) {
        std::string msg = "deliverIndication of " + indication.getClassName().str() + " failed";
        std::string const detail = CmpiConvert::fromCMPI(rc.msg);
        if (!detail.empty())
            msg += ": " + detail;
        throw CmpiStatus(rc.rc, msg);
    }
}

} // namespace CmpiCpp
