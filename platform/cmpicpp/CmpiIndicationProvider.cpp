#include "CmpiIndicationProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"

namespace CmpiCpp {

namespace {

CmpiIndicationProvider* self(CMPIIndicationMI* mi) {
    return mi ? static_cast<CmpiIndicationProvider*>(__atomic_load_n(&mi->hdl, __ATOMIC_ACQUIRE))
              : nullptr;
}

// The class path of a filter may be absent; that is an empty path, not an error.
CmpiObjectPath pathOf(CMPIObjectPath const* op) {
    return op ? CmpiConvert::fromCMPI(op) : CmpiObjectPath();
}

CMPIStatus miCleanup(CMPIIndicationMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // Not through CmpiGuard, which asks the provider for its broker: the
    // provider may be gone, taken down by a terminating cleanup of another table.
    try {
        CmpiIndicationProvider::releaseTable<CmpiIndicationProvider>(
            mi != nullptr ? &mi->hdl : nullptr, CmpiContext(ctx), terminating != 0);
        return CMPIStatus{CMPI_RC_OK, nullptr};
    } catch (CmpiStatus const& status) {
        return CmpiGuard::failed(CmpiBroker(), status.rc(), status.msg());
    } catch (std::exception const& e) {
        return CmpiGuard::failed(CmpiBroker(), CMPI_RC_ERR_FAILED, e.what());
    } catch (...) {
        return CMPIStatus{CMPI_RC_ERR_FAILED, nullptr};
    }
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

CmpiIndicationProvider::CmpiIndicationProvider()
    : _indicationMI(new CMPIIndicationMI{this, &indicationTable}) {
    addTable(&_indicationMI->hdl);
}

CmpiIndicationProvider::~CmpiIndicationProvider() {
    __atomic_store_n(&_indicationMI->hdl, nullptr, __ATOMIC_RELEASE);
    retireTable(_indicationMI, [](void* table) { delete static_cast<CMPIIndicationMI*>(table); });
}

CMPIIndicationMI* CmpiIndicationProvider::getIndicationMI() {
    return _indicationMI;
}

} // namespace CmpiCpp
