#include "CimValue.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <limits>

#include "CimError.h"
#include "CimInstance.h"
#include "CimName.h"
#include "CimObjectPath.h"

namespace Cimom {

namespace {

struct TypeName {
    CMPIType type;
    char const* name;
};

TypeName const typeNames[] = {
    {CMPI_boolean, "boolean"}, {CMPI_char16, "char16"},     {CMPI_real32, "real32"},
    {CMPI_real64, "real64"},   {CMPI_uint8, "uint8"},       {CMPI_uint16, "uint16"},
    {CMPI_uint32, "uint32"},   {CMPI_uint64, "uint64"},     {CMPI_sint8, "sint8"},
    {CMPI_sint16, "sint16"},   {CMPI_sint32, "sint32"},     {CMPI_sint64, "sint64"},
    {CMPI_string, "string"},   {CMPI_dateTime, "datetime"}, {CMPI_ref, "reference"},
};

bool isUnsignedType(CMPIType t) {
    return t == CMPI_uint8 || t == CMPI_uint16 || t == CMPI_uint32 || t == CMPI_uint64;
}
bool isSignedType(CMPIType t) {
    return t == CMPI_sint8 || t == CMPI_sint16 || t == CMPI_sint32 || t == CMPI_sint64;
}

std::uint64_t unsignedMax(CMPIType t) {
    switch (t) {
    case CMPI_uint8:
        return std::numeric_limits<std::uint8_t>::max();
    case CMPI_uint16:
        return std::numeric_limits<std::uint16_t>::max();
    case CMPI_uint32:
        return std::numeric_limits<std::uint32_t>::max();
    default:
        return std::numeric_limits<std::uint64_t>::max();
    }
}

std::int64_t signedMin(CMPIType t) {
    switch (t) {
    case CMPI_sint8:
        return std::numeric_limits<std::int8_t>::min();
    case CMPI_sint16:
        return std::numeric_limits<std::int16_t>::min();
    case CMPI_sint32:
        return std::numeric_limits<std::int32_t>::min();
    default:
        return std::numeric_limits<std::int64_t>::min();
    }
}

std::int64_t signedMax(CMPIType t) {
    switch (t) {
    case CMPI_sint8:
        return std::numeric_limits<std::int8_t>::max();
    case CMPI_sint16:
        return std::numeric_limits<std::int16_t>::max();
    case CMPI_sint32:
        return std::numeric_limits<std::int32_t>::max();
    default:
        return std::numeric_limits<std::int64_t>::max();
    }
}

[[noreturn]] void badText(CMPIType type, std::string_view text) {
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                   "\"" + std::string(text) + "\" is not a valid " + CimValue::typeName(type));
}

// Digits, or '*' where the datetime leaves a field unspecified.
bool dateTimeDigits(std::string_view s, std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
        if (!((s[i] >= '0' && s[i] <= '9') || s[i] == '*')) {
            return false;
        }
    }
    return true;
}

bool validDateTime(std::string_view s) {
    // yyyymmddhhmmss.mmmmmmsutc, or ddddddddhhmmss.mmmmmm:000 for an interval.
    if (s.size() != 25 || s[14] != '.' || !dateTimeDigits(s, 0, 14) || !dateTimeDigits(s, 15, 21) ||
        !dateTimeDigits(s, 22, 25)) {
        return false;
    }
    return s[21] == '+' || s[21] == '-' || (s[21] == ':' && s.substr(22) == "000");
}

bool parseUnsigned(std::string_view text, std::uint64_t& out) {
    int base = 10;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        base = 16;
        text.remove_prefix(2);
    } else if (!text.empty() && text[0] == '+') {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        return false;
    }
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), out, base);
    return ec == std::errc() && end == text.data() + text.size();
}

bool parseSigned(std::string_view text, std::int64_t& out) {
    bool negative = false;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        negative = text[0] == '-';
        text.remove_prefix(1);
    }
    std::uint64_t magnitude = 0;
    if (text.empty() || text[0] == '+' || !parseUnsigned(text, magnitude)) {
        return false;
    }
    std::uint64_t const limit =
        negative ? static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + 1
                 : static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (magnitude > limit) {
        return false;
    }
    out =
        negative ? static_cast<std::int64_t>(0 - magnitude) : static_cast<std::int64_t>(magnitude);
    return true;
}

std::string utf8(std::uint16_t c) {
    std::string out;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
    return out;
}

// One UTF-8 character of the basic plane, or false.
bool decodeChar16(std::string_view s, std::uint16_t& out) {
    auto const b = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    if (s.size() == 1 && b(0) < 0x80) {
        out = b(0);
        return true;
    }
    if (s.size() == 2 && (b(0) & 0xE0) == 0xC0 && (b(1) & 0xC0) == 0x80) {
        out = static_cast<std::uint16_t>(((b(0) & 0x1F) << 6) | (b(1) & 0x3F));
        return out >= 0x80;
    }
    if (s.size() == 3 && (b(0) & 0xF0) == 0xE0 && (b(1) & 0xC0) == 0x80 && (b(2) & 0xC0) == 0x80) {
        out = static_cast<std::uint16_t>(((b(0) & 0x0F) << 12) | ((b(1) & 0x3F) << 6) |
                                         (b(2) & 0x3F));
        return out >= 0x800;
    }
    return false;
}

} // namespace

CimValue::CimValue() : _type(CMPI_null), _data() {}

CimValue::CimValue(CMPIType type, Data data) : _type(type), _data(std::move(data)) {}

CimValue CimValue::null(CMPIType type) {
    return CimValue(type, std::monostate{});
}

CimValue CimValue::boolean(bool v) {
    return CimValue(CMPI_boolean, v);
}

CimValue CimValue::unsignedInt(CMPIType type, std::uint64_t v) {
    if (!isUnsignedType(type)) {
        throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, typeName(type) + " is not an unsigned type");
    }
    if (v > unsignedMax(type)) {
        throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                       std::to_string(v) + " does not fit " + typeName(type));
    }
    return CimValue(type, v);
}

CimValue CimValue::signedInt(CMPIType type, std::int64_t v) {
    if (!isSignedType(type)) {
        throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, typeName(type) + " is not a signed type");
    }
    if (v < signedMin(type) || v > signedMax(type)) {
        throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                       std::to_string(v) + " does not fit " + typeName(type));
    }
    return CimValue(type, v);
}

CimValue CimValue::real32(float v) {
    return CimValue(CMPI_real32, static_cast<double>(v));
}
CimValue CimValue::real64(double v) {
    return CimValue(CMPI_real64, v);
}
CimValue CimValue::char16(std::uint16_t v) {
    return CimValue(CMPI_char16, static_cast<std::uint64_t>(v));
}
CimValue CimValue::string(std::string v) {
    return CimValue(CMPI_string, std::move(v));
}

CimValue CimValue::dateTime(std::string cimText) {
    if (!validDateTime(cimText)) {
        badText(CMPI_dateTime, cimText);
    }
    return CimValue(CMPI_dateTime, std::move(cimText));
}

CimValue CimValue::reference(CimObjectPath const& path) {
    return CimValue(CMPI_ref, std::make_shared<CimObjectPath const>(path));
}

CimValue CimValue::instance(CimInstance const& inst) {
    return CimValue(CMPI_instance, std::make_shared<CimInstance const>(inst));
}

CimValue CimValue::array(CMPIType elementType, std::vector<CimValue> elements) {
    elementType = static_cast<CMPIType>(elementType & ~CMPI_ARRAY);
    for (CimValue const& e : elements) {
        if (e.isArray() || (e._type != elementType && !(e.isNull() && e._type == CMPI_null))) {
            throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, "array of " + typeName(elementType) +
                                                          " given an element of type " +
                                                          typeName(e._type));
        }
    }
    for (CimValue& e : elements) {
        e._type = elementType; // untyped nulls take the array's type
    }
    return CimValue(static_cast<CMPIType>(elementType | CMPI_ARRAY),
                    std::make_shared<std::vector<CimValue> const>(std::move(elements)));
}

CimValue CimValue::fromText(CMPIType type, std::string_view text) {
    switch (type) {
    case CMPI_boolean:
        if (CimName::equal(text, "true")) {
            return boolean(true);
        }
        if (CimName::equal(text, "false")) {
            return boolean(false);
        }
        badText(type, text);
    case CMPI_uint8:
    case CMPI_uint16:
    case CMPI_uint32:
    case CMPI_uint64: {
        std::uint64_t v = 0;
        if (!parseUnsigned(text, v) || v > unsignedMax(type)) {
            badText(type, text);
        }
        return CimValue(type, v);
    }
    case CMPI_sint8:
    case CMPI_sint16:
    case CMPI_sint32:
    case CMPI_sint64: {
        std::int64_t v = 0;
        if (!parseSigned(text, v) || v < signedMin(type) || v > signedMax(type)) {
            badText(type, text);
        }
        return CimValue(type, v);
    }
    case CMPI_real32:
    case CMPI_real64: {
        double v = 0;
        auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
        if (text.empty() || ec != std::errc() || end != text.data() + text.size()) {
            badText(type, text);
        }
        return type == CMPI_real32 ? real32(static_cast<float>(v)) : real64(v);
    }
    case CMPI_char16: {
        std::uint16_t c = 0;
        if (!decodeChar16(text, c)) {
            badText(type, text);
        }
        return char16(c);
    }
    case CMPI_string:
    case CMPI_chars:
        return string(std::string(text));
    case CMPI_dateTime:
        return dateTime(std::string(text));
    default:
        throw CimError(CMPI_RC_ERR_TYPE_MISMATCH,
                       "no text form for values of type " + typeName(type));
    }
}

CMPIType CimValue::typeFromName(std::string_view name) {
    for (TypeName const& t : typeNames) {
        if (CimName::equal(name, t.name)) {
            return t.type;
        }
    }
    return CMPI_null;
}

char const* CimValue::elementTypeName(CMPIType type) {
    CMPIType const element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    if (element == CMPI_chars) {
        return "string";
    }
    if (element == CMPI_instance) {
        return "instance";
    }
    for (TypeName const& t : typeNames) {
        if (t.type == element) {
            return t.name;
        }
    }
    return nullptr;
}

std::string CimValue::typeName(CMPIType type) {
    char const* known = elementTypeName(type);
    std::string name;
    if (known != nullptr) {
        name = known;
    } else {
        char buf[16];
        std::snprintf(buf, sizeof buf, "0x%04x", static_cast<unsigned>(type & ~CMPI_ARRAY));
        name = std::string("type ") + buf;
    }
    return (type & CMPI_ARRAY) ? name + "[]" : name;
}

bool CimValue::isInteger() const {
    return isUnsignedType(_type) || isSignedType(_type);
}
bool CimValue::isSigned() const {
    return isSignedType(_type);
}

void CimValue::_mismatch(char const* wanted) const {
    throw CimError(CMPI_RC_ERR_TYPE_MISMATCH,
                   std::string(isNull() ? "null " : "") + typeName(_type) + " read as " + wanted);
}

bool CimValue::asBoolean() const {
    if (bool const* b = std::get_if<bool>(&_data)) {
        return *b;
    }
    _mismatch("boolean");
}

std::uint64_t CimValue::asUnsigned() const {
    if (std::uint64_t const* v = std::get_if<std::uint64_t>(&_data); v && _type != CMPI_char16) {
        return *v;
    }
    if (std::int64_t const* v = std::get_if<std::int64_t>(&_data); v && *v >= 0) {
        return static_cast<std::uint64_t>(*v);
    }
    _mismatch("unsigned integer");
}

std::int64_t CimValue::asSigned() const {
    if (std::int64_t const* v = std::get_if<std::int64_t>(&_data)) {
        return *v;
    }
    if (std::uint64_t const* v = std::get_if<std::uint64_t>(&_data);
        v && _type != CMPI_char16 &&
        *v <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
        return static_cast<std::int64_t>(*v);
    }
    _mismatch("signed integer");
}

double CimValue::asReal() const {
    if (double const* v = std::get_if<double>(&_data)) {
        return *v;
    }
    _mismatch("real");
}

std::string const& CimValue::asString() const {
    if (std::string const* v = std::get_if<std::string>(&_data)) {
        return *v;
    }
    _mismatch("string");
}

std::uint16_t CimValue::asChar16() const {
    if (std::uint64_t const* v = std::get_if<std::uint64_t>(&_data); v && _type == CMPI_char16) {
        return static_cast<std::uint16_t>(*v);
    }
    _mismatch("char16");
}

CimObjectPath const& CimValue::asReference() const {
    if (auto const* v = std::get_if<std::shared_ptr<CimObjectPath const>>(&_data)) {
        return **v;
    }
    _mismatch("reference");
}

CimInstance const& CimValue::asInstance() const {
    if (auto const* v = std::get_if<std::shared_ptr<CimInstance const>>(&_data)) {
        return **v;
    }
    _mismatch("instance");
}

std::vector<CimValue> const& CimValue::elements() const {
    if (auto const* v = std::get_if<std::shared_ptr<std::vector<CimValue> const>>(&_data)) {
        return **v;
    }
    _mismatch("array");
}

std::string CimValue::toText() const {
    if (isNull()) {
        return std::string();
    }
    if (isArray()) {
        throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, "an array has no single text form");
    }
    switch (_type) {
    case CMPI_boolean:
        return asBoolean() ? "TRUE" : "FALSE";
    case CMPI_char16:
        return utf8(asChar16());
    case CMPI_uint8:
    case CMPI_uint16:
    case CMPI_uint32:
    case CMPI_uint64:
        return std::to_string(std::get<std::uint64_t>(_data));
    case CMPI_sint8:
    case CMPI_sint16:
    case CMPI_sint32:
    case CMPI_sint64:
        return std::to_string(std::get<std::int64_t>(_data));
    case CMPI_real32:
    case CMPI_real64: {
        // Shortest text that reads back to the same value.
        char buf[64];
        double const v = std::get<double>(_data);
        auto res = _type == CMPI_real32
                       ? std::to_chars(buf, buf + sizeof buf, static_cast<float>(v))
                       : std::to_chars(buf, buf + sizeof buf, v);
        return std::string(buf, res.ptr);
    }
    case CMPI_string:
    case CMPI_dateTime:
        return std::get<std::string>(_data);
    default:
        throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, "no text form for " + typeName(_type));
    }
}

bool CimValue::operator==(CimValue const& other) const {
    if (_type != other._type || _data.index() != other._data.index()) {
        return false;
    }
    if (auto const* p = std::get_if<std::shared_ptr<CimObjectPath const>>(&_data)) {
        return **p == other.asReference();
    }
    if (auto const* i = std::get_if<std::shared_ptr<CimInstance const>>(&_data)) {
        return **i == other.asInstance();
    }
    if (auto const* a = std::get_if<std::shared_ptr<std::vector<CimValue> const>>(&_data)) {
        return **a == other.elements();
    }
    if (double const* d = std::get_if<double>(&_data)) {
        return std::memcmp(d, &std::get<double>(other._data), sizeof(double)) == 0;
    }
    return _data == other._data;
}

bool CimValue::sameKeyValue(CimValue const& other) const {
    if (isInteger() && other.isInteger()) {
        bool const negA = isSigned() && asSigned() < 0;
        bool const negB = other.isSigned() && other.asSigned() < 0;
        if (negA || negB) {
            return negA && negB && asSigned() == other.asSigned();
        }
        return asUnsigned() == other.asUnsigned();
    }
    if (_type == CMPI_ref && other._type == CMPI_ref && !isNull() && !other.isNull()) {
        return asReference() == other.asReference();
    }
    return *this == other;
}

} // namespace Cimom
