#include "BrokerDateTime.h"

#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimDateTime.h"
#include "CimValue.h"
#include "ObjectRegistry.h"

namespace Cimom {

namespace {

CMPIStatus release(CMPIDateTime* d) {
    return BrokerStatus::onStatus<BrokerDateTime>(
        d, [](BrokerDateTime& self) { self.registry().release(&self); });
}

CMPIDateTime* clone(CMPIDateTime const* d, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerDateTime>(
        d, rc, static_cast<CMPIDateTime*>(nullptr), [](BrokerDateTime& self) {
            return self.registry().makeDetached<BrokerDateTime>(self.text())->cmpi();
        });
}

CMPIUint64 getBinaryFormat(CMPIDateTime const* d, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerDateTime>(d, rc, CMPIUint64(0), [](BrokerDateTime& self) {
        bool interval = false;
        return static_cast<CMPIUint64>(CimDateTime::toBinary(self.text(), interval));
    });
}

CMPIString* getStringFormat(CMPIDateTime const* d, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerDateTime>(
        d, rc, static_cast<CMPIString*>(nullptr), [](BrokerDateTime& self) {
            return self.registry().make<BrokerString>(self.text())->cmpi();
        });
}

CMPIBoolean isInterval(CMPIDateTime const* d, CMPIStatus* rc) {
    return BrokerStatus::on<BrokerDateTime>(d, rc, CMPIBoolean(0), [](BrokerDateTime& self) {
        return static_cast<CMPIBoolean>(CimDateTime::isInterval(self.text()) ? 1 : 0);
    });
}

CMPIDateTimeFT const dateTimeTable = {CMPICurrentVersion, release,         clone,
                                      getBinaryFormat,    getStringFormat, isInterval};

} // namespace

BrokerDateTime::BrokerDateTime(ObjectRegistry& registry, std::string cimText)
    : EncapsulatedObject(registry), _cmpi{this, &dateTimeTable},
      _text(CimValue::dateTime(std::move(cimText)).asString()) {}

BrokerDateTime* BrokerDateTime::from(CMPIDateTime const* d) {
    return (d != nullptr && d->ft == &dateTimeTable) ? static_cast<BrokerDateTime*>(d->hdl)
                                                     : nullptr;
}

} // namespace Cimom
