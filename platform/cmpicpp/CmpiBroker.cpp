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
    CMPIContext* prepared = table(_broker)->prepareAttachThread(_broker, context.toCMPI());
    if (!prepared)
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "prepareAttachThread gave no context");
    return CmpiContext(prepared);
}

void CmpiBroker::attachThread(CmpiContext const& context) const {
    check(table(_broker)->attachThread(_broker, context.toCMPI()), "attachThread failed");
}

void CmpiBroker::detachThread(CmpiContext const& context) const {
    check(table(_broker)->detachThread(_broker, context.toCMPI()), "detachThread failed");
}

} // namespace CmpiCpp
