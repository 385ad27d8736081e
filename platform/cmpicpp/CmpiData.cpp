#include "CmpiData.h"

#include "CmpiArray.h"
#include "CmpiConvert.h"
#include "CmpiInstance.h"
#include "CmpiObjectPath.h"
#include "CmpiStatus.h"

#include <cstdio>
#include <limits>

namespace CmpiCpp {

namespace {

void appendQuoted(std::string& out, std::string const& text) {
    out += '"';
    for (char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    out += '"';
}

std::string realText(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

} // namespace

CmpiData::CmpiData(std::string const& value) : _type(CMPI_string), _value(value) {}
CmpiData::CmpiData(char const* value) : _type(CMPI_string) {
    if (value)
        _value = std::string(value);
}
CmpiData::CmpiData(bool value) : _type(CMPI_boolean), _value(value) {}
CmpiData::CmpiData(unsigned char value) : _type(CMPI_uint8), _value(std::uint64_t{value}) {}
CmpiData::CmpiData(signed char value) : _type(CMPI_sint8), _value(std::int64_t{value}) {}
CmpiData::CmpiData(unsigned short value) : _type(CMPI_uint16), _value(std::uint64_t{value}) {}
CmpiData::CmpiData(short value) : _type(CMPI_sint16), _value(std::int64_t{value}) {}
CmpiData::CmpiData(unsigned int value) : _type(CMPI_uint32), _value(std::uint64_t{value}) {}
CmpiData::CmpiData(int value) : _type(CMPI_sint32), _value(std::int64_t{value}) {}
CmpiData::CmpiData(unsigned long value) : _type(CMPI_uint64), _value(std::uint64_t{value}) {}
CmpiData::CmpiData(long value) : _type(CMPI_sint64), _value(std::int64_t{value}) {}
CmpiData::CmpiData(unsigned long long value)
    : _type(CMPI_uint64), _value(static_cast<std::uint64_t>(value)) {}
CmpiData::CmpiData(long long value)
    : _type(CMPI_sint64), _value(static_cast<std::int64_t>(value)) {}
CmpiData::CmpiData(float value) : _type(CMPI_real32), _value(static_cast<double>(value)) {}
CmpiData::CmpiData(double value) : _type(CMPI_real64), _value(value) {}
CmpiData::CmpiData(CmpiDateTime const& value) : _type(CMPI_dateTime), _value(value) {}
CmpiData::CmpiData(CmpiObjectPath const& value)
    : _type(CMPI_ref), _value(std::make_shared<CmpiObjectPath const>(value)) {}
CmpiData::CmpiData(CmpiArray const& value)
    : _type(value.getType()), _value(std::make_shared<CmpiArray const>(value)) {}
CmpiData::CmpiData(CmpiInstance const& value)
    : _type(CMPI_instance), _value(std::make_shared<CmpiInstance const>(value)) {}

CmpiData CmpiData::null(CMPIType type) {
    CmpiData data;
    // CMPI_chars is only a way of passing a string; the value is a string.
    data._type = (type & ~CMPI_ARRAY) == CMPI_chars
                     ? static_cast<CMPIType>((type & CMPI_ARRAY) | CMPI_string)
                     : type;
    return data;
}

CmpiData CmpiData::char16(unsigned short value) {
    CmpiData data(value);
    data._type = CMPI_char16;
    return data;
}

void CmpiData::_mismatch(char const* wanted) const {
    throw CmpiStatus(CMPI_RC_ERR_TYPE_MISMATCH,
                     std::string("value of type ") + std::to_string(_type) +
                         (isNull() ? " is null" : "") + ", wanted " + wanted);
}

std::string const& CmpiData::getString() const {
    if (auto const* s = std::get_if<std::string>(&_value))
        return *s;
    _mismatch("string");
}

bool CmpiData::getBool() const {
    if (auto const* b = std::get_if<bool>(&_value))
        return *b;
    _mismatch("boolean");
}

std::uint64_t CmpiData::_unsignedIn(std::uint64_t max) const {
    if (auto const* u = std::get_if<std::uint64_t>(&_value)) {
        if (*u <= max)
            return *u;
    } else if (auto const* s = std::get_if<std::int64_t>(&_value)) {
        if (*s >= 0 && static_cast<std::uint64_t>(*s) <= max)
            return static_cast<std::uint64_t>(*s);
    }
    _mismatch("an unsigned integer in range");
}

std::int64_t CmpiData::_signedIn(std::int64_t min, std::int64_t max) const {
    if (auto const* s = std::get_if<std::int64_t>(&_value)) {
        if (*s >= min && *s <= max)
            return *s;
    } else if (auto const* u = std::get_if<std::uint64_t>(&_value)) {
        if (*u <= static_cast<std::uint64_t>(max))
            return static_cast<std::int64_t>(*u);
    }
    _mismatch("a signed integer in range");
}

std::uint8_t CmpiData::getUint8() const {
    return static_cast<std::uint8_t>(_unsignedIn(std::numeric_limits<std::uint8_t>::max()));
}
std::uint16_t CmpiData::getUint16() const {
    return static_cast<std::uint16_t>(_unsignedIn(std::numeric_limits<std::uint16_t>::max()));
}
std::uint32_t CmpiData::getUint32() const {
    return static_cast<std::uint32_t>(_unsignedIn(std::numeric_limits<std::uint32_t>::max()));
}
std::uint64_t CmpiData::getUint64() const {
    return _unsignedIn(std::numeric_limits<std::uint64_t>::max());
}
std::int8_t CmpiData::getSint8() const {
    return static_cast<std::int8_t>(_signedIn(std::numeric_limits<std::int8_t>::min(),
                                              std::numeric_limits<std::int8_t>::max()));
}
std::int16_t CmpiData::getSint16() const {
    return static_cast<std::int16_t>(_signedIn(std::numeric_limits<std::int16_t>::min(),
                                               std::numeric_limits<std::int16_t>::max()));
}
std::int32_t CmpiData::getSint32() const {
    return static_cast<std::int32_t>(_signedIn(std::numeric_limits<std::int32_t>::min(),
                                               std::numeric_limits<std::int32_t>::max()));
}
std::int64_t CmpiData::getSint64() const {
    return _signedIn(std::numeric_limits<std::int64_t>::min(),
                     std::numeric_limits<std::int64_t>::max());
}

float CmpiData::getReal32() const {
    if (auto const* d = std::get_if<double>(&_value))
        return static_cast<float>(*d);
    _mismatch("real32");
}

double CmpiData::getReal64() const {
    if (auto const* d = std::get_if<double>(&_value))
        return *d;
    _mismatch("real64");
}

CmpiDateTime const& CmpiData::getDateTime() const {
    if (auto const* d = std::get_if<CmpiDateTime>(&_value))
        return *d;
    _mismatch("datetime");
}

CmpiObjectPath const& CmpiData::getObjectPath() const {
    if (auto const* p = std::get_if<std::shared_ptr<CmpiObjectPath const>>(&_value))
        return **p;
    _mismatch("reference");
}

CmpiArray const& CmpiData::getArray() const {
    if (auto const* a = std::get_if<std::shared_ptr<CmpiArray const>>(&_value))
        return **a;
    _mismatch("array");
}

CmpiInstance const& CmpiData::getInstance() const {
    if (auto const* i = std::get_if<std::shared_ptr<CmpiInstance const>>(&_value))
        return **i;
    _mismatch("instance");
}

CMPIData CmpiData::toCMPI() const {
    CMPIData raw{};
    raw.type = _type;
    raw.state = CMPI_goodValue;
    if (isNull()) {
        raw.state = CMPI_nullValue;
        return raw;
    }
    if (auto const* u = std::get_if<std::uint64_t>(&_value)) {
        switch (_type) {
        case CMPI_uint8:
            raw.value.uint8 = static_cast<CMPIUint8>(*u);
            break;
        case CMPI_uint16:
            raw.value.uint16 = static_cast<CMPIUint16>(*u);
            break;
        case CMPI_char16:
            raw.value.char16 = static_cast<CMPIChar16>(*u);
            break;
        case CMPI_uint32:
            raw.value.uint32 = static_cast<CMPIUint32>(*u);
            break;
        default:
            raw.value.uint64 = *u;
            break;
        }
    } else if (auto const* s = std::get_if<std::int64_t>(&_value)) {
        switch (_type) {
        case CMPI_sint8:
            raw.value.sint8 = static_cast<CMPISint8>(*s);
            break;
        case CMPI_sint16:
            raw.value.sint16 = static_cast<CMPISint16>(*s);
            break;
        case CMPI_sint32:
            raw.value.sint32 = static_cast<CMPISint32>(*s);
            break;
        default:
            raw.value.sint64 = *s;
            break;
        }
    } else if (auto const* d = std::get_if<double>(&_value)) {
        if (_type == CMPI_real32)
            raw.value.real32 = static_cast<CMPIReal32>(*d);
        else
            raw.value.real64 = *d;
    } else if (auto const* b = std::get_if<bool>(&_value)) {
        raw.value.boolean = *b ? 1 : 0;
    } else if (auto const* str = std::get_if<std::string>(&_value)) {
        raw.type = CMPI_chars;
        raw.value.chars = const_cast<char*>(str->c_str());
    } else {
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED,
                         "a value of type " + std::to_string(_type) + " needs the broker");
    }
    return raw;
}

CMPIData CmpiData::toCMPI(CmpiBroker const& broker) const {
    return CmpiConvert::toCMPI(broker, *this);
}

std::string CmpiData::str() const {
    if (isNull())
        return "NULL";
    if (auto const* u = std::get_if<std::uint64_t>(&_value))
        return std::to_string(*u);
    if (auto const* s = std::get_if<std::int64_t>(&_value))
        return std::to_string(*s);
    if (auto const* d = std::get_if<double>(&_value))
        return realText(*d);
    if (auto const* b = std::get_if<bool>(&_value))
        return *b ? "true" : "false";
    if (auto const* str = std::get_if<std::string>(&_value))
        return *str;
    if (auto const* dt = std::get_if<CmpiDateTime>(&_value))
        return dt->str();
    if (auto const* p = std::get_if<std::shared_ptr<CmpiObjectPath const>>(&_value))
        return (*p)->str();
    if (auto const* a = std::get_if<std::shared_ptr<CmpiArray const>>(&_value)) {
        std::string out = "{";
        for (unsigned int i = 0; i < (*a)->size(); ++i)
            out += (i ? "," : "") + (*a)->getElementAt(i).str();
        return out + "}";
    }
    auto const& inst = std::get<std::shared_ptr<CmpiInstance const>>(_value);
    return "instance of " + inst->getClassName().str();
}

std::string CmpiData::keyText() const {
    std::string out;
    appendKeyText(out);
    return out;
}

// Appends rather than returns: a graph build makes a key for every path and
// every end of every association, and the temporaries cost more than the text.
void CmpiData::appendKeyText(std::string& out) const {
    if (isNull()) {
        out += "NULL";
    } else if (auto const* text = std::get_if<std::string>(&_value)) {
        appendQuoted(out, *text);
    } else if (auto const* p = std::get_if<std::shared_ptr<CmpiObjectPath const>>(&_value)) {
        out += '{';
        (*p)->appendCanonicalKey(out);
        out += '}';
    } else if (auto const* a = std::get_if<std::shared_ptr<CmpiArray const>>(&_value)) {
        out += '[';
        for (unsigned int i = 0; i < (*a)->size(); ++i) {
            if (i)
                out += ',';
            (*a)->getElementAt(i).appendKeyText(out);
        }
        out += ']';
    } else {
        out += str();
    }
}

bool CmpiData::operator==(CmpiData const& other) const {
    if (_type != other._type || _value.index() != other._value.index())
        return false;
    if (auto const* p = std::get_if<std::shared_ptr<CmpiObjectPath const>>(&_value))
        return **p == *std::get<std::shared_ptr<CmpiObjectPath const>>(other._value);
    if (auto const* a = std::get_if<std::shared_ptr<CmpiArray const>>(&_value))
        return **a == *std::get<std::shared_ptr<CmpiArray const>>(other._value);
    if (auto const* i = std::get_if<std::shared_ptr<CmpiInstance const>>(&_value))
        return **i == *std::get<std::shared_ptr<CmpiInstance const>>(other._value);
    return _value == other._value;
}

} // namespace CmpiCpp
