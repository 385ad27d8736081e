/*
 * A small CMPI provider written in C against platform/cmpi, for testing the
 * object manager's provider hosting without the real provider.
 *
 * Classes (namespace root/test, see TestProvider.mof):
 *   Test_Disk     keys Name; disks "d1", "d2", "d3" in slots 1..3, Size
 *                 1000 x slot, Tags string[], Created datetime, Healthy.
 *   Test_Pool     key InstanceID; one pool "p1".
 *   Test_PoolDisk association, Antecedent = the pool, Dependent = a disk.
 *   Test_Alert    indication with Message and Sequence.
 *
 * Methods of Test_Disk:
 *   Identify(uint32 Duration)  returns Duration and the out argument Echo.
 *   FireIndication(uint32 Count) delivers Count Test_Alert indications from
 *                 a thread of its own (prepareAttachThread, attachThread,
 *                 deliverIndication, detachThread) and returns 0.
 *   CountDisks()  counts Test_Disk through a broker up-call.
 *   RelayIdentify(uint32 Duration) calls Identify through the broker's
 *                 invokeMethod up-call and returns its result plus one.
 *   Anything else answers CMPI_RC_ERR_METHOD_NOT_FOUND.
 *
 * Provider names: "TestProvider" works. "TestProviderNull" makes every
 * factory return NULL; "TestProviderBadStatus" returns a table but sets the
 * status to CMPI_RC_ERR_FAILED. Other names get NULL.
 *
 * If VELDRA_TEST_PROVIDER_TRACE names a file, the provider appends one line
 * per event to it ("create instance", "cleanup method", "Identify 5",
 * "activateFilter Test_Alert", "enableIndications", "unloaded" when the
 * library is unloaded), so tests can see what reached it after dlclose.
 */
#include <pthread.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <unistd.h>

#include "cmpift.h"

#define NS "root/test"
#define DISK_CLASS "Test_Disk"
#define POOL_CLASS "Test_Pool"
#define ASSOC_CLASS "Test_PoolDisk"
#define ALERT_CLASS "Test_Alert"
#define DISK_COUNT 3

static CMPIBroker const* broker = NULL;
static pthread_mutex_t traceLock = PTHREAD_MUTEX_INITIALIZER;
static char const* diskNames[DISK_COUNT] = {"d1", "d2", "d3"};

static void trace(char const* fmt, ...) {
    char const* file = getenv("VELDRA_TEST_PROVIDER_TRACE");
    if (file == NULL || *file == '\0') {
        return;
    }
    pthread_mutex_lock(&traceLock);
    FILE* f = fopen(file, "a");
    if (f != NULL) {
        va_list ap;
        va_start(ap, fmt);
        vfprintf(f, fmt, ap);
        va_end(ap);
        fputc('\n', f);
        fclose(f);
    }
    pthread_mutex_unlock(&traceLock);
}

__attribute__((destructor)) static void unloaded(void) {
    trace("unloaded");
}

static CMPIStatus status(CMPIrc rc, char const* msg) {
    CMPIStatus st;
    st.rc = rc;
    st.msg = (msg != NULL && broker != NULL) ? broker->eft->newString(broker, msg, NULL) : NULL;
    return st;
}

static CMPIStatus ok(void) {
    return status(CMPI_RC_OK, NULL);
}

static char const* chars(CMPIString* s) {
    return s != NULL ? s->ft->getCharPtr(s, NULL) : NULL;
}

static int sameName(char const* a, char const* b) {
    return a != NULL && b != NULL && strcasecmp(a, b) == 0;
}

/* A filter argument fits when it is absent or names the expected value. */
static int fits(char const* filter, char const* expected) {
    return filter == NULL || sameName(filter, expected);
}

static char const* classOf(CMPIObjectPath const* op) {
    return chars(op->ft->getClassName(op, NULL));
}

static char const* keyString(CMPIObjectPath const* op, char const* key) {
    CMPIStatus rc;
    CMPIData d = op->ft->getKey(op, key, &rc);
    if (rc.rc != CMPI_RC_OK || (d.state & CMPI_nullValue) || d.type != CMPI_string) {
        return NULL;
    }
    return chars(d.value.string);
}

static int diskIndex(char const* name) {
    for (int i = 0; name != NULL && i < DISK_COUNT; ++i) {
        if (strcmp(name, diskNames[i]) == 0) {
            return i;
        }
    }
    return -1;
}

static CMPIObjectPath* diskPath(int i) {
    CMPIObjectPath* op = broker->eft->newObjectPath(broker, NS, DISK_CLASS, NULL);
    op->ft->addKey(op, "Name", (CMPIValue const*)diskNames[i], CMPI_chars);
    return op;
}

static CMPIObjectPath* poolPath(void) {
    CMPIObjectPath* op = broker->eft->newObjectPath(broker, NS, POOL_CLASS, NULL);
    op->ft->addKey(op, "InstanceID", (CMPIValue const*)"p1", CMPI_chars);
    return op;
}

static CMPIObjectPath* assocPath(int i) {
    CMPIObjectPath* op = broker->eft->newObjectPath(broker, NS, ASSOC_CLASS, NULL);
    CMPIValue v;
    v.ref = poolPath();
    op->ft->addKey(op, "Antecedent", &v, CMPI_ref);
    v.ref = diskPath(i);
    op->ft->addKey(op, "Dependent", &v, CMPI_ref);
    return op;
}

static CMPIInstance* diskInstance(int i) {
    CMPIInstance* inst = broker->eft->newInstance(broker, diskPath(i), NULL);
    CMPIValue v;
    v.uint64 = 1000ULL * (CMPIUint64)(i + 1);
    inst->ft->setProperty(inst, "Size", &v, CMPI_uint64);
    v.uint16 = (CMPIUint16)(i + 1);
    inst->ft->setProperty(inst, "Slot", &v, CMPI_uint16);
    CMPIArray* tags = broker->eft->newArray(broker, 2, CMPI_string, NULL);
    tags->ft->setElementAt(tags, 0, (CMPIValue const*)"fast", CMPI_chars);
    tags->ft->setElementAt(tags, 1, (CMPIValue const*)diskNames[i], CMPI_chars);
    v.array = tags;
    inst->ft->setProperty(inst, "Tags", &v, CMPI_stringA);
    /* 2026-01-0<i+1> 00:00:00 UTC */
    v.dateTime = broker->eft->newDateTimeFromBinary(
        broker, (1767225600ULL + 86400ULL * (CMPIUint64)i) * 1000000ULL, 0, NULL);
    inst->ft->setProperty(inst, "Created", &v, CMPI_dateTime);
    v.boolean = (CMPIBoolean)(i != 2);
    inst->ft->setProperty(inst, "Healthy", &v, CMPI_boolean);
    return inst;
}

static CMPIInstance* poolInstance(void) {
    CMPIInstance* inst = broker->eft->newInstance(broker, poolPath(), NULL);
    inst->ft->setProperty(inst, "ElementName", (CMPIValue const*)"Pool One", CMPI_chars);
    return inst;
}

static CMPIInstance* assocInstance(int i) {
    CMPIObjectPath* op = assocPath(i);
    CMPIInstance* inst = broker->eft->newInstance(broker, op, NULL);
    return inst;
}

/* ---- Instance MI ---------------------------------------------------------- */

static CMPIStatus instCleanup(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    (void)mi;
    (void)ctx;
    trace("cleanup instance%s", terminating ? "" : " (not terminating)");
    return ok();
}

static CMPIStatus enumerate(CMPIResult const* rslt, CMPIObjectPath const* op, int instances) {
    char const* cls = classOf(op);
    if (sameName(cls, DISK_CLASS)) {
        for (int i = 0; i < DISK_COUNT; ++i) {
            if (instances) {
                rslt->ft->returnInstance(rslt, diskInstance(i));
            } else {
                rslt->ft->returnObjectPath(rslt, diskPath(i));
            }
        }
    } else if (sameName(cls, POOL_CLASS)) {
        if (instances) {
            rslt->ft->returnInstance(rslt, poolInstance());
        } else {
            rslt->ft->returnObjectPath(rslt, poolPath());
        }
    } else if (sameName(cls, ASSOC_CLASS)) {
        for (int i = 0; i < DISK_COUNT; ++i) {
            if (instances) {
                rslt->ft->returnInstance(rslt, assocInstance(i));
            } else {
                rslt->ft->returnObjectPath(rslt, assocPath(i));
            }
        }
    } else {
        return status(CMPI_RC_ERR_INVALID_CLASS, "TestProvider does not serve this class");
    }
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIStatus instEnumNames(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                                CMPIObjectPath const* op) {
    (void)mi;
    (void)ctx;
    return enumerate(rslt, op, 0);
}

static CMPIStatus instEnum(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                           CMPIObjectPath const* op, char const** properties) {
    (void)mi;
    (void)ctx;
    (void)properties;
    return enumerate(rslt, op, 1);
}

static CMPIStatus instGet(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                          CMPIObjectPath const* op, char const** properties) {
    (void)mi;
    (void)ctx;
    (void)properties;
    char const* cls = classOf(op);
    if (sameName(cls, DISK_CLASS)) {
        int const i = diskIndex(keyString(op, "Name"));
        if (i < 0) {
            return status(CMPI_RC_ERR_NOT_FOUND, "no such disk");
        }
        rslt->ft->returnInstance(rslt, diskInstance(i));
    } else if (sameName(cls, POOL_CLASS)) {
        char const* id = keyString(op, "InstanceID");
        if (id == NULL || strcmp(id, "p1") != 0) {
            return status(CMPI_RC_ERR_NOT_FOUND, "no such pool");
        }
        rslt->ft->returnInstance(rslt, poolInstance());
    } else if (sameName(cls, ASSOC_CLASS)) {
        CMPIStatus rc;
        CMPIData dep = op->ft->getKey(op, "Dependent", &rc);
        int const i = (rc.rc == CMPI_RC_OK && dep.type == CMPI_ref)
                          ? diskIndex(keyString(dep.value.ref, "Name"))
                          : -1;
        if (i < 0) {
            return status(CMPI_RC_ERR_NOT_FOUND, "no such pool member");
        }
        rslt->ft->returnInstance(rslt, assocInstance(i));
    } else {
        return status(CMPI_RC_ERR_INVALID_CLASS, "TestProvider does not serve this class");
    }
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIStatus instCreate(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                             CMPIObjectPath const* op, CMPIInstance const* inst) {
    (void)mi, (void)ctx, (void)rslt, (void)op, (void)inst;
    return status(CMPI_RC_ERR_NOT_SUPPORTED, "read-only provider");
}

static CMPIStatus instModify(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                             CMPIObjectPath const* op, CMPIInstance const* inst,
                             char const** props) {
    (void)mi, (void)ctx, (void)rslt, (void)op, (void)inst, (void)props;
    return status(CMPI_RC_ERR_NOT_SUPPORTED, "read-only provider");
}

static CMPIStatus instDelete(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                             CMPIObjectPath const* op) {
    (void)mi, (void)ctx, (void)rslt, (void)op;
    return status(CMPI_RC_ERR_NOT_SUPPORTED, "read-only provider");
}

static CMPIStatus instQuery(CMPIInstanceMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                            CMPIObjectPath const* op, char const* query, char const* lang) {
    (void)mi, (void)ctx, (void)rslt, (void)op, (void)query, (void)lang;
    return status(CMPI_RC_ERR_NOT_SUPPORTED, "no queries");
}

static CMPIInstanceMIFT instanceFT = {
    CMPICurrentVersion, CMPICurrentVersion, "TestProvider", instCleanup,
    instEnumNames,      instEnum,           instGet,        instCreate,
    instModify,         instDelete,         instQuery};
static CMPIInstanceMI instanceMI = {NULL, &instanceFT};

/* ---- Association MI -------------------------------------------------------- */

/* Calls back for each (association index, far end is pool?) that fits. */
static void walk(CMPIObjectPath const* op, char const* assocClass, char const* resultClass,
                 char const* role, char const* resultRole,
                 void (*visit)(CMPIResult const*, int, int), CMPIResult const* rslt) {
    if (!fits(assocClass, ASSOC_CLASS)) {
        return;
    }
    char const* cls = classOf(op);
    if (sameName(cls, DISK_CLASS)) {
        int const i = diskIndex(keyString(op, "Name"));
        if (i >= 0 && fits(role, "Dependent") && fits(resultRole, "Antecedent") &&
            fits(resultClass, POOL_CLASS)) {
            visit(rslt, i, 1);
        }
    } else if (sameName(cls, POOL_CLASS)) {
        char const* id = keyString(op, "InstanceID");
        if (id != NULL && strcmp(id, "p1") == 0 && fits(role, "Antecedent") &&
            fits(resultRole, "Dependent") && fits(resultClass, DISK_CLASS)) {
            for (int i = 0; i < DISK_COUNT; ++i) {
                visit(rslt, i, 0);
            }
        }
    }
}

static void visitAssociator(CMPIResult const* rslt, int i, int farIsPool) {
    rslt->ft->returnInstance(rslt, farIsPool ? poolInstance() : diskInstance(i));
}
static void visitAssociatorName(CMPIResult const* rslt, int i, int farIsPool) {
    rslt->ft->returnObjectPath(rslt, farIsPool ? poolPath() : diskPath(i));
}
static void visitReference(CMPIResult const* rslt, int i, int farIsPool) {
    (void)farIsPool;
    rslt->ft->returnInstance(rslt, assocInstance(i));
}
static void visitReferenceName(CMPIResult const* rslt, int i, int farIsPool) {
    (void)farIsPool;
    rslt->ft->returnObjectPath(rslt, assocPath(i));
}

static CMPIStatus assocCleanup(CMPIAssociationMI* mi, CMPIContext const* ctx,
                               CMPIBoolean terminating) {
    (void)mi, (void)ctx;
    trace("cleanup association%s", terminating ? "" : " (not terminating)");
    return ok();
}

static CMPIStatus associators(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                              CMPIObjectPath const* op, char const* assocClass,
                              char const* resultClass, char const* role, char const* resultRole,
                              char const** properties) {
    (void)mi, (void)ctx, (void)properties;
    walk(op, assocClass, resultClass, role, resultRole, visitAssociator, rslt);
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIStatus associatorNames(CMPIAssociationMI* mi, CMPIContext const* ctx,
                                  CMPIResult const* rslt, CMPIObjectPath const* op,
                                  char const* assocClass, char const* resultClass, char const* role,
                                  char const* resultRole) {
    (void)mi, (void)ctx;
    walk(op, assocClass, resultClass, role, resultRole, visitAssociatorName, rslt);
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIStatus references(CMPIAssociationMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                             CMPIObjectPath const* op, char const* resultClass, char const* role,
                             char const** properties) {
    (void)mi, (void)ctx, (void)properties;
    walk(op, resultClass, NULL, role, NULL, visitReference, rslt);
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIStatus referenceNames(CMPIAssociationMI* mi, CMPIContext const* ctx,
                                 CMPIResult const* rslt, CMPIObjectPath const* op,
                                 char const* resultClass, char const* role) {
    (void)mi, (void)ctx;
    walk(op, resultClass, NULL, role, NULL, visitReferenceName, rslt);
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIAssociationMIFT associationFT = {CMPICurrentVersion, CMPICurrentVersion, "TestProvider",
                                            assocCleanup,       associators,        associatorNames,
                                            references,         referenceNames};
static CMPIAssociationMI associationMI = {NULL, &associationFT};

/* ---- Method MI -------------------------------------------------------------- */

struct FireJob {
    CMPIContext* ctx;
    CMPIUint32 count;
    CMPIrc result;
};

static CMPI_THREAD_RETURN fireThread(void* arg) {
    struct FireJob* job = (struct FireJob*)arg;
    CMPIStatus st = broker->bft->attachThread(broker, job->ctx);
    job->result = st.rc;
    for (CMPIUint32 n = 0; st.rc == CMPI_RC_OK && n < job->count; ++n) {
        CMPIObjectPath* op = broker->eft->newObjectPath(broker, NS, ALERT_CLASS, NULL);
        CMPIInstance* ind = broker->eft->newInstance(broker, op, NULL);
        CMPIValue v;
        v.uint32 = n + 1;
        ind->ft->setProperty(ind, "Sequence", &v, CMPI_uint32);
        ind->ft->setProperty(ind, "Message", (CMPIValue const*)"test alert", CMPI_chars);
        st = broker->bft->deliverIndication(broker, job->ctx, NS, ind);
        job->result = st.rc;
    }
    broker->bft->detachThread(broker, job->ctx);
    return NULL;
}

static CMPIStatus methCleanup(CMPIMethodMI* mi, CMPIContext const* ctx, CMPIBoolean terminating) {
    (void)mi, (void)ctx;
    trace("cleanup method%s", terminating ? "" : " (not terminating)");
    return ok();
}

static CMPIStatus invokeMethod(CMPIMethodMI* mi, CMPIContext const* ctx, CMPIResult const* rslt,
                               CMPIObjectPath const* op, char const* method, CMPIArgs const* in,
                               CMPIArgs* out) {
    (void)mi;
    CMPIStatus rc;
    CMPIValue ret;
    if (sameName(method, "Identify")) {
        CMPIData d = in->ft->getArg(in, "Duration", &rc);
        if (rc.rc != CMPI_RC_OK || d.type != CMPI_uint32 || (d.state & CMPI_nullValue)) {
            return status(CMPI_RC_ERR_INVALID_PARAMETER, "Identify needs a uint32 Duration");
        }
        trace("Identify %u", d.value.uint32);
        ret.uint32 = d.value.uint32;
        out->ft->addArg(out, "Echo", &ret, CMPI_uint32);
    } else if (sameName(method, "FireIndication")) {
        CMPIData d = in->ft->getArg(in, "Count", &rc);
        struct FireJob job;
        job.ctx = broker->bft->prepareAttachThread(broker, ctx);
        job.count = (rc.rc == CMPI_RC_OK && d.type == CMPI_uint32) ? d.value.uint32 : 1;
        job.result = CMPI_RC_ERR_FAILED;
        CMPI_THREAD_TYPE t = broker->xft->newThread(fireThread, &job, 0);
        if (t == NULL) {
            return status(CMPI_RC_ERR_FAILED, "no thread");
        }
        broker->xft->joinThread(t, NULL);
        if (job.result != CMPI_RC_OK) {
            return status(job.result, "delivery failed");
        }
        ret.uint32 = 0;
    } else if (sameName(method, "RelayIdentify")) {
        /* Identify again through the broker, handing on our own arguments. */
        CMPIArgs* relayOut = broker->eft->newArgs(broker, NULL);
        CMPIData r = broker->bft->invokeMethod(broker, ctx, op, "Identify", in, relayOut, &rc);
        if (rc.rc != CMPI_RC_OK) {
            return rc;
        }
        CMPIData echo = relayOut->ft->getArg(relayOut, "Echo", &rc);
        if (rc.rc != CMPI_RC_OK || r.type != CMPI_uint32 || echo.value.uint32 != r.value.uint32) {
            return status(CMPI_RC_ERR_FAILED, "relayed Identify lost its out argument");
        }
        ret.uint32 = r.value.uint32 + 1;
    } else if (sameName(method, "Hang")) {
        trace("Hang");
        for (;;) {
            pause();
        }
    } else if (sameName(method, "CountDisks")) {
        char const* ns = chars(op->ft->getNameSpace(op, NULL));
        CMPIObjectPath* cls = broker->eft->newObjectPath(broker, ns, DISK_CLASS, NULL);
        CMPIEnumeration* e = broker->bft->enumerateInstanceNames(broker, ctx, cls, &rc);
        if (e == NULL) {
            return rc;
        }
        ret.uint32 = 0;
        while (e->ft->hasNext(e, NULL)) {
            CMPIData d = e->ft->getNext(e, NULL);
            ret.uint32 += (d.type == CMPI_ref) ? 1u : 0u;
        }
    } else {
        return status(CMPI_RC_ERR_METHOD_NOT_FOUND, "TestProvider has no such method");
    }
    rslt->ft->returnData(rslt, &ret, CMPI_uint32);
    rslt->ft->returnDone(rslt);
    return ok();
}

static CMPIMethodMIFT methodFT = {CMPICurrentVersion, CMPICurrentVersion, "TestProvider",
                                  methCleanup, invokeMethod};
static CMPIMethodMI methodMI = {NULL, &methodFT};

/* ---- Indication MI -------------------------------------------------------- */

static CMPIStatus indCleanup(CMPIIndicationMI* mi, CMPIContext const* ctx,
                             CMPIBoolean terminating) {
    (void)mi, (void)ctx;
    trace("cleanup indication%s", terminating ? "" : " (not terminating)");
    return ok();
}

static CMPIStatus authorizeFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                                  CMPISelectExp const* filter, char const* className,
                                  CMPIObjectPath const* op, char const* owner) {
    (void)mi, (void)ctx, (void)filter, (void)className, (void)op, (void)owner;
    return ok();
}

static CMPIStatus mustPoll(CMPIIndicationMI* mi, CMPIContext const* ctx,
                           CMPISelectExp const* filter, char const* className,
                           CMPIObjectPath const* op) {
    (void)mi, (void)ctx, (void)filter, (void)className, (void)op;
    return status(CMPI_RC_ERR_NOT_SUPPORTED, NULL);
}

static CMPIStatus activateFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                                 CMPISelectExp const* filter, char const* className,
                                 CMPIObjectPath const* op, CMPIBoolean first) {
    (void)mi, (void)ctx, (void)filter, (void)op;
    trace("activateFilter %s%s", className ? className : "(null)", first ? " first" : "");
    return ok();
}

static CMPIStatus deActivateFilter(CMPIIndicationMI* mi, CMPIContext const* ctx,
                                   CMPISelectExp const* filter, char const* className,
                                   CMPIObjectPath const* op, CMPIBoolean last) {
    (void)mi, (void)ctx, (void)filter, (void)op;
    trace("deActivateFilter %s%s", className ? className : "(null)", last ? " last" : "");
    return ok();
}

static CMPIStatus enableIndications(CMPIIndicationMI* mi, CMPIContext const* ctx) {
    (void)mi, (void)ctx;
    trace("enableIndications");
    return ok();
}

static CMPIStatus disableIndications(CMPIIndicationMI* mi, CMPIContext const* ctx) {
    (void)mi, (void)ctx;
    trace("disableIndications");
    return ok();
}

static CMPIIndicationMIFT indicationFT = {CMPICurrentVersion, CMPICurrentVersion, "TestProvider",
                                          indCleanup,         authorizeFilter,    mustPoll,
                                          activateFilter,     deActivateFilter,   enableIndications,
                                          disableIndications};
static CMPIIndicationMI indicationMI = {NULL, &indicationFT};

/* ---- Factories --------------------------------------------------------------- */

static void* create(CMPIBroker const* mb, char const* name, CMPIStatus* rc, char const* kind,
                    void* mi) {
    trace("create %s as %s", kind, name ? name : "(null)");
    broker = mb;
    if (name != NULL && strcmp(name, "TestProvider") == 0) {
        return mi;
    }
    if (name != NULL && strcmp(name, "TestProviderBadStatus") == 0) {
        if (rc != NULL) {
            *rc = status(CMPI_RC_ERR_FAILED, "TestProviderBadStatus refuses to start");
        }
        return mi;
    }
    return NULL;
}

CMPI_EXTERN_C CMPIInstanceMI* _Generic_Create_InstanceMI(CMPIBroker const* mb,
                                                         CMPIContext const* ctx, char const* name,
                                                         CMPIStatus* rc) {
    (void)ctx;
    return (CMPIInstanceMI*)create(mb, name, rc, "instance", &instanceMI);
}

CMPI_EXTERN_C CMPIAssociationMI* _Generic_Create_AssociationMI(CMPIBroker const* mb,
                                                               CMPIContext const* ctx,
                                                               char const* name, CMPIStatus* rc) {
    (void)ctx;
    return (CMPIAssociationMI*)create(mb, name, rc, "association", &associationMI);
}

CMPI_EXTERN_C CMPIMethodMI* _Generic_Create_MethodMI(CMPIBroker const* mb, CMPIContext const* ctx,
                                                     char const* name, CMPIStatus* rc) {
    (void)ctx;
    return (CMPIMethodMI*)create(mb, name, rc, "method", &methodMI);
}

CMPI_EXTERN_C CMPIIndicationMI* _Generic_Create_IndicationMI(CMPIBroker const* mb,
                                                             CMPIContext const* ctx,
                                                             char const* name, CMPIStatus* rc) {
    (void)ctx;
    return (CMPIIndicationMI*)create(mb, name, rc, "indication", &indicationMI);
}
