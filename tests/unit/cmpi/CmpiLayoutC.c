#include "CmpiLayoutC.h"

#include "CmpiLayoutChecks.h"

VeldraLayoutFacts veldraLayoutFactsFromC(void) {
    VeldraLayoutFacts f;
    f.data = sizeof(CMPIData);
    f.dataValueOffset = offsetof(CMPIData, value);
    f.value = sizeof(CMPIValue);
    f.status = sizeof(CMPIStatus);
    f.broker = sizeof(CMPIBroker);
    f.brokerFT = sizeof(CMPIBrokerFT);
    f.brokerEncFT = sizeof(CMPIBrokerEncFT);
    f.instanceMIFT = sizeof(CMPIInstanceMIFT);
    f.indicationMIFT = sizeof(CMPIIndicationMIFT);
    f.arrayFT = sizeof(CMPIArrayFT);
    return f;
}

static int cleanups = 0;

static CMPIStatus cCleanup(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    CMPIStatus st = {CMPI_RC_OK, NULL};
    (void)mi;
    (void)ctx;
    if (terminating) {
        ++cleanups;
    }
    return st;
}

static CMPIStatus cGetInstance(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                               CMPIObjectPath const* op, char const** properties) {
    CMPIStatus st = {CMPI_RC_ERR_NOT_FOUND, (CMPIString*)mi->hdl};
    (void)ctx;
    (void)rslt;
    (void)op;
    (void)properties;
    return st;
}

static CMPIInstanceMIFT cInstanceFT = {CMPICurrentVersion,
                                       CMPICurrentVersion,
                                       "CLayout",
                                       cCleanup,
                                       NULL,
                                       NULL,
                                       cGetInstance,
                                       NULL,
                                       NULL,
                                       NULL,
                                       NULL};
static CMPIInstanceMI cInstanceMI = {(void*)"marker", &cInstanceFT};

CMPIInstanceMI* veldraCInstanceMI(void) {
    return &cInstanceMI;
}
int veldraCCleanupCount(void) {
    return cleanups;
}

static CMPIData cGetElementAt(CMPIArray const* ar, CMPICount index, CMPIStatus* rc) {
    CMPIData d;
    (void)ar;
    d.type = CMPI_uint32;
    d.state = CMPI_goodValue;
    d.value.uint64 = 0;
    d.value.uint32 = index * 3u;
    if (rc) {
        rc->rc = CMPI_RC_OK;
        rc->msg = NULL;
    }
    return d;
}

static CMPIArrayFT cArrayFT = {CMPICurrentVersion, NULL, NULL, NULL, NULL, cGetElementAt, NULL};
static CMPIArray cArray = {NULL, &cArrayFT};

CMPIArray* veldraCArray(void) {
    return &cArray;
}
