#include "Broker.h"

#include <pthread.h>

#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>
#include <vector>

#include "BrokerArgs.h"
#include "BrokerArray.h"
#include "BrokerContext.h"
#include "BrokerDateTime.h"
#include "BrokerEnumeration.h"
#include "BrokerInstance.h"
#include "BrokerObjectPath.h"
#include "BrokerResult.h"
#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimDateTime.h"
#include "CimError.h"
#include "CimName.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

// Arenas opened by attachThread on this thread, per broker, innermost last.
thread_local std::vector<std::pair<Broker const*, ObjectRegistry::Arena*>> attachedArenas;

Broker& brokerOf(CMPIBroker const* mb) {
    Broker* b = Broker::from(mb);
    if (b == nullptr) {
        throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not this object manager's broker");
    }
    return *b;
}

ObjectRegistry* registryOf(CMPIBroker const* mb) {
    Broker* b = Broker::from(mb);
    return b ? &b->registry() : nullptr;
}

BrokerObjectPath& pathOf(CMPIObjectPath const* op) {
    BrokerObjectPath* p = BrokerObjectPath::from(op);
    if (p == nullptr) {
        throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "object path is not one of the broker's");
    }
    return *p;
}

std::string text(char const* s) {
    return s ? std::string(s) : std::string();
}

std::vector<std::string> propertyList(char const** properties, bool& present) {
    std::vector<std::string> out;
    present = properties != nullptr;
    for (char const** p = properties; p != nullptr && *p != nullptr; ++p) {
        out.emplace_back(*p);
    }
    return out;
}

// A request path may lack the namespace when a provider builds it loosely.
CimObjectPath requestPath(CMPIObjectPath const* op) {
    return pathOf(op).path();
}

// The CMPI object behind any handle, to answer toString/isOfType/getType.
EncapsulatedObject* identify(void const* object) {
    if (object == nullptr) {
        return nullptr;
    }
    if (auto* o = BrokerInstance::from(static_cast<CMPIInstance const*>(object)))
        return o;
    if (auto* o = BrokerObjectPath::from(static_cast<CMPIObjectPath const*>(object)))
        return o;
    if (auto* o = BrokerString::from(static_cast<CMPIString const*>(object)))
        return o;
    if (auto* o = BrokerArray::from(static_cast<CMPIArray const*>(object)))
        return o;
    if (auto* o = BrokerArgs::from(static_cast<CMPIArgs const*>(object)))
        return o;
    if (auto* o = BrokerDateTime::from(static_cast<CMPIDateTime const*>(object)))
        return o;
    if (auto* o = BrokerEnumeration::from(static_cast<CMPIEnumeration const*>(object)))
        return o;
    if (auto* o = BrokerContext::from(static_cast<CMPIContext const*>(object)))
        return o;
    if (auto* o = BrokerResult::from(static_cast<CMPIResult const*>(object)))
        return o;
    return nullptr;
}

CMPIEnumeration* enumerationOf(Broker& b, std::vector<CimValue> items) {
    return b.registry().make<BrokerEnumeration>(std::move(items))->cmpi();
}

std::vector<CimValue> asValues(std::vector<CimInstance> const& instances) {
    std::vector<CimValue> out;
    out.reserve(instances.size());
    for (CimInstance const& i : instances) {
        out.push_back(CimValue::instance(i));
    }
    return out;
}

std::vector<CimValue> asValues(std::vector<CimObjectPath> const& paths) {
    std::vector<CimValue> out;
    out.reserve(paths.size());
    for (CimObjectPath const& p : paths) {
        out.push_back(CimValue::reference(p));
    }
    return out;
}

CMPIStatus notSupported(CMPIBroker const* mb, char const* what) {
    return BrokerStatus::make(registryOf(mb), CMPI_RC_ERR_NOT_SUPPORTED,
                              std::string(what) + " is not supported by " + Broker::name);
}

// ---- Main table ----------------------------------------------------------

CMPIContext* prepareAttachThread(CMPIBroker const* mb, CMPIContext const* ctx) {
    try {
        Broker& b = brokerOf(mb);
        BrokerContext* from = BrokerContext::from(ctx);
        // Detached: it must outlive the request that spawned the thread.
        return from ? b.registry().makeDetached<BrokerContext>(from->entries())->cmpi()
                    : b.registry().makeDetached<BrokerContext>()->cmpi();
    } catch (...) {
        return nullptr;
    }
}

CMPIStatus attachThread(CMPIBroker const* mb, CMPIContext const* ctx) {
    return BrokerStatus::guard(registryOf(mb), [&] {
        Broker& b = brokerOf(mb);
        if (BrokerContext::from(ctx) == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                           "attachThread needs a context of this broker");
        }
        attachedArenas.emplace_back(&b, b.registry().pushArena());
    });
}

CMPIStatus detachThread(CMPIBroker const* mb, CMPIContext const* ctx) {
    return BrokerStatus::guard(registryOf(mb), [&] {
        Broker& b = brokerOf(mb);
        BrokerContext* c = BrokerContext::from(ctx);
        if (c == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                           "detachThread needs a context of this broker");
        }
        for (auto it = attachedArenas.rbegin(); it != attachedArenas.rend(); ++it) {
            if (it->first == &b) {
                b.registry().popArena(it->second);
                attachedArenas.erase(std::next(it).base());
                break;
            }
        }
        b.registry().release(c);
    });
}

CMPIStatus deliverIndication(CMPIBroker const* mb, CMPIContext const*, char const* ns,
                             CMPIInstance const* ind) {
    return BrokerStatus::guard(registryOf(mb), [&] {
        Broker& b = brokerOf(mb);
        BrokerInstance* i = BrokerInstance::from(ind);
        if (i == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                           "indication is not an instance of this broker");
        }
        b.deliver(text(ns), i->instance());
    });
}

CMPIEnumeration* enumerateInstanceNames(CMPIBroker const* mb, CMPIContext const*,
                                        CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        return enumerationOf(b, asValues(b.upcalls().enumerateInstanceNames(requestPath(op))));
    });
}

CMPIInstance* getInstance(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                          char const** properties, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIInstance*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        bool present = false;
        auto const list = propertyList(properties, present);
        CimInstance inst = b.upcalls().getInstance(requestPath(op), present ? &list : nullptr);
        return b.registry().make<BrokerInstance>(std::move(inst))->cmpi();
    });
}

CMPIObjectPath* createInstance(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*,
                               CMPIInstance const*, CMPIStatus* rc) {
    if (rc)
        *rc = notSupported(mb, "createInstance");
    return nullptr;
}

CMPIStatus modifyInstance(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*,
                          CMPIInstance const*, char const**) {
    return notSupported(mb, "modifyInstance");
}

CMPIStatus deleteInstance(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*) {
    return notSupported(mb, "deleteInstance");
}

CMPIEnumeration* execQuery(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*,
                           char const*, char const*, CMPIStatus* rc) {
    if (rc)
        *rc = notSupported(mb, "execQuery");
    return nullptr;
}

CMPIEnumeration* enumerateInstances(CMPIBroker const* mb, CMPIContext const*,
                                    CMPIObjectPath const* op, char const** properties,
                                    CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        bool present = false;
        auto const list = propertyList(properties, present);
        return enumerationOf(b, asValues(b.upcalls().enumerateInstances(
                                    requestPath(op), present ? &list : nullptr)));
    });
}

CMPIEnumeration* associators(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                             char const* assocClass, char const* resultClass, char const* role,
                             char const* resultRole, char const** properties, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        bool present = false;
        auto const list = propertyList(properties, present);
        return enumerationOf(b, asValues(b.upcalls().associators(
                                    requestPath(op), text(assocClass), text(resultClass),
                                    text(role), text(resultRole), present ? &list : nullptr)));
    });
}

CMPIEnumeration* associatorNames(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                                 char const* assocClass, char const* resultClass, char const* role,
                                 char const* resultRole, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        return enumerationOf(b, asValues(b.upcalls().associatorNames(
                                    requestPath(op), text(assocClass), text(resultClass),
                                    text(role), text(resultRole))));
    });
}

CMPIEnumeration* references(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                            char const* resultClass, char const* role, char const** properties,
                            CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        bool present = false;
        auto const list = propertyList(properties, present);
        return enumerationOf(
            b, asValues(b.upcalls().references(requestPath(op), text(resultClass), text(role),
                                               present ? &list : nullptr)));
    });
}

CMPIEnumeration* referenceNames(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                                char const* resultClass, char const* role, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIEnumeration*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        return enumerationOf(b, asValues(b.upcalls().referenceNames(
                                    requestPath(op), text(resultClass), text(role))));
    });
}

CMPIData invokeMethod(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const* op,
                      char const* method, CMPIArgs const* in, CMPIArgs* out, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIData>(registryOf(mb), rc, ValueConverter::notFound(), [&] {
        Broker& b = brokerOf(mb);
        if (method == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "method name is null");
        }
        BrokerUpcalls::Args inArgs;
        if (in != nullptr) {
            BrokerArgs* a = BrokerArgs::from(in);
            if (a == nullptr) {
                throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "input arguments are not the broker's");
            }
            inArgs = a->args();
        }
        BrokerArgs* outArgs = nullptr;
        if (out != nullptr && (outArgs = BrokerArgs::from(out)) == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "output arguments are not the broker's");
        }
        MethodResult result = b.upcalls().invokeMethod(requestPath(op), method, inArgs);
        if (outArgs != nullptr) {
            for (auto& [name, value] : result.outArgs) {
                outArgs->add(name, value);
            }
        }
        return ValueConverter::toData(b.registry(), result.returnValue);
    });
}

CMPIStatus setProperty(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*, char const*,
                       CMPIValue const*, CMPIType) {
    return notSupported(mb, "setProperty");
}

CMPIData getProperty(CMPIBroker const* mb, CMPIContext const*, CMPIObjectPath const*, char const*,
                     CMPIStatus* rc) {
    if (rc)
        *rc = notSupported(mb, "getProperty");
    return ValueConverter::notFound();
}

CMPIBrokerFT const mainTable = {CMPI_MB_Class_0 | CMPI_MB_BasicRead | CMPI_MB_AssociationTraversal |
                                    CMPI_MB_Indications | CMPI_MB_OSEncapsulationSupport |
                                    CMPI_MB_Supports_MemEnhancements,
                                CMPICurrentVersion,
                                Broker::name,
                                prepareAttachThread,
                                attachThread,
                                detachThread,
                                deliverIndication,
                                enumerateInstanceNames,
                                getInstance,
                                createInstance,
                                modifyInstance,
                                deleteInstance,
                                execQuery,
                                enumerateInstances,
                                associators,
                                associatorNames,
                                references,
                                referenceNames,
                                invokeMethod,
                                setProperty,
                                getProperty};

// ---- Encapsulated table --------------------------------------------------

CMPIInstance* newInstance(CMPIBroker const* mb, CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIInstance*>(registryOf(mb), rc, nullptr, [&] {
        Broker& b = brokerOf(mb);
        CimObjectPath const& path = pathOf(op).path();
        CimInstance inst(path);
        // Providers set their properties one by one; this instance only
        // lives for the request, so room for a typical class costs little.
        inst.reserve(32);
        // The keys of the path are the instance's key properties.
        for (auto const& k : path.keys()) {
            inst.setProperty(k.name, k.value);
        }
        return b.registry().make<BrokerInstance>(std::move(inst))->cmpi();
    });
}

CMPIObjectPath* newObjectPath(CMPIBroker const* mb, char const* ns, char const* cn,
                              CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIObjectPath*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb)
            .registry()
            .make<BrokerObjectPath>(CimObjectPath(text(ns), text(cn)))
            ->cmpi();
    });
}

CMPIArgs* newArgs(CMPIBroker const* mb, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIArgs*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerArgs>()->cmpi();
    });
}

CMPIString* newString(CMPIBroker const* mb, char const* data, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIString*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerString>(text(data))->cmpi();
    });
}

CMPIArray* newArray(CMPIBroker const* mb, CMPICount max, CMPIType type, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIArray*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerArray>(max, type)->cmpi();
    });
}

CMPIDateTime* newDateTime(CMPIBroker const* mb, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIDateTime*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb)
            .registry()
            .make<BrokerDateTime>(CimDateTime::fromBinary(CimDateTime::nowMicroseconds(), false))
            ->cmpi();
    });
}

CMPIDateTime* newDateTimeFromBinary(CMPIBroker const* mb, CMPIUint64 binTime, CMPIBoolean interval,
                                    CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIDateTime*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb)
            .registry()
            .make<BrokerDateTime>(CimDateTime::fromBinary(binTime, interval != 0))
            ->cmpi();
    });
}

CMPIDateTime* newDateTimeFromChars(CMPIBroker const* mb, char const* datetime, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIDateTime*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerDateTime>(text(datetime))->cmpi();
    });
}

CMPISelectExp* newSelectExp(CMPIBroker const* mb, char const*, char const*, CMPIArray**,
                            CMPIStatus* rc) {
    if (rc)
        *rc = notSupported(mb, "newSelectExp");
    return nullptr;
}

CMPIBoolean classPathIsA(CMPIBroker const* mb, CMPIObjectPath const* op, char const* type,
                         CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIBoolean>(registryOf(mb), rc, 0, [&] {
        Broker& b = brokerOf(mb);
        CimObjectPath const& path = pathOf(op).path();
        if (type == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "class name is null");
        }
        return static_cast<CMPIBoolean>(b.isA(path.nameSpace(), path.className(), type) ? 1 : 0);
    });
}

CMPIString* toString(CMPIBroker const* mb, void const* object, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIString*>(registryOf(mb), rc, nullptr, [&] {
        EncapsulatedObject* o = identify(object);
        if (o == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not an object of this broker");
        }
        return brokerOf(mb).registry().make<BrokerString>(o->describe())->cmpi();
    });
}

CMPIBoolean isOfType(CMPIBroker const* mb, void const* object, char const* type, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIBoolean>(registryOf(mb), rc, 0, [&] {
        EncapsulatedObject* o = identify(object);
        if (o == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not an object of this broker");
        }
        return static_cast<CMPIBoolean>(type != nullptr &&
                                        std::strcmp(o->cmpiTypeName(), type) == 0);
    });
}

CMPIString* getType(CMPIBroker const* mb, void const* object, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIString*>(registryOf(mb), rc, nullptr, [&] {
        EncapsulatedObject* o = identify(object);
        if (o == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not an object of this broker");
        }
        return brokerOf(mb).registry().make<BrokerString>(o->cmpiTypeName())->cmpi();
    });
}

// The default message with $0..$9 replaced by the insert values, which come
// as (type, value) pairs as the formatting macros of CMPI pass them.
std::string formatMessage(char const* defMsg, CMPICount count, va_list ap) {
    std::vector<std::string> inserts;
    for (CMPICount i = 0; i < count && i < 10; ++i) {
        int const type = va_arg(ap, int);
        switch (type) {
        case CMPI_chars:
            inserts.push_back(text(va_arg(ap, char const*)));
            break;
        case CMPI_string: {
            BrokerString* s = BrokerString::from(va_arg(ap, CMPIString const*));
            inserts.push_back(s ? s->text() : std::string());
            break;
        }
        case CMPI_sint8:
        case CMPI_sint16:
        case CMPI_sint32:
            inserts.push_back(std::to_string(va_arg(ap, long)));
            break;
        case CMPI_uint8:
        case CMPI_uint16:
        case CMPI_uint32:
            inserts.push_back(std::to_string(va_arg(ap, unsigned long)));
            break;
        case CMPI_sint64:
            inserts.push_back(std::to_string(va_arg(ap, long long)));
            break;
        case CMPI_uint64:
            inserts.push_back(std::to_string(va_arg(ap, unsigned long long)));
            break;
        case CMPI_real32:
        case CMPI_real64:
            inserts.push_back(std::to_string(va_arg(ap, double)));
            break;
        case CMPI_boolean:
            inserts.push_back(va_arg(ap, int) ? "true" : "false");
            break;
        default:
            // Unknown insert type: the rest of the list cannot be read safely.
            i = count;
            break;
        }
    }
    std::string out;
    for (char const* p = defMsg ? defMsg : ""; *p != '\0'; ++p) {
        if (*p == '$' && p[1] >= '0' && p[1] <= '9' &&
            static_cast<std::size_t>(p[1] - '0') < inserts.size()) {
            out += inserts[static_cast<std::size_t>(p[1] - '0')];
            ++p;
        } else {
            out += *p;
        }
    }
    return out;
}

CMPIString* getMessage(CMPIBroker const* mb, char const*, char const* defMsg, CMPIStatus* rc,
                       CMPICount count, ...) {
    va_list ap;
    va_start(ap, count);
    std::string msg = formatMessage(defMsg, count, ap);
    va_end(ap);
    return BrokerStatus::guardValue<CMPIString*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerString>(msg)->cmpi();
    });
}

std::string logText(char const* id, char const* txt, CMPIString const* string) {
    std::string body = txt ? std::string(txt) : std::string();
    if (txt == nullptr) {
        if (BrokerString* s = BrokerString::from(string)) {
            body = s->text();
        }
    }
    return id ? std::string(id) + ": " + body : body;
}

CMPIStatus logMessage(CMPIBroker const* mb, int severity, char const* id, char const* txt,
                      CMPIString const* string) {
    return BrokerStatus::guard(registryOf(mb),
                               [&] { brokerOf(mb).log(severity, logText(id, txt, string)); });
}

CMPIStatus trace(CMPIBroker const* mb, int, char const* component, char const* txt,
                 CMPIString const* string) {
    return BrokerStatus::guard(
        registryOf(mb), [&] { brokerOf(mb).log(CMPI_DEV_DEBUG, logText(component, txt, string)); });
}

CMPIError* newCMPIError(CMPIBroker const* mb, char const*, char const*, char const*,
                        CMPIErrorSeverity const, CMPIErrorProbableCause const, CMPIrc const,
                        CMPIStatus* rc) {
    if (rc)
        *rc = notSupported(mb, "newCMPIError");
    return nullptr;
}

// Without message files, every lookup falls back to the default message.
CMPIStatus openMessageFile(CMPIBroker const* mb, char const*, CMPIMsgFileHandle* handle) {
    return BrokerStatus::guard(registryOf(mb), [&] {
        brokerOf(mb);
        if (handle != nullptr) {
            *handle = nullptr;
        }
    });
}

CMPIStatus closeMessageFile(CMPIBroker const* mb, CMPIMsgFileHandle const) {
    return BrokerStatus::guard(registryOf(mb), [&] { brokerOf(mb); });
}

CMPIString* getMessage2(CMPIBroker const* mb, char const*, CMPIMsgFileHandle const,
                        char const* defMsg, CMPIStatus* rc, CMPICount count, ...) {
    va_list ap;
    va_start(ap, count);
    std::string msg = formatMessage(defMsg, count, ap);
    va_end(ap);
    return BrokerStatus::guardValue<CMPIString*>(registryOf(mb), rc, nullptr, [&] {
        return brokerOf(mb).registry().make<BrokerString>(msg)->cmpi();
    });
}

CMPIBrokerEncFT const encTable = {CMPICurrentVersion,
                                  newInstance,
                                  newObjectPath,
                                  newArgs,
                                  newString,
                                  newArray,
                                  newDateTime,
                                  newDateTimeFromBinary,
                                  newDateTimeFromChars,
                                  newSelectExp,
                                  classPathIsA,
                                  toString,
                                  isOfType,
                                  getType,
                                  getMessage,
                                  logMessage,
                                  trace,
                                  newCMPIError,
                                  openMessageFile,
                                  closeMessageFile,
                                  getMessage2};

// ---- Extended (operating system) table -------------------------------------

char* resolveFileName(char const* filename) {
    if (filename == nullptr) {
        return nullptr;
    }
    std::string const name = std::string("lib") + filename + ".so";
    char* out = static_cast<char*>(std::malloc(name.size() + 1));
    if (out != nullptr) {
        std::memcpy(out, name.c_str(), name.size() + 1);
    }
    return out;
}

struct ThreadStart {
    CMPI_THREAD_RETURN (*start)(void*);
    void* parm;
};

void* threadTrampoline(void* p) {
    ThreadStart s = *static_cast<ThreadStart*>(p);
    delete static_cast<ThreadStart*>(p);
    return s.start(s.parm);
}

CMPI_THREAD_TYPE newThread(CMPI_THREAD_RETURN(CMPI_THREAD_CDECL* start)(void*), void* parm,
                           int detached) {
    if (start == nullptr) {
        return nullptr;
    }
    auto* s = new ThreadStart{start, parm};
    pthread_t t;
    if (pthread_create(&t, nullptr, threadTrampoline, s) != 0) {
        delete s;
        return nullptr;
    }
    if (detached) {
        pthread_detach(t);
    }
    return reinterpret_cast<CMPI_THREAD_TYPE>(static_cast<std::uintptr_t>(t));
}

pthread_t threadOf(CMPI_THREAD_TYPE t) {
    return static_cast<pthread_t>(reinterpret_cast<std::uintptr_t>(t));
}

int joinThread(CMPI_THREAD_TYPE thread, CMPI_THREAD_RETURN* retval) {
    return pthread_join(threadOf(thread), retval);
}

int exitThread(CMPI_THREAD_RETURN returnCode) {
    pthread_exit(returnCode);
}

int cancelThread(CMPI_THREAD_TYPE thread) {
    return pthread_cancel(threadOf(thread));
}

int threadSleep(CMPIUint32 msec) {
    timespec ts{static_cast<time_t>(msec / 1000), static_cast<long>(msec % 1000) * 1000000L};
    while (nanosleep(&ts, &ts) != 0 && errno == EINTR) {
    }
    return 0;
}

std::recursive_mutex& onceMutex() {
    static std::recursive_mutex m;
    return m;
}

int threadOnce(int* once, void (*init)(void)) {
    if (once == nullptr || init == nullptr) {
        return EINVAL;
    }
    std::lock_guard<std::recursive_mutex> lock(onceMutex());
    if (*once == 0) {
        *once = 1;
        init();
    }
    return 0;
}

int createThreadKey(CMPI_THREAD_KEY_TYPE* key, void (*cleanup)(void*)) {
    return pthread_key_create(key, cleanup);
}
int destroyThreadKey(CMPI_THREAD_KEY_TYPE key) {
    return pthread_key_delete(key);
}
void* getThreadSpecific(CMPI_THREAD_KEY_TYPE key) {
    return pthread_getspecific(key);
}
int setThreadSpecific(CMPI_THREAD_KEY_TYPE key, void* value) {
    return pthread_setspecific(key, value);
}

CMPI_MUTEX_TYPE newMutex(int) {
    // Recursive: providers written for other object managers may re-lock.
    auto* m = new pthread_mutex_t;
    pthread_mutexattr_t attr;
    pthread_mutexattr_init(&attr);
    pthread_mutexattr_settype(&attr, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(m, &attr);
    pthread_mutexattr_destroy(&attr);
    return m;
}
void destroyMutex(CMPI_MUTEX_TYPE m) {
    if (m != nullptr) {
        pthread_mutex_destroy(static_cast<pthread_mutex_t*>(m));
        delete static_cast<pthread_mutex_t*>(m);
    }
}
void lockMutex(CMPI_MUTEX_TYPE m) {
    pthread_mutex_lock(static_cast<pthread_mutex_t*>(m));
}
void unlockMutex(CMPI_MUTEX_TYPE m) {
    pthread_mutex_unlock(static_cast<pthread_mutex_t*>(m));
}

CMPI_COND_TYPE newCondition(int) {
    auto* c = new pthread_cond_t;
    pthread_cond_init(c, nullptr);
    return c;
}
void destroyCondition(CMPI_COND_TYPE c) {
    if (c != nullptr) {
        pthread_cond_destroy(static_cast<pthread_cond_t*>(c));
        delete static_cast<pthread_cond_t*>(c);
    }
}
int condWait(CMPI_COND_TYPE c, CMPI_MUTEX_TYPE m) {
    return pthread_cond_wait(static_cast<pthread_cond_t*>(c), static_cast<pthread_mutex_t*>(m));
}
int timedCondWait(CMPI_COND_TYPE c, CMPI_MUTEX_TYPE m, struct timespec* wait) {
    return pthread_cond_timedwait(static_cast<pthread_cond_t*>(c), static_cast<pthread_mutex_t*>(m),
                                  wait);
}
int signalCondition(CMPI_COND_TYPE c) {
    return pthread_cond_signal(static_cast<pthread_cond_t*>(c));
}

CMPIBrokerExtFT const extTable = {
    CMPICurrentVersion, resolveFileName,   newThread,        joinThread,      exitThread,
    cancelThread,       threadSleep,       threadOnce,       createThreadKey, destroyThreadKey,
    getThreadSpecific,  setThreadSpecific, newMutex,         destroyMutex,    lockMutex,
    unlockMutex,        newCondition,      destroyCondition, condWait,        timedCondWait,
    signalCondition};

// ---- Memory table ---------------------------------------------------------------

CMPIGcStat* mark(CMPIBroker const* mb, CMPIStatus* rc) {
    return BrokerStatus::guardValue<CMPIGcStat*>(registryOf(mb), rc, nullptr, [&] {
        return static_cast<CMPIGcStat*>(brokerOf(mb).registry().pushArena());
    });
}

CMPIStatus releaseMark(CMPIBroker const* mb, CMPIGcStat const* gc) {
    return BrokerStatus::guard(registryOf(mb), [&] {
        auto* arena = static_cast<ObjectRegistry::Arena*>(const_cast<CMPIGcStat*>(gc));
        if (!brokerOf(mb).registry().popArena(arena)) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "no such mark on this thread");
        }
    });
}

void* cmpiMalloc(CMPIBroker const* mb, size_t size) {
    ObjectRegistry* r = registryOf(mb);
    return r ? r->allocate(size) : nullptr;
}

void* cmpiCalloc(CMPIBroker const* mb, size_t n, size_t size) {
    ObjectRegistry* r = registryOf(mb);
    if (r == nullptr || (size != 0 && n > SIZE_MAX / size)) {
        return nullptr;
    }
    void* p = r->allocate(n * size);
    if (p != nullptr) {
        std::memset(p, 0, n * size);
    }
    return p;
}

void* cmpiRealloc(CMPIBroker const* mb, void* p, size_t size) {
    ObjectRegistry* r = registryOf(mb);
    return r ? r->reallocate(p, size) : nullptr;
}

char* cmpiStrDup(CMPIBroker const* mb, char const* s) {
    ObjectRegistry* r = registryOf(mb);
    if (r == nullptr || s == nullptr) {
        return nullptr;
    }
    std::size_t const n = std::strlen(s) + 1;
    char* out = static_cast<char*>(r->allocate(n));
    if (out != nullptr) {
        std::memcpy(out, s, n);
    }
    return out;
}

void cmpiFree(CMPIBroker const* mb, void* p) {
    if (ObjectRegistry* r = registryOf(mb)) {
        r->deallocate(p);
    }
}

template <class Obj, class C> void freeObject(CMPIBroker const* mb, C* handle) {
    ObjectRegistry* r = registryOf(mb);
    if (Obj* o = Obj::from(handle); r != nullptr && o != nullptr) {
        r->release(o);
    }
}

void freeInstance(CMPIBroker const* mb, CMPIInstance* i) {
    freeObject<BrokerInstance>(mb, i);
}
void freeObjectPath(CMPIBroker const* mb, CMPIObjectPath* p) {
    freeObject<BrokerObjectPath>(mb, p);
}
void freeArgs(CMPIBroker const* mb, CMPIArgs* a) {
    freeObject<BrokerArgs>(mb, a);
}
void freeString(CMPIBroker const* mb, CMPIString* s) {
    freeObject<BrokerString>(mb, s);
}
void freeArray(CMPIBroker const* mb, CMPIArray* a) {
    freeObject<BrokerArray>(mb, a);
}
void freeDateTime(CMPIBroker const* mb, CMPIDateTime* d) {
    freeObject<BrokerDateTime>(mb, d);
}
void freeSelectExp(CMPIBroker const*, CMPISelectExp*) {
    // The broker never makes select expressions.
}

CMPIBrokerMemFT const memTable = {CMPICurrentVersion, mark,           releaseMark,  cmpiMalloc,
                                  cmpiCalloc,         cmpiRealloc,    cmpiStrDup,   cmpiFree,
                                  freeInstance,       freeObjectPath, freeArgs,     freeString,
                                  freeArray,          freeDateTime,   freeSelectExp};

} // namespace

Broker::Broker()
    : _mainTable(mainTable),
      _encTable(encTable), _cmpi{this, &_mainTable, &_encTable, &extTable, &memTable} {}

void Broker::reportVersions(unsigned int brokerVersion, int encapsulatedVersion) {
    _mainTable.brokerVersion = brokerVersion;
    _encTable.ftVersion = encapsulatedVersion;
}

Broker::~Broker() {
    attachedArenas.erase(std::remove_if(attachedArenas.begin(), attachedArenas.end(),
                                        [this](auto const& e) { return e.first == this; }),
                         attachedArenas.end());
}

Broker* Broker::from(CMPIBroker const* mb) {
    // Each broker has its own copy of the table; its functions are what identify it.
    return (mb != nullptr && mb->bft != nullptr &&
            mb->bft->prepareAttachThread == mainTable.prepareAttachThread)
               ? static_cast<Broker*>(mb->hdl)
               : nullptr;
}

void Broker::setUpcalls(BrokerUpcalls* upcalls) {
    std::lock_guard<std::mutex> lock(_mutex);
    _upcalls = upcalls;
}

void Broker::setIndicationSink(std::shared_ptr<IndicationSink> sink) {
    std::lock_guard<std::mutex> lock(_mutex);
    _sink = std::move(sink);
}

void Broker::setClassIsA(ClassIsA isA) {
    std::lock_guard<std::mutex> lock(_mutex);
    _isA = std::move(isA);
}

void Broker::setLog(LogFunction log) {
    std::lock_guard<std::mutex> lock(_mutex);
    _log = std::move(log);
}

BrokerContext* Broker::newContext(std::string const& nameSpace, CMPIFlags flags,
                                  std::string const& principal) {
    return _registry.make<BrokerContext>(
        std::vector<BrokerContext::Entry>{{CMPIInvocationFlags, CimValue::uint32(flags)},
                                          {CMPIInitNameSpace, CimValue::string(nameSpace)},
                                          {CMPIPrincipal, CimValue::string(principal)}});
}

BrokerUpcalls& Broker::upcalls() {
    std::lock_guard<std::mutex> lock(_mutex);
    if (_upcalls == nullptr) {
        throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "no provider manager behind this broker");
    }
    return *_upcalls;
}

void Broker::deliver(std::string const& nameSpace, CimInstance const& indication) {
    std::shared_ptr<IndicationSink> sink;
    {
        std::lock_guard<std::mutex> lock(_mutex);
        sink = _sink;
    }
    if (sink) {
        sink->deliver(nameSpace, indication);
    }
}

bool Broker::isA(std::string const& nameSpace, std::string const& className,
                 std::string const& ancestor) {
    ClassIsA isA;
    {
        std::lock_guard<std::mutex> lock(_mutex);
        isA = _isA;
    }
    if (CimName::equal(className, ancestor)) {
        return true;
    }
    return isA ? isA(nameSpace, className, ancestor) : false;
}

void Broker::log(int severity, std::string const& text) {
    LogFunction log;
    {
        std::lock_guard<std::mutex> lock(_mutex);
        log = _log;
    }
    if (log) {
        log(severity, text);
    } else if (severity != CMPI_DEV_DEBUG) {
        std::cerr << name << ": " << text << '\n';
    }
}

} // namespace Cimom
