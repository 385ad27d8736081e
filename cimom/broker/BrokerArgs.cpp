#include "BrokerArgs.h"

#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimError.h"
#include "CimName.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerArgs;

CMPIStatus release(CMPIArgs* a) {
    return BrokerStatus::onStatus<Self>(a, [](Self& self) { self.registry().release(&self); });
}

CMPIArgs* clone(CMPIArgs const* a, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(a, rc, static_cast<CMPIArgs*>(nullptr), [](Self& self) {
        return self.registry().makeDetached<Self>(self.args())->cmpi();
    });
}

CMPIStatus addArg(CMPIArgs const* a, char const* name, CMPIValue const* value,
                  CMPIType const type) {
    return BrokerStatus::onStatus<Self>(a, [&](Self& self) {
        if (name == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "argument name is null");
        }
        self.add(name, ValueConverter::toCim(value, type));
    });
}

CMPIData getArg(CMPIArgs const* a, char const* name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(a, rc, ValueConverter::notFound(), [&](Self& self) {
        for (auto const& [n, v] : self.args()) {
            if (name != nullptr && CimName::equal(n, name)) {
                return ValueConverter::toData(self.registry(), v);
            }
        }
        throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                       std::string("no argument ") + (name ? name : "(null)"));
    });
}

CMPIData getArgAt(CMPIArgs const* a, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(a, rc, ValueConverter::notFound(), [&](Self& self) {
        if (index >= self.args().size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "argument index " + std::to_string(index) + " out of range");
        }
        if (name != nullptr) {
            *name = self.registry().make<BrokerString>(self.args()[index].first)->cmpi();
        }
        return ValueConverter::toData(self.registry(), self.args()[index].second);
    });
}

CMPICount getArgCount(CMPIArgs const* a, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(
        a, rc, CMPICount(0), [](Self& self) { return static_cast<CMPICount>(self.args().size()); });
}

CMPIArgsFT const argsTable = {CMPICurrentVersion, release,    clone, addArg, getArg,
                              getArgAt,           getArgCount};

} // namespace

BrokerArgs::BrokerArgs(ObjectRegistry& registry, std::vector<Arg> args)
    : EncapsulatedObject(registry), _cmpi{this, &argsTable}, _args(std::move(args)) {}

void BrokerArgs::add(std::string const& name, CimValue value) {
    for (Arg& a : _args) {
        if (CimName::equal(a.first, name)) {
            a.second = std::move(value);
            return;
        }
    }
    _args.emplace_back(name, std::move(value));
}

BrokerArgs* BrokerArgs::from(CMPIArgs const* a) {
    return (a != nullptr && a->ft == &argsTable) ? static_cast<BrokerArgs*>(a->hdl) : nullptr;
}

} // namespace Cimom
