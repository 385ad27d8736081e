#include "CmpiConvert.h"

#include "CmpiStatus.h"

namespace CmpiCpp {

namespace {

void check(CMPIStatus const& rc, char const* what) {
    if (rc.rc != CMPI_RC_OK) {
        std::string msg = what;
        if (rc.msg && rc.msg->ft && rc.msg->ft->getCharPtr) {
            char const* text = rc.msg->ft->getCharPtr(rc.msg, nullptr);
            if (text && *text)
                msg += std::string(": ") + text;
        }
        throw CmpiStatus(rc.rc, msg);
    }
}

template <typename T> T* checked(T* object, CMPIStatus const& rc, char const* what) {
    check(rc, what);
    if (!object)
        throw CmpiStatus(CMPI_RC_ERR_FAILED, std::string(what) + " gave null");
    return object;
}

template <typename T> T* kept(CmpiConvert::Made* made, T* object) {
    return made ? made->keep(object) : object;
}

// The value argument of a CMPI setter: null for a null value; for CMPI_chars
// the characters themselves, as the setters take them; otherwise the union.
CMPIValue const* setterValue(CMPIData const& raw, bool isNull) {
    if (isNull)
        return nullptr;
    if (raw.type == CMPI_chars)
        return reinterpret_cast<CMPIValue const*>(raw.value.chars);
    return &raw.value;
}

template <typename T> void requireTable(T const* object, char const* what) {
    if (!object || !object->ft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, std::string("null ") + what);
}

} // namespace

void CmpiConvert::Made::releaseAll() noexcept {
    while (!_releases.empty()) {
        std::function<void()> const release = std::move(_releases.back());
        _releases.pop_back();
        release();
    }
}

CMPIBrokerEncFT const* CmpiConvert::_enc(CmpiBroker const& broker) {
    if (broker.isNull() || !broker.toCMPI()->eft)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_HANDLE, "no broker to make CMPI objects with");
    return broker.toCMPI()->eft;
}

CMPIString* CmpiConvert::newString(CmpiBroker const& broker, std::string const& text, Made* made) {
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIString* s = _enc(broker)->newString(broker.toCMPI(), text.c_str(), &rc);
    return kept(made, checked(s, rc, "newString"));
}

CMPIObjectPath* CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiObjectPath const& path,
                                    Made* made) {
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIObjectPath* op = _enc(broker)->newObjectPath(broker.toCMPI(), path.getNameSpace().c_str(),
                                                     path.getClassName().c_str(), &rc);
    kept(made, checked(op, rc, "newObjectPath"));
    if (!path.getHost().empty())
        check(op->ft->setHostname(op, path.getHost().c_str()), "setHostname");
    for (unsigned int i = 0; i < path.getKeyCount(); ++i) {
        CmpiData const& key = path.getKeyAt(i);
        CMPIData raw = _transient(broker, key, made);
        check(op->ft->addKey(op, path.getKeyNameAt(i).c_str(), setterValue(raw, key.isNull()),
                             raw.type),
              "addKey");
    }
    return op;
}

CMPIInstance* CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiInstance const& instance,
                                  Made* made) {
    CMPIObjectPath* op = toCMPI(broker, instance.getPath(), made);
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIInstance* ci = _enc(broker)->newInstance(broker.toCMPI(), op, &rc);
    kept(made, checked(ci, rc, "newInstance"));
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) {
        CmpiData const& value = instance.getPropertyAt(i);
        CMPIData raw = _transient(broker, value, made);
        check(ci->ft->setProperty(ci, instance.getPropertyNameAt(i).c_str(),
                                  setterValue(raw, value.isNull()), raw.type),
              "setProperty");
    }
    return ci;
}

CMPIArray* CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiArray const& array, Made* made) {
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIArray* ca =
        _enc(broker)->newArray(broker.toCMPI(), array.size(), array.getElementType(), &rc);
    kept(made, checked(ca, rc, "newArray"));
    for (unsigned int i = 0; i < array.size(); ++i) {
        CmpiData const& element = array.getElementAt(i);
        // A new CMPI array's elements are null already.
        if (element.isNull())
            continue;
        CMPIData raw = toCMPI(broker, element, made);
        check(ca->ft->setElementAt(ca, i, &raw.value, raw.type), "setElementAt");
    }
    return ca;
}

CMPIDateTime* CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiDateTime const& dateTime,
                                  Made* made) {
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIDateTime* dt = _enc(broker)->newDateTimeFromBinary(broker.toCMPI(), dateTime.microseconds(),
                                                           dateTime.isInterval() ? 1 : 0, &rc);
    return kept(made, checked(dt, rc, "newDateTimeFromBinary"));
}

CMPIArgs* CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiArgs const& args) {
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIArgs* ca = _enc(broker)->newArgs(broker.toCMPI(), &rc);
    checked(ca, rc, "newArgs");
    addArgs(broker, ca, args);
    return ca;
}

void CmpiConvert::addArgs(CmpiBroker const& broker, CMPIArgs const* out, CmpiArgs const& args) {
    if (args.getArgCount() == 0)
        return;
    requireTable(out, "output arguments");
    for (unsigned int i = 0; i < args.getArgCount(); ++i) {
        CmpiData const& value = args.getArgAt(i);
        CMPIData raw = _transient(broker, value);
        check(out->ft->addArg(out, args.getArgNameAt(i).c_str(), setterValue(raw, value.isNull()),
                              raw.type),
              "addArg");
    }
}

CMPIData CmpiConvert::_transient(CmpiBroker const& broker, CmpiData const& data, Made* made) {
    if (data.getType() == CMPI_string || data.isNull())
        return data.toCMPI();
    return toCMPI(broker, data, made);
}

CMPIData CmpiConvert::toCMPI(CmpiBroker const& broker, CmpiData const& data, Made* made) {
    if (data.isNull())
        return data.toCMPI();
    CMPIData raw{};
    raw.type = data.getType();
    raw.state = CMPI_goodValue;
    if (data.isArray()) {
        raw.value.array = toCMPI(broker, data.getArray(), made);
        return raw;
    }
    switch (data.getType()) {
    case CMPI_string:
        raw.value.string = newString(broker, data.getString(), made);
        return raw;
    case CMPI_ref:
        raw.value.ref = toCMPI(broker, data.getObjectPath(), made);
        return raw;
    case CMPI_dateTime:
        raw.value.dateTime = toCMPI(broker, data.getDateTime(), made);
        return raw;
    case CMPI_instance:
        raw.value.inst = toCMPI(broker, data.getInstance(), made);
        return raw;
    default:
        return data.toCMPI();
    }
}

std::string CmpiConvert::fromCMPI(CMPIString const* text) {
    if (!text || !text->ft || !text->ft->getCharPtr)
        return std::string();
    char const* chars = text->ft->getCharPtr(text, nullptr);
    return chars ? std::string(chars) : std::string();
}

CmpiObjectPath CmpiConvert::fromCMPI(CMPIObjectPath const* op) {
    requireTable(op, "object path");
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CmpiObjectPath path(fromCMPI(op->ft->getNameSpace(op, nullptr)),
                        fromCMPI(op->ft->getClassName(op, nullptr)));
    path.setHost(fromCMPI(op->ft->getHostname(op, nullptr)));
    CMPICount const count = op->ft->getKeyCount(op, &rc);
    check(rc, "getKeyCount");
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData const raw = op->ft->getKeyAt(op, i, &name, &rc);
        check(rc, "getKeyAt");
        path.addKey(fromCMPI(name), fromCMPI(raw));
    }
    return path;
}

CmpiInstance CmpiConvert::fromCMPI(CMPIInstance const* ci) {
    requireTable(ci, "instance");
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CmpiInstance instance;
    // An embedded instance may come without a path.
    CMPIObjectPath const* op = ci->ft->getObjectPath(ci, &rc);
    if (rc.rc == CMPI_RC_OK && op)
        instance.setPath(fromCMPI(op));
    CMPICount const count = ci->ft->getPropertyCount(ci, &rc);
    check(rc, "getPropertyCount");
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData const raw = ci->ft->getPropertyAt(ci, i, &name, &rc);
        check(rc, "getPropertyAt");
        instance.addProperty(fromCMPI(name), fromCMPI(raw));
    }
    return instance;
}

CmpiArray CmpiConvert::fromCMPI(CMPIArray const* ca) {
    requireTable(ca, "array");
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPICount const size = ca->ft->getSize(ca, &rc);
    check(rc, "getSize");
    CMPIType const type = ca->ft->getSimpleType(ca, &rc);
    check(rc, "getSimpleType");
    CmpiArray array(size, type);
    for (CMPICount i = 0; i < size; ++i) {
        CMPIData const raw = ca->ft->getElementAt(ca, i, &rc);
        check(rc, "getElementAt");
        array.setElementAt(i, fromCMPI(raw));
    }
    return array;
}

CmpiDateTime CmpiConvert::fromCMPI(CMPIDateTime const* dt) {
    requireTable(dt, "datetime");
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPIUint64 const usec = dt->ft->getBinaryFormat(dt, &rc);
    check(rc, "getBinaryFormat");
    CMPIBoolean const interval = dt->ft->isInterval(dt, &rc);
    check(rc, "isInterval");
    return CmpiDateTime(usec, interval != 0);
}

CmpiArgs CmpiConvert::fromCMPI(CMPIArgs const* ca) {
    CmpiArgs args;
    // No argument list is the same as an empty one.
    if (!ca)
        return args;
    requireTable(ca, "arguments");
    CMPIStatus rc{CMPI_RC_OK, nullptr};
    CMPICount const count = ca->ft->getArgCount(ca, &rc);
    check(rc, "getArgCount");
    for (CMPICount i = 0; i < count; ++i) {
        CMPIString* name = nullptr;
        CMPIData const raw = ca->ft->getArgAt(ca, i, &name, &rc);
        check(rc, "getArgAt");
        args.setArg(fromCMPI(name), fromCMPI(raw));
    }
    return args;
}

CmpiData CmpiConvert::fromCMPI(CMPIData const& raw) {
    if (raw.state & (CMPI_nullValue | CMPI_notFound | CMPI_badValue))
        return CmpiData::null(raw.type);
    if (raw.type & CMPI_ARRAY)
        return raw.value.array ? CmpiData(fromCMPI(raw.value.array)) : CmpiData::null(raw.type);
    switch (raw.type) {
    case CMPI_null:
        return CmpiData();
    case CMPI_boolean:
        return CmpiData(raw.value.boolean != 0);
    case CMPI_char16:
        return CmpiData::char16(raw.value.char16);
    case CMPI_real32:
        return CmpiData(raw.value.real32);
    case CMPI_real64:
        return CmpiData(raw.value.real64);
    case CMPI_uint8:
        return CmpiData(static_cast<unsigned char>(raw.value.uint8));
    case CMPI_uint16:
        return CmpiData(static_cast<unsigned short>(raw.value.uint16));
    case CMPI_uint32:
        return CmpiData(static_cast<unsigned int>(raw.value.uint32));
    case CMPI_uint64:
        return CmpiData(static_cast<unsigned long long>(raw.value.uint64));
    case CMPI_sint8:
        return CmpiData(static_cast<signed char>(raw.value.sint8));
    case CMPI_sint16:
        return CmpiData(static_cast<short>(raw.value.sint16));
    case CMPI_sint32:
        return CmpiData(static_cast<int>(raw.value.sint32));
    case CMPI_sint64:
        return CmpiData(static_cast<long long>(raw.value.sint64));
    case CMPI_string:
        return CmpiData(fromCMPI(raw.value.string));
    case CMPI_chars:
        return CmpiData(raw.value.chars ? raw.value.chars : "");
    case CMPI_ref:
        return raw.value.ref ? CmpiData(fromCMPI(raw.value.ref)) : CmpiData::null(CMPI_ref);
    case CMPI_dateTime:
        return raw.value.dateTime ? CmpiData(fromCMPI(raw.value.dateTime))
                                  : CmpiData::null(CMPI_dateTime);
    case CMPI_instance:
        return raw.value.inst ? CmpiData(fromCMPI(raw.value.inst)) : CmpiData::null(CMPI_instance);
    default:
        break;
    }
    throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED,
                     "CMPI values of type " + std::to_string(raw.type) + " are not taken");
}

CMPIStatus CmpiConvert::status(CmpiBroker const& broker, CMPIrc rc, std::string const& msg) {
    CMPIStatus st{rc, nullptr};
    if (msg.empty() || broker.isNull() || !broker.toCMPI()->eft || !broker.toCMPI()->eft->newString)
        return st;
    st.msg = broker.toCMPI()->eft->newString(broker.toCMPI(), msg.c_str(), nullptr);
    return st;
}

} // namespace CmpiCpp
