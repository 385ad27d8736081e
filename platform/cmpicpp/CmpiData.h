#pragma once
// One typed CIM value: a property, key, argument or array element. The type
// code is the CMPI one (CMPI_uint16, CMPI_string, CMPI_ref, CMPI_uint16A ...);
// a null value still carries the type it would have.
#include "CmpiDateTime.h"
#include "cmpidt.h"
#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace CmpiCpp {

class CmpiArray;
class CmpiBroker;
class CmpiInstance;
class CmpiObjectPath;

class CmpiData {
public:
    // The null value of no type (CMPI_null).
    CmpiData() = default;
    CmpiData(std::string const& value);
    CmpiData(char const* value); // null pointer gives a null string
    CmpiData(bool value);
    CmpiData(unsigned char value);      // uint8
    CmpiData(signed char value);        // sint8
    CmpiData(unsigned short value);     // uint16
    CmpiData(short value);              // sint16
    CmpiData(unsigned int value);       // uint32
    CmpiData(int value);                // sint32
    CmpiData(unsigned long value);      // uint64
    CmpiData(long value);               // sint64
    CmpiData(unsigned long long value); // uint64
    CmpiData(long long value);          // sint64
    CmpiData(float value);              // real32
    CmpiData(double value);             // real64
    CmpiData(CmpiDateTime const& value);
    CmpiData(CmpiObjectPath const& value); // a reference
    CmpiData(CmpiArray const& value);
    CmpiData(CmpiInstance const& value); // an embedded instance

    // A null value of the given type.
    static CmpiData null(CMPIType type);
    // A 16-bit character (CMPI_char16).
    static CmpiData char16(unsigned short value);

    CMPIType getType() const { return _type; }
    bool isNull() const { return std::holds_alternative<std::monostate>(_value); }
    bool isArray() const { return (_type & CMPI_ARRAY) != 0; }

    // Typed getters. A null value or a value of another kind throws
    // CmpiStatus(CMPI_RC_ERR_TYPE_MISMATCH). The integer getters take any
    // integer type whose value fits, since clients and object managers do not
    // all keep the declared width of an argument.
    std::string const& getString() const;
    bool getBool() const;
    std::uint8_t getUint8() const;
    std::uint16_t getUint16() const;
    std::uint32_t getUint32() const;
    std::uint64_t getUint64() const;
    std::int8_t getSint8() const;
    std::int16_t getSint16() const;
    std::int32_t getSint32() const;
    std::int64_t getSint64() const;
    float getReal32() const;
    double getReal64() const;
    CmpiDateTime const& getDateTime() const;
    CmpiObjectPath const& getObjectPath() const;
    CmpiArray const& getArray() const;
    CmpiInstance const& getInstance() const;

    // The raw CMPI form of a simple value; a string comes as CMPI_chars
    // pointing into this object. References, arrays, datetimes and embedded
    // instances need the broker's factories: they throw
    // CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED) here and go through the overload
    // with a broker.
    CMPIData toCMPI() const;
    // The raw CMPI form, with broker-made objects where needed. The objects
    // belong to the object manager, as everything its factories make.
    CMPIData toCMPI(CmpiBroker const& broker) const;

    // A readable text of the value: strings as they are, numbers in decimal,
    // "true"/"false", paths by their str(), arrays as "{a,b}", null as "NULL".
    std::string str() const;
    // The text a key value contributes to a path's canonical key: the same
    // for equal key values whatever the integer width, and quoted for strings
    // so that "5" and 5 stay apart.
    std::string keyText() const;
    void appendKeyText(std::string& out) const;

    // Same type and same value.
    bool operator==(CmpiData const& other) const;

private:
    using Value =
        std::variant<std::monostate, bool, std::uint64_t, std::int64_t, double, std::string,
                     CmpiDateTime, std::shared_ptr<CmpiObjectPath const>,
                     std::shared_ptr<CmpiArray const>, std::shared_ptr<CmpiInstance const>>;

    std::uint64_t _unsignedIn(std::uint64_t max) const;
    std::int64_t _signedIn(std::int64_t min, std::int64_t max) const;
    [[noreturn]] void _mismatch(char const* wanted) const;

    CMPIType _type = CMPI_null;
    Value _value;
};

} // namespace CmpiCpp
