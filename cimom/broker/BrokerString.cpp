#include "BrokerString.h"

#include "BrokerStatus.h"
#include "ObjectRegistry.h"

namespace Cimom {

namespace {

CMPIStatus release(CMPIString* s) {
    BrokerString* self = BrokerString::from(s);
    if (self == nullptr) {
        return BrokerStatus::make(nullptr, CMPI_RC_ERR_INVALID_HANDLE, "");
    }
    self->registry().release(self);
    return BrokerStatus::ok();
}

CMPIString* clone(CMPIString const* s, CMPIStatus* rc) {
    BrokerString* self = BrokerString::from(s);
    if (self == nullptr) {
        BrokerStatus::set(rc, nullptr, CMPI_RC_ERR_INVALID_HANDLE, "");
        return nullptr;
    }
    return BrokerStatus::guardValue<CMPIString*>(&self->registry(), rc, nullptr, [&] {
        return self->registry().makeDetached<BrokerString>(self->text())->cmpi();
    });
}

char* getCharPtr(CMPIString const* s, CMPIStatus* rc) {
    BrokerString* self = BrokerString::from(s);
    if (self == nullptr) {
        BrokerStatus::set(rc, nullptr, CMPI_RC_ERR_INVALID_HANDLE, "");
        return nullptr;
    }
    BrokerStatus::setOk(rc);
    return const_cast<char*>(self->text().c_str());
}

CMPIStringFT const stringTable = {CMPICurrentVersion, release, clone, getCharPtr};

} // namespace

BrokerString::BrokerString(ObjectRegistry& registry, std::string text)
    : EncapsulatedObject(registry), _cmpi{this, &stringTable}, _text(std::move(text)) {}

BrokerString* BrokerString::from(CMPIString const* s) {
    return (s != nullptr && s->ft == &stringTable) ? static_cast<BrokerString*>(s->hdl) : nullptr;
}

} // namespace Cimom
