#include "ValueConverter.h"

#include "BrokerArray.h"
#include "BrokerDateTime.h"
#include "BrokerInstance.h"
#include "BrokerObjectPath.h"
#include "BrokerString.h"
#include "CimError.h"
#include "CimInstance.h"
#include "CimObjectPath.h"
#include "ObjectRegistry.h"

namespace Cimom {

namespace {
template <class Obj, class C> Obj& ours(C const* handle, char const* what) {
    Obj* obj = Obj::from(handle);
    if (obj == nullptr) {
        throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                       std::string("not a ") + what + " of this broker");
    }
    return *obj;
}
} // namespace

CimValue ValueConverter::toCim(CMPIData const& data) {
    if (data.state & CMPI_nullValue) {
        return CimValue::null(data.type == CMPI_chars ? CMPI_string : data.type);
    }
    if (data.type == CMPI_chars) {
        // Inside a CMPIData the characters sit in the union, not behind it.
        return data.value.chars ? CimValue::string(data.value.chars) : CimValue::null(CMPI_string);
    }
    return toCim(&data.value, data.type);
}

CimValue ValueConverter::toCim(CMPIValue const* v, CMPIType type) {
    if (type == CMPI_chars || type == CMPI_charsptr) {
        if (v == nullptr) {
            return CimValue::null(CMPI_string);
        }
        // As every object manager reads it: for CMPI_chars the value pointer
        // is the string itself (providers pass (CMPIValue*)"text").
        char const* s = type == CMPI_chars ? reinterpret_cast<char const*>(v)
                                           : static_cast<char const*>(v->dataPtr.ptr);
        return s == nullptr ? CimValue::null(CMPI_string) : CimValue::string(s);
    }
    if (v == nullptr || type == CMPI_null) {
        return CimValue::null(type);
    }
    if (type & CMPI_ARRAY) {
        if (v->array == nullptr) {
            return CimValue::null(type == CMPI_charsA ? CMPI_stringA : type);
        }
        return ours<BrokerArray>(v->array, "CMPIArray").value();
    }
    switch (type) {
    case CMPI_boolean:
        return CimValue::boolean(v->boolean != 0);
    case CMPI_char16:
        return CimValue::char16(v->char16);
    case CMPI_real32:
        return CimValue::real32(v->real32);
    case CMPI_real64:
        return CimValue::real64(v->real64);
    case CMPI_uint8:
        return CimValue::uint8(v->uint8);
    case CMPI_uint16:
        return CimValue::uint16(v->uint16);
    case CMPI_uint32:
        return CimValue::uint32(v->uint32);
    case CMPI_uint64:
        return CimValue::uint64(v->uint64);
    case CMPI_sint8:
        return CimValue::sint8(v->sint8);
    case CMPI_sint16:
        return CimValue::sint16(v->sint16);
    case CMPI_sint32:
        return CimValue::sint32(v->sint32);
    case CMPI_sint64:
        return CimValue::sint64(v->sint64);
    case CMPI_string:
        return v->string == nullptr
                   ? CimValue::null(CMPI_string)
                   : CimValue::string(ours<BrokerString>(v->string, "CMPIString").text());
    case CMPI_dateTime:
        return v->dateTime == nullptr
                   ? CimValue::null(CMPI_dateTime)
                   : CimValue::dateTime(ours<BrokerDateTime>(v->dateTime, "CMPIDateTime").text());
    case CMPI_ref:
        return v->ref == nullptr
                   ? CimValue::null(CMPI_ref)
                   : CimValue::reference(ours<BrokerObjectPath>(v->ref, "CMPIObjectPath").path());
    case CMPI_instance:
        return v->inst == nullptr
                   ? CimValue::null(CMPI_instance)
                   : CimValue::instance(ours<BrokerInstance>(v->inst, "CMPIInstance").instance());
    default:
        throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                       "values of type " + CimValue::typeName(type) + " are not supported here");
    }
}

CMPIData ValueConverter::toData(ObjectRegistry& registry, CimValue const& value) {
    CMPIData d{};
    d.type = value.type();
    d.state = CMPI_goodValue;
    d.value.uint64 = 0;
    if (value.isNull()) {
        d.state = CMPI_nullValue;
        return d;
    }
    if (value.isArray()) {
        d.value.array = registry.make<BrokerArray>(value.elementType(), value.elements())->cmpi();
        return d;
    }
    switch (value.type()) {
    case CMPI_boolean:
        d.value.boolean = value.asBoolean() ? 1 : 0;
        break;
    case CMPI_char16:
        d.value.char16 = value.asChar16();
        break;
    case CMPI_real32:
        d.value.real32 = static_cast<CMPIReal32>(value.asReal());
        break;
    case CMPI_real64:
        d.value.real64 = value.asReal();
        break;
    case CMPI_uint8:
        d.value.uint8 = static_cast<CMPIUint8>(value.asUnsigned());
        break;
    case CMPI_uint16:
        d.value.uint16 = static_cast<CMPIUint16>(value.asUnsigned());
        break;
    case CMPI_uint32:
        d.value.uint32 = static_cast<CMPIUint32>(value.asUnsigned());
        break;
    case CMPI_uint64:
        d.value.uint64 = value.asUnsigned();
        break;
    case CMPI_sint8:
        d.value.sint8 = static_cast<CMPISint8>(value.asSigned());
        break;
    case CMPI_sint16:
        d.value.sint16 = static_cast<CMPISint16>(value.asSigned());
        break;
    case CMPI_sint32:
        d.value.sint32 = static_cast<CMPISint32>(value.asSigned());
        break;
    case CMPI_sint64:
        d.value.sint64 = value.asSigned();
        break;
    case CMPI_string:
        d.value.string = registry.make<BrokerString>(value.asString())->cmpi();
        break;
    case CMPI_dateTime:
        d.value.dateTime = registry.make<BrokerDateTime>(value.asString())->cmpi();
        break;
    case CMPI_ref:
        d.value.ref = registry.make<BrokerObjectPath>(value.asReference())->cmpi();
        break;
    case CMPI_instance:
        d.value.inst = registry.make<BrokerInstance>(value.asInstance())->cmpi();
        break;
    default:
        throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                       "cannot hand out a value of type " + CimValue::typeName(value.type()));
    }
    return d;
}

CMPIData ValueConverter::notFound() {
    CMPIData d{};
    d.type = CMPI_null;
    d.state = CMPI_notFound | CMPI_nullValue;
    d.value.uint64 = 0;
    return d;
}

} // namespace Cimom
