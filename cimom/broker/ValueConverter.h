#pragma once

#include "CimValue.h"
#include "cmpift.h"

namespace Cimom {

class ObjectRegistry;

// Moves values across the CMPI boundary. Into the broker, everything is
// copied out of the provider's objects at once, so a provider may release
// or reuse them right after the call. Out of the broker, strings, paths,
// arrays and datetimes become new objects of the current arena.
class ValueConverter {
public:
    // A null value pointer gives null of the type. For CMPI_chars the value
    // pointer is the C string itself, as providers pass it; it becomes a string. Throws CimError:
    // CMPI_RC_ERR_INVALID_HANDLE for an object that is not ours, CMPI_RC_ERR_INVALID_DATA_TYPE for
    // an unknown type.
    static CimValue toCim(CMPIValue const* value, CMPIType type);
    static CimValue toCim(CMPIData const& data);
    static CMPIData toData(ObjectRegistry& registry, CimValue const& value);
    // A CMPIData for "no such entry": CMPI_notFound, null type.
    static CMPIData notFound();
};

} // namespace Cimom
