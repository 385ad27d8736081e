#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "cmpidt.h"

namespace Cimom {

class CimObjectPath;
class CimInstance;

// One CIM value as the object manager holds it: a CMPI type code and a
// scalar, an array of scalars or a reference, or null of a known type.
// Values are immutable once built and cheap to copy (arrays and references
// are shared).
//
// Text forms are those of a CIM-XML VALUE: TRUE/FALSE, decimal integers,
// reals, the 25-character datetime, a single character for char16, strings
// as they are. References have no text form here (they are structured in
// CIM-XML); CimObjectPath::toString gives a readable one.
class CimValue {
public:
    // Null of no particular type.
    CimValue();

    static CimValue null(CMPIType type);
    static CimValue boolean(bool v);
    static CimValue uint8(std::uint8_t v) { return unsignedInt(CMPI_uint8, v); }
    static CimValue uint16(std::uint16_t v) { return unsignedInt(CMPI_uint16, v); }
    static CimValue uint32(std::uint32_t v) { return unsignedInt(CMPI_uint32, v); }
    static CimValue uint64(std::uint64_t v) { return unsignedInt(CMPI_uint64, v); }
    static CimValue sint8(std::int8_t v) { return signedInt(CMPI_sint8, v); }
    static CimValue sint16(std::int16_t v) { return signedInt(CMPI_sint16, v); }
    static CimValue sint32(std::int32_t v) { return signedInt(CMPI_sint32, v); }
    static CimValue sint64(std::int64_t v) { return signedInt(CMPI_sint64, v); }
    // Throws CimError(CMPI_RC_ERR_INVALID_PARAMETER) when v does not fit the type.
    static CimValue unsignedInt(CMPIType type, std::uint64_t v);
    static CimValue signedInt(CMPIType type, std::int64_t v);
    static CimValue real32(float v);
    static CimValue real64(double v);
    static CimValue char16(std::uint16_t v);
    static CimValue string(std::string v);
    // A datetime in its CIM text form; throws CimError when malformed.
    static CimValue dateTime(std::string cimText);
    static CimValue reference(CimObjectPath const& path);
    static CimValue instance(CimInstance const& inst);
    // Elements must be non-array values of elementType (nulls allowed).
    static CimValue array(CMPIType elementType, std::vector<CimValue> elements);

    // Parses the CIM-XML text form of a scalar of the given type.
    // Throws CimError(CMPI_RC_ERR_INVALID_PARAMETER) naming the bad text.
    static CimValue fromText(CMPIType type, std::string_view text);

    // Type codes from and to MOF/CIM-XML names ("uint32", "datetime",
    // "reference"). typeFromName gives CMPI_null for an unknown name.
    static CMPIType typeFromName(std::string_view name);
    static std::string typeName(CMPIType type);
    // The MOF name of the element type without "[]", or null when it has
    // none; a static text, for writers that must not allocate.
    static char const* elementTypeName(CMPIType type);

    CMPIType type() const { return _type; }
    bool isNull() const { return std::holds_alternative<std::monostate>(_data); }
    bool isArray() const { return (_type & CMPI_ARRAY) != 0; }
    CMPIType elementType() const { return static_cast<CMPIType>(_type & ~CMPI_ARRAY); }
    bool isInteger() const;
    bool isSigned() const;

    // Accessors throw CimError(CMPI_RC_ERR_TYPE_MISMATCH) on a wrong kind or null.
    bool asBoolean() const;
    std::uint64_t asUnsigned() const;
    std::int64_t asSigned() const;
    double asReal() const;
    std::string const& asString() const; // string and datetime
    std::uint16_t asChar16() const;
    CimObjectPath const& asReference() const;
    CimInstance const& asInstance() const;
    std::vector<CimValue> const& elements() const;

    // Text of a non-null scalar (empty for null). Throws for arrays,
    // references and instances.
    std::string toText() const;

    // Same type and same value; for reals bitwise-equal doubles.
    bool operator==(CimValue const& other) const;
    bool operator!=(CimValue const& other) const { return !(*this == other); }

    // Key equality: integers of any width compare by value, references as
    // paths, everything else as operator==.
    bool sameKeyValue(CimValue const& other) const;

private:
    using Data =
        std::variant<std::monostate, bool, std::uint64_t, std::int64_t, double, std::string,
                     std::shared_ptr<CimObjectPath const>, std::shared_ptr<CimInstance const>,
                     std::shared_ptr<std::vector<CimValue> const>>;

    CimValue(CMPIType type, Data data);
    [[noreturn]] void _mismatch(char const* wanted) const;

    CMPIType _type;
    Data _data;
};

} // namespace Cimom
