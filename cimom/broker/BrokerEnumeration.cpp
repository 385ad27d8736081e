#include "BrokerEnumeration.h"

#include "BrokerArray.h"
#include "BrokerStatus.h"
#include "CimError.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerEnumeration;

CMPIStatus release(CMPIEnumeration* e) {
    return BrokerStatus::onStatus<Self>(e, [](Self& self) { self.registry().release(&self); });
}

CMPIEnumeration* clone(CMPIEnumeration const* e, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(e, rc, static_cast<CMPIEnumeration*>(nullptr), [](Self& self) {
        return self.registry().makeDetached<Self>(self.items(), self.position())->cmpi();
    });
}

CMPIData getNext(CMPIEnumeration const* e, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(e, rc, ValueConverter::notFound(), [](Self& self) {
        if (self.position() >= self.items().size()) {
            throw CimError(CMPI_RC_ERR_NOT_FOUND, "enumeration is exhausted");
        }
        return ValueConverter::toData(self.registry(), self.items()[self.position()++]);
    });
}

CMPIBoolean hasNext(CMPIEnumeration const* e, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(e, rc, CMPIBoolean(0), [](Self& self) {
        return static_cast<CMPIBoolean>(self.position() < self.items().size() ? 1 : 0);
    });
}

CMPIArray* toArray(CMPIEnumeration const* e, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(e, rc, static_cast<CMPIArray*>(nullptr), [](Self& self) {
        CMPIType const type =
            self.items().empty() ? CMPIType(CMPI_ref) : self.items().front().type();
        return self.registry().make<BrokerArray>(type, self.items())->cmpi();
    });
}

CMPIEnumerationFT const enumerationTable = {
    CMPICurrentVersion, release, clone, getNext, hasNext, toArray};

} // namespace

BrokerEnumeration::BrokerEnumeration(ObjectRegistry& registry, std::vector<CimValue> items,
                                     std::size_t position)
    : EncapsulatedObject(registry), _cmpi{this, &enumerationTable}, _items(std::move(items)),
      _position(position) {}

BrokerEnumeration* BrokerEnumeration::from(CMPIEnumeration const* e) {
    return (e != nullptr && e->ft == &enumerationTable) ? static_cast<BrokerEnumeration*>(e->hdl)
                                                        : nullptr;
}

} // namespace Cimom
