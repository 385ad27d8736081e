#include "CmpiMethodProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"
#include "CmpiTableMethodResult.h"

namespace CmpiCpp {

namespace {

CmpiMethodProvider* self(CMPIMethodMI* mi) {
    return mi ? static_cast<CmpiMethodProvider*>(mi->hdl) : nullptr;
}

CMPIStatus miCleanup(CMPIMethodMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // A table whose provider a terminating cleanup already took down.
    CmpiProvider* p = self(mi);
    if (p == nullptr) return CMPIStatus{CMPI_RC_OK, nullptr};
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        CmpiProvider::releaseReference(p, CmpiContext(ctx), terminating != 0);
    });
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

CmpiMethodProvider::CmpiMethodProvider() : _methodMI(new CMPIMethodMI{this, &methodTable}) {}

CmpiMethodProvider::~CmpiMethodProvider() {
    _methodMI->hdl = nullptr;
    retireTable(_methodMI, [](void* table) { delete static_cast<CMPIMethodMI*>(table); });
}

CMPIMethodMI* CmpiMethodProvider::getMethodMI() {
    return _methodMI;
}

} // namespace CmpiCpp
