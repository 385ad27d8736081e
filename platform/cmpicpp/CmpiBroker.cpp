#include "CmpiBroker.h"

#include "CmpiContext.h"
#include "CmpiConvert.h"
#include "CmpiInstance.h"
#include "CmpiObjectPath.h"
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

CmpiInstance CmpiBroker::getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                     char const** properties) const {
    CMPIBrokerFT const* ft = table(_broker);
    if (!ft->getInstance)
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "broker has no getInstance");
    CmpiConvert::Made made;
    CMPIObjectPath* op = CmpiConvert::toCMPI(*this, path, &made);
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIInstance* found = ft->getInstance(_broker, context.toCMPI(), op, properties, &rc);
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, "getInstance of " + path.str() +
                                    " failed: " + CmpiConvert::fromCMPI(rc.msg));
    if (!found)
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "getInstance of " + path.str() + " gave nothing");
    // The instance belongs to the request; a copy is what the caller keeps.
    return CmpiConvert::fromCMPI(found);
}

bool CmpiBroker::classPathIsA(CmpiObjectPath const& path, CmpiName const& type) const {
    table(_broker);
    CMPIBrokerEncFT const* eft = _broker->eft;
    if (!eft || !eft->classPathIsA)
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "broker has no classPathIsA");
    CmpiConvert::Made made;
    CMPIObjectPath* op = CmpiConvert::toCMPI(*this, path, &made);
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIBoolean const answer = eft->classPathIsA(_broker, op, type.c_str(), &rc);
    if (rc.rc != CMPI_RC_OK)
        throw CmpiStatus(rc.rc, "classPathIsA of " + path.str() +
                                    " failed: " + CmpiConvert::fromCMPI(rc.msg));
    return answer != 0;
}

} // namespace CmpiCpp
