#include "CmpiIndicationProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"

namespace CmpiCpp {

namespace {

CmpiIndicationProvider* self(CMPIIndicationMI* mi) {
    return mi ? static_cast<CmpiIndicationProvider*>(mi->hdl) : nullptr;
}

// The class path of a filter may be absent; that is an empty path, not an error.
CmpiObjectPath pathOf(CMPIObjectPath const* op) {
    return op ? CmpiConvert::fromCMPI(op) : CmpiObjectPath();
}

CMPIStatus miCleanup(CMPIIndicationMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // A table whose provider a terminating cleanup already took down.
    CmpiProvider* p = self(mi);
    if (p == nullptr) return CMPIStatus{CMPI_RC_OK, nullptr};
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        CmpiProvider::releaseReference(p, CmpiContext(ctx), terminating != 0);
    });
}

CMPIStatus miAuthorizeFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                             CMPISelectExp const* filter, char const* className,
                             CMPIObjectPath const* op, char const* owner) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        p->authorizeFilter(CmpiContext(ctx), CmpiSelectExp(filter), className, pathOf(op),
                           owner ? owner : "");
    });
}

CMPIStatus miMustPoll(CMPIIndicationMI* mi, CMPIContext const* ctx, CMPISelectExp const* filter,
                      char const* className, CMPIObjectPath const* op) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        p->mustPoll(CmpiContext(ctx), CmpiSelectExp(filter), className, pathOf(op));
    });
}

CMPIStatus miActivateFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                            CMPISelectExp const* filter, char const* className,
                            CMPIObjectPath const* op, CMPIBoolean firstActivation) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        p->activateFilter(CmpiContext(ctx), CmpiSelectExp(filter), className, pathOf(op),
                          firstActivation != 0);
    });
}

CMPIStatus miDeActivateFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                              CMPISelectExp const* filter, char const* className,
                              CMPIObjectPath const* op, CMPIBoolean lastActivation) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        p->deActivateFilter(CmpiContext(ctx), CmpiSelectExp(filter), className, pathOf(op),
                            lastActivation != 0);
    });
}

CMPIStatus miEnableIndications(CMPIIndicationMI* mi, CMPIContext const*) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) { p->enableIndications(); });
}

CMPIStatus miDisableIndications(CMPIIndicationMI* mi, CMPIContext const*) {
    CmpiIndicationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const&) { p->disableIndications(); });
}

CMPIIndicationMIFT const indicationTable = {
    CMPICurrentVersion,  CMPICurrentVersion,   "CmpiCpp",        miCleanup,
    miAuthorizeFilter,   miMustPoll,           miActivateFilter, miDeActivateFilter,
    miEnableIndications, miDisableIndications,
};

} // namespace

CmpiIndicationProvider::CmpiIndicationProvider() : _indicationMI(new CMPIIndicationMI{this, &indicationTable}) {}

CmpiIndicationProvider::~CmpiIndicationProvider() {
    _indicationMI->hdl = nullptr;
    retireTable(_indicationMI, [](void* table) { delete static_cast<CMPIIndicationMI*>(table); });
}

CMPIIndicationMI* CmpiIndicationProvider::getIndicationMI() {
    return _indicationMI;
}

} // namespace CmpiCpp
