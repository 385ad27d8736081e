#pragma once

#include <vector>

#include "CimValue.h"
#include "EncapsulatedObject.h"
#include "cmpift.h"

namespace Cimom {

// CMPIArray: a fixed number of elements of one type, each possibly null.
class BrokerArray : public EncapsulatedObject {
public:
    // size null elements of the given type (CMPI_chars is kept as string).
    BrokerArray(ObjectRegistry& registry, CMPICount size, CMPIType elementType);
    BrokerArray(ObjectRegistry& registry, CMPIType elementType, std::vector<CimValue> elements);

    CMPIArray* cmpi() { return &_cmpi; }
    CMPIType elementType() const { return _elementType; }
    std::vector<CimValue>& elements() { return _elements; }
    std::vector<CimValue> const& elements() const { return _elements; }
    CimValue value() const { return CimValue::array(_elementType, _elements); }
    char const* cmpiTypeName() const override { return "CMPIArray"; }

    static BrokerArray* from(CMPIArray const* a);

private:
    CMPIArray _cmpi;
    CMPIType _elementType;
    std::vector<CimValue> _elements;
};

} // namespace Cimom
