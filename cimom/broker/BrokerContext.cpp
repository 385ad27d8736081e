#include "BrokerContext.h"

#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimError.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerContext;

CMPIStatus release(CMPIContext* c) {
    return BrokerStatus::onStatus<Self>(c, [](Self& self) { self.registry().release(&self); });
}

CMPIContext* clone(CMPIContext const* c, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(c, rc, static_cast<CMPIContext*>(nullptr), [](Self& self) {
        return self.registry().makeDetached<Self>(self.entries())->cmpi();
    });
}

CMPIData getEntry(CMPIContext const* c, char const* name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(c, rc, ValueConverter::notFound(), [&](Self& self) {
        // Context entry names are case-sensitive, as CMPI defines them.
        for (auto const& [n, v] : self.entries()) {
            if (name != nullptr && n == name) {
                return ValueConverter::toData(self.registry(), v);
            }
        }
        throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                       std::string("no context entry ") + (name ? name : "(null)"));
    });
}

CMPIData getEntryAt(CMPIContext const* c, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(c, rc, ValueConverter::notFound(), [&](Self& self) {
        if (index >= self.entries().size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "context index " + std::to_string(index) + " out of range");
        }
        if (name != nullptr) {
            *name = self.registry().make<BrokerString>(self.entries()[index].first)->cmpi();
        }
        return ValueConverter::toData(self.registry(), self.entries()[index].second);
    });
}

CMPICount getEntryCount(CMPIContext const* c, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(c, rc, CMPICount(0), [](Self& self) {
        return static_cast<CMPICount>(self.entries().size());
    });
}

CMPIStatus addEntry(CMPIContext const* c, char const* name, CMPIValue const* value,
                    CMPIType const type) {
    return BrokerStatus::onStatus<Self>(c, [&](Self& self) {
        if (name == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "entry name is null");
        }
        self.add(name, ValueConverter::toCim(value, type));
    });
}

CMPIContextFT const contextTable = {CMPICurrentVersion, release,       clone,   getEntry,
                                    getEntryAt,         getEntryCount, addEntry};

} // namespace

BrokerContext::BrokerContext(ObjectRegistry& registry, std::vector<Entry> entries)
    : EncapsulatedObject(registry), _cmpi{this, &contextTable}, _entries(std::move(entries)) {}

void BrokerContext::add(std::string const& name, CimValue value) {
    for (Entry& e : _entries) {
        if (e.first == name) {
            e.second = std::move(value);
            return;
        }
    }
    _entries.emplace_back(name, std::move(value));
}

BrokerContext* BrokerContext::from(CMPIContext const* c) {
    return (c != nullptr && c->ft == &contextTable) ? static_cast<BrokerContext*>(c->hdl) : nullptr;
}

} // namespace Cimom
