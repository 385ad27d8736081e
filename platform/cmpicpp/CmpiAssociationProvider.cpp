#include "CmpiAssociationProvider.h"

#include "CmpiConvert.h"
#include "CmpiGuard.h"
#include "CmpiTableInstanceResult.h"
#include "CmpiTableObjectPathResult.h"

namespace CmpiCpp {

namespace {

CmpiAssociationProvider* self(CMPIAssociationMI* mi) {
    return mi ? static_cast<CmpiAssociationProvider*>(mi->hdl) : nullptr;
}

CMPIStatus miCleanup(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    // A table whose provider a terminating cleanup already took down.
    CmpiProvider* p = self(mi);
    if (p == nullptr) return CMPIStatus{CMPI_RC_OK, nullptr};
    return CmpiGuard::run(p, [&](CmpiBroker const&) {
        CmpiProvider::releaseReference(p, CmpiContext(ctx), terminating != 0);
    });
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

CmpiAssociationProvider::CmpiAssociationProvider() : _associationMI(new CMPIAssociationMI{this, &associationTable}) {}

CmpiAssociationProvider::~CmpiAssociationProvider() {
    _associationMI->hdl = nullptr;
    retireTable(_associationMI, [](void* table) { delete static_cast<CMPIAssociationMI*>(table); });
}

CMPIAssociationMI* CmpiAssociationProvider::getAssociationMI() {
    return _associationMI;
}

} // namespace CmpiCpp
