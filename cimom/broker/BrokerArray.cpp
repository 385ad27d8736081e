#include "BrokerArray.h"

#include "BrokerStatus.h"
#include "CimError.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

CMPIType normalized(CMPIType t) {
    t = static_cast<CMPIType>(t & ~CMPI_ARRAY);
    return t == CMPI_chars || t == CMPI_charsptr ? CMPIType(CMPI_string) : t;
}

CMPIStatus release(CMPIArray* a) {
    return BrokerStatus::onStatus<BrokerArray>(
        a, [](BrokerArray& self) { self.registry().release(&self); });
}

CMPIArray* clone(CMPIArray const* a, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerArray>(
        a, rc, static_cast<CMPIArray*>(nullptr), [](BrokerArray& self) {
            return self.registry()
                .makeDetached<BrokerArray>(self.elementType(), self.elements())
                ->cmpi();
        });
}

CMPICount getSize(CMPIArray const* a, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerArray>(a, rc, CMPICount(0), [](BrokerArray& self) {
        return static_cast<CMPICount>(self.elements().size());
    });
}

CMPIType getSimpleType(CMPIArray const* a, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerArray>(a, rc, CMPIType(CMPI_null),
                                         [](BrokerArray& self) { return self.elementType(); });
}

CMPIData getElementAt(CMPIArray const* a, CMPICount index, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerArray>(a, rc, ValueConverter::notFound(), [&](BrokerArray& self) {
        if (index >= self.elements().size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "array index " + std::to_string(index) + " out of range");
        }
        return ValueConverter::toData(self.registry(), self.elements()[index]);
    });
}

CMPIStatus setElementAt(CMPIArray* a, CMPICount index, CMPIValue const* value, CMPIType type) {
    return BrokerStatus::onStatus<BrokerArray>(a, [&](BrokerArray& self) {
        if (index >= self.elements().size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "array index " + std::to_string(index) + " out of range");
        }
        if (type != CMPI_null && normalized(type) != self.elementType()) {
            throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, CimValue::typeName(type) +
                                                          " set into an array of " +
                                                          CimValue::typeName(self.elementType()));
        }
        CimValue v = type == CMPI_null ? CimValue::null(self.elementType())
                                       : ValueConverter::toCim(value, type);
        if (v.isNull()) {
            v = CimValue::null(self.elementType());
        }
        self.elements()[index] = std::move(v);
    });
}

CMPIArrayFT const arrayTable = {CMPICurrentVersion, release,      clone,       getSize,
                                getSimpleType,      getElementAt, setElementAt};

} // namespace

BrokerArray::BrokerArray(ObjectRegistry& registry, CMPICount size, CMPIType elementType)
    : EncapsulatedObject(registry), _cmpi{this, &arrayTable}, _elementType(normalized(elementType)),
      _elements(size, CimValue::null(normalized(elementType))) {}

BrokerArray::BrokerArray(ObjectRegistry& registry, CMPIType elementType,
                         std::vector<CimValue> elements)
    : EncapsulatedObject(registry), _cmpi{this, &arrayTable}, _elementType(normalized(elementType)),
      _elements(std::move(elements)) {}

BrokerArray* BrokerArray::from(CMPIArray const* a) {
    return (a != nullptr && a->ft == &arrayTable) ? static_cast<BrokerArray*>(a->hdl) : nullptr;
}

} // namespace Cimom
