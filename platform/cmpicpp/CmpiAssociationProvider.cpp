#include "CmpiAssociationProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"
#include "CmpiTableInstanceResult.h"
#include "CmpiTableObjectPathResult.h"

namespace CmpiCpp {

namespace {

CmpiAssociationProvider* self(CMPIAssociationMI* mi) {
    return mi ? static_cast<CmpiAssociationProvider*>(__atomic_load_n(&mi->hdl, __ATOMIC_ACQUIRE))
              : nullptr;
}

CMPIStatus miCleanup(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // Not through CmpiGuard, which asks the provider for its broker: the
    // provider may be gone, taken down by a terminating cleanup of another table.
    try {
        CmpiAssociationProvider::releaseTable<CmpiAssociationProvider>(
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

CMPIStatus miAssociators(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                         CMPIObjectPath const* op, char const* assocClass, char const* resultClass,
                         char const* role, char const* resultRole, char const** properties) {
    CmpiAssociationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableInstanceResult result(broker, rslt, properties);
        p->associators(CmpiContext(ctx), CmpiConvert::fromCMPI(op), assocClass, resultClass, role,
                       resultRole, properties, result);
        result.returnDone();
    });
}

CMPIStatus miAssociatorNames(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                             CMPIObjectPath const* op, char const* assocClass,
                             char const* resultClass, char const* role, char const* resultRole) {
    CmpiAssociationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableObjectPathResult result(broker, rslt);
        p->associatorNames(CmpiContext(ctx), CmpiConvert::fromCMPI(op), assocClass, resultClass,
                           role, resultRole, result);
        result.returnDone();
    });
}

CMPIStatus miReferences(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                        CMPIObjectPath const* op, char const* resultClass, char const* role,
                        char const** properties) {
    CmpiAssociationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableInstanceResult result(broker, rslt, properties);
        p->references(CmpiContext(ctx), CmpiConvert::fromCMPI(op), resultClass, role, properties,
                      result);
        result.returnDone();
    });
}

CMPIStatus miReferenceNames(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                            CMPIObjectPath const* op, char const* resultClass, char const* role) {
    CmpiAssociationProvider* p = self(mi);
    return CmpiGuard::run(p, [&](CmpiBroker const& broker) {
        CmpiTableObjectPathResult result(broker, rslt);
        p->referenceNames(CmpiContext(ctx), CmpiConvert::fromCMPI(op), resultClass, role, result);
        result.returnDone();
    });
}

CMPIAssociationMIFT const associationTable = {
    CMPICurrentVersion, CMPICurrentVersion, "CmpiCpp",    miCleanup,
    miAssociators,      miAssociatorNames,  miReferences, miReferenceNames,
};

} // namespace

CmpiAssociationProvider::CmpiAssociationProvider()
    : _associationMI(new CMPIAssociationMI{this, &associationTable}) {
    addTable(&_associationMI->hdl);
}

CmpiAssociationProvider::~CmpiAssociationProvider() {
    __atomic_store_n(&_associationMI->hdl, nullptr, __ATOMIC_RELEASE);
    retireTable(_associationMI, [](void* table) { delete static_cast<CMPIAssociationMI*>(table); });
}

CMPIAssociationMI* CmpiAssociationProvider::getAssociationMI() {
    return _associationMI;
}

} // namespace CmpiCpp
