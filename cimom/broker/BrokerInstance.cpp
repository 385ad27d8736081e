#include "BrokerInstance.h"

#include "BrokerObjectPath.h"
#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimError.h"
#include "CimName.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerInstance;

CMPIStatus release(CMPIInstance* inst) {
    return BrokerStatus::onStatus<Self>(inst, [](Self& self) { self.registry().release(&self); });
}

CMPIInstance* clone(CMPIInstance const* inst, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(inst, rc, static_cast<CMPIInstance*>(nullptr), [](Self& self) {
        return self.registry().makeDetached<Self>(self.instance())->cmpi();
    });
}

CMPIData getProperty(CMPIInstance const* inst, char const* name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(inst, rc, ValueConverter::notFound(), [&](Self& self) {
        CimValue const* v = name ? self.instance().property(name) : nullptr;
        if (v == nullptr) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           std::string("no property ") + (name ? name : "(null)"));
        }
        return ValueConverter::toData(self.registry(), *v);
    });
}

CMPIData getPropertyAt(CMPIInstance const* inst, CMPICount index, CMPIString** name,
                       CMPIStatus* rc) {
    return BrokerStatus::on<Self>(inst, rc, ValueConverter::notFound(), [&](Self& self) {
        auto const& props = self.instance().properties();
        if (index >= props.size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "property index " + std::to_string(index) + " out of range");
        }
        if (name != nullptr) {
            *name = self.registry().make<BrokerString>(props[index].name)->cmpi();
        }
        return ValueConverter::toData(self.registry(), props[index].value);
    });
}

CMPICount getPropertyCount(CMPIInstance const* inst, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(inst, rc, CMPICount(0), [](Self& self) {
        return static_cast<CMPICount>(self.instance().properties().size());
    });
}

CMPIStatus setProperty(CMPIInstance const* inst, char const* name, CMPIValue const* value,
                       CMPIType type) {
    return BrokerStatus::onStatus<Self>(inst, [&](Self& self) {
        if (name == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "property name is null");
        }
        self.setProperty(name, ValueConverter::toCim(value, type));
    });
}

CMPIObjectPath* getObjectPath(CMPIInstance const* inst, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(inst, rc, static_cast<CMPIObjectPath*>(nullptr), [](Self& self) {
        return self.registry().make<BrokerObjectPath>(self.instance().path())->cmpi();
    });
}

CMPIStatus setPropertyFilter(CMPIInstance* inst, char const** propertyList, char const**) {
    return BrokerStatus::onStatus<Self>(inst, [&](Self& self) {
        if (propertyList == nullptr) {
            self.setFilter(std::nullopt);
            return;
        }
        std::vector<std::string> names;
        for (char const** p = propertyList; *p != nullptr; ++p) {
            names.emplace_back(*p);
        }
        self.setFilter(std::move(names));
    });
}

CMPIStatus setObjectPath(CMPIInstance* inst, CMPIObjectPath const* op) {
    return BrokerStatus::onStatus<Self>(inst, [&](Self& self) {
        BrokerObjectPath* path = BrokerObjectPath::from(op);
        if (path == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "path is not ours");
        }
        self.instance().setPath(path->path());
    });
}

CMPIStatus setPropertyWithOrigin(CMPIInstance const* inst, char const* name, CMPIValue const* value,
                                 CMPIType const type, char const*) {
    // The class origin is not kept: responses take it from the class repository.
    return setProperty(inst, name, value, type);
}

CMPIInstanceFT const instanceTable = {
    CMPICurrentVersion,   release,     clone,         getProperty,       getPropertyAt,
    getPropertyCount,     setProperty, getObjectPath, setPropertyFilter, setObjectPath,
    setPropertyWithOrigin};

} // namespace

BrokerInstance::BrokerInstance(ObjectRegistry& registry, CimInstance instance)
    : EncapsulatedObject(registry), _cmpi{this, &instanceTable}, _instance(std::move(instance)) {}

void BrokerInstance::setProperty(std::string_view name, CimValue value) {
    bool const isKey = _instance.path().key(name) != nullptr;
    if (_filter && !isKey) {
        bool listed = false;
        for (std::string const& n : *_filter) {
            listed = listed || CimName::equal(n, name);
        }
        if (!listed) {
            return;
        }
    }
    if (isKey)
        _instance.setKey(std::string(name), value);
    _instance.setProperty(name, std::move(value));
}

std::string BrokerInstance::describe() const {
    std::string out = "instance of " + _instance.className() + " {";
    for (auto const& p : _instance.properties()) {
        out += " " + p.name + "=";
        out +=
            p.value.isNull() ? "NULL"
            : (p.value.isArray() || p.value.type() == CMPI_ref || p.value.type() == CMPI_instance)
                ? CimValue::typeName(p.value.type())
                : p.value.toText();
        out += ";";
    }
    return out + " }";
}

BrokerInstance* BrokerInstance::from(CMPIInstance const* inst) {
    return (inst != nullptr && inst->ft == &instanceTable) ? static_cast<BrokerInstance*>(inst->hdl)
                                                           : nullptr;
}

} // namespace Cimom
