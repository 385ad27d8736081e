#include "CmpiInstanceProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"
#include "CmpiStatus.h"
#include "CmpiTableInstanceResult.h"
#include "CmpiTableObjectPathResult.h"

namespace CmpiCpp {

namespace {

CmpiInstanceProvider* self(CMPIInstanceMI* mi) {
    return mi ? static_cast<CmpiInstanceProvider*>(__atomic_load_n(&mi->hdl, __ATOMIC_ACQUIRE))
              : nullptr;
}

CMPIStatus miCleanup(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // Not through CmpiGuard, which asks the provider for its broker: the
    // provider may be gone, taken down by a terminating cleanup of another table.
    try {
        CmpiInstanceProvider::releaseTable<CmpiInstanceProvider>(
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

CMPIStatus miEnumInstanceNames(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                               CMPIObjectPath const* op) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableObjectPathResult result(broker, rslt);
        p->enumInstanceNames(CmpiContext(ctx), CmpiConvert::fromCMPI(op), result);
        result.returnDone();
    });
}

CMPIStatus miEnumInstances(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                           CMPIObjectPath const* op, char const** properties) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableInstanceResult result(broker, rslt, properties);
        p->enumInstances(CmpiContext(ctx), CmpiConvert::fromCMPI(op), properties, result);
        result.returnDone();
    });
}

CMPIStatus miGetInstance(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                         CMPIObjectPath const* op, char const** properties) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableInstanceResult result(broker, rslt, properties);
        p->getInstance(CmpiContext(ctx), CmpiConvert::fromCMPI(op), properties, result);
        result.returnDone();
    });
}

CMPIStatus miCreateInstance(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                            CMPIObjectPath const* op, CMPIInstance const* inst) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableObjectPathResult result(broker, rslt);
        p->createInstance(CmpiContext(ctx), CmpiConvert::fromCMPI(op), CmpiConvert::fromCMPI(inst),
                          result);
        result.returnDone();
    });
}

CMPIStatus miModifyInstance(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                            CMPIObjectPath const* op, CMPIInstance const* inst,
                            char const** properties) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        p->modifyInstance(CmpiContext(ctx), CmpiConvert::fromCMPI(op), CmpiConvert::fromCMPI(inst),
                          properties);
        CmpiTableObjectPathResult(broker, rslt).returnDone();
    });
}

CMPIStatus miDeleteInstance(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                            CMPIObjectPath const* op) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        p->deleteInstance(CmpiContext(ctx), CmpiConvert::fromCMPI(op));
        CmpiTableObjectPathResult(broker, rslt).returnDone();
    });
}

CMPIStatus miExecQuery(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                       CMPIObjectPath const* op, char const* query, char const* lang) {
    CmpiInstanceProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableInstanceResult result(broker, rslt, nullptr);
        p->execQuery(CmpiContext(ctx), CmpiConvert::fromCMPI(op), query ? query : "",
                     lang ? lang : "", result);
        result.returnDone();
    });
}

CMPIInstanceMIFT const instanceTable = {
    CMPICurrentVersion,  CMPICurrentVersion, "CmpiCpp",     miCleanup,
    miEnumInstanceNames, miEnumInstances,    miGetInstance, miCreateInstance,
    miModifyInstance,    miDeleteInstance,   miExecQuery,
};

} // namespace

CmpiInstanceProvider::CmpiInstanceProvider()
    : _instanceMI(new CMPIInstanceMI{this, &instanceTable}) {
    addTable(&_instanceMI->hdl);
}

CmpiInstanceProvider::~CmpiInstanceProvider() {
    __atomic_store_n(&_instanceMI->hdl, nullptr, __ATOMIC_RELEASE);
    retireTable(_instanceMI, [](void* table) { delete static_cast<CMPIInstanceMI*>(table); });
}

void CmpiInstanceProvider::createInstance(CmpiContext const&, CmpiObjectPath const&,
                                          CmpiInstance const&, CmpiObjectPathResult&) {
    throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED);
}

void CmpiInstanceProvider::modifyInstance(CmpiContext const&, CmpiObjectPath const&,
                                          CmpiInstance const&, char const**) {
    throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED);
}

void CmpiInstanceProvider::deleteInstance(CmpiContext const&, CmpiObjectPath const&) {
    throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED);
}

void CmpiInstanceProvider::execQuery(CmpiContext const&, CmpiObjectPath const&, std::string const&,
                                     std::string const&, CmpiInstanceResult&) {
    throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED);
}

CMPIInstanceMI* CmpiInstanceProvider::getInstanceMI() {
    return _instanceMI;
}

} // namespace CmpiCpp
