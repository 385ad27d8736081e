#include "CmpiMethodProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"
#include "CmpiTableMethodResult.h"

namespace CmpiCpp {

namespace {

CmpiMethodProvider* self(CMPIMethodMI* mi) {
    return mi ? static_cast<CmpiMethodProvider*>(__atomic_load_n(&mi->hdl, __ATOMIC_ACQUIRE))
              : nullptr;
}

CMPIStatus miCleanup(CMPIMethodMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // Not through CmpiGuard, which asks the provider for its broker: the
    // provider may be gone, taken down by a terminating cleanup of another table.
    try {
        CmpiMethodProvider::releaseTable<CmpiMethodProvider>(mi != nullptr ? &mi->hdl : nullptr,
                                                             CmpiContext(ctx), terminating != 0);
        return CMPIStatus{CMPI_RC_OK, nullptr};
    } catch (CmpiStatus const& status) {
        return CmpiGuard::failed(CmpiBroker(), status.rc(), status.msg());
    } catch (std::exception const& e) {
        return CmpiGuard::failed(CmpiBroker(), CMPI_RC_ERR_FAILED, e.what());
    } catch (...) {
        return CMPIStatus{CMPI_RC_ERR_FAILED, nullptr};
    }
}

CMPIStatus miInvokeMethod(CMPIMethodMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                          CMPIObjectPath const* op, char const* method, CMPIArgs const* in,
                          CMPIArgs* out) {
    CmpiMethodProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableMethodResult result(broker, rslt, out);
        p->invokeMethod(CmpiContext(ctx), CmpiConvert::fromCMPI(op), method,
                        CmpiConvert::fromCMPI(in), result);
        result.returnDone();
    });
}

CMPIMethodMIFT const methodTable = {
    CMPICurrentVersion, CMPICurrentVersion, "CmpiCpp", miCleanup, miInvokeMethod,
};

} // namespace

CmpiMethodProvider::CmpiMethodProvider() : _methodMI(new CMPIMethodMI{this, &methodTable}) {
    addTable(&_methodMI->hdl);
}

CmpiMethodProvider::~CmpiMethodProvider() {
    __atomic_store_n(&_methodMI->hdl, nullptr, __ATOMIC_RELEASE);
    retireTable(_methodMI, [](void* table) { delete static_cast<CMPIMethodMI*>(table); });
}

CMPIMethodMI* CmpiMethodProvider::getMethodMI() {
    return _methodMI;
}

} // namespace CmpiCpp
