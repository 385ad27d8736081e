#include "CmpiBroker.h"

#include "CmpiContext.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

namespace {
CMPIBrokerFT const* table(CMPIBroker const* broker) {
    if (!broker || !broker->bft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no broker");
    return broker->bft;
}

void check(CMPIStatus const& rc, char const* what) {
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, what);
}
} // namespace

CmpiContext CmpiBroker::prepareAttachThread(CmpiContext const& context) const {
    CMPIBrokerFT const* ft = table(_broker);
    if (!ft->prepareAttachThread)
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "broker has no prepareAttachThread");
    CMPIContext* prepared = ft->prepareAttachThread(_broker, context.toCMPI());
    if (!prepared)
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "prepareAttachThread gave no context");
    return CmpiContext(prepared);
}

void CmpiBroker::attachThread(CmpiContext const& context) const {
    CMPIBrokerFT const* ft = table(_broker);
    if (!ft->attachThread)
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "broker has no attachThread");
    check(ft->attachThread(_broker, context.toCMPI()), "attachThread failed");
}

void CmpiBroker::detachThread(CmpiContext const& context) const {
    CMPIBrokerFT const* ft = table(_broker);
    if (!ft->detachThread)
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "broker has no detachThread");
    check(ft->detachThread(_broker, context.toCMPI()), "detachThread failed");
}

} // namespace CmpiCpp
