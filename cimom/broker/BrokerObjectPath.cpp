#include "BrokerObjectPath.h"

#include "BrokerStatus.h"
#include "BrokerString.h"
#include "CimError.h"
#include "ObjectRegistry.h"
#include "ValueConverter.h"

namespace Cimom {

namespace {

using Self = BrokerObjectPath;

CMPIString* newString(Self& self, std::string const& s) {
    return self.registry().make<BrokerString>(s)->cmpi();
}

CMPIStatus release(CMPIObjectPath* op) {
    return BrokerStatus::onStatus<Self>(op, [](Self& self) { self.registry().release(&self); });
}

CMPIObjectPath* clone(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, static_cast<CMPIObjectPath*>(nullptr), [](Self& self) {
        return self.registry().makeDetached<Self>(self.path())->cmpi();
    });
}

char const* required(char const* s, char const* what) {
    if (s == nullptr) {
        throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, std::string(what) + " is null");
    }
    return s;
}

CMPIStatus setNameSpace(CMPIObjectPath* op, char const* ns) {
    return BrokerStatus::onStatus<Self>(
        op, [&](Self& self) { self.path().setNameSpace(ns ? ns : ""); });
}

CMPIString* getNameSpace(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, static_cast<CMPIString*>(nullptr), [](Self& self) {
        return newString(self, self.path().nameSpace());
    });
}

CMPIStatus setHostname(CMPIObjectPath* op, char const* hn) {
    return BrokerStatus::onStatus<Self>(op, [&](Self& self) { self.path().setHost(hn ? hn : ""); });
}

CMPIString* getHostname(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, static_cast<CMPIString*>(nullptr),
                                  [](Self& self) { return newString(self, self.path().host()); });
}

CMPIStatus setClassName(CMPIObjectPath* op, char const* cn) {
    return BrokerStatus::onStatus<Self>(
        op, [&](Self& self) { self.path().setClassName(required(cn, "class name")); });
}

CMPIString* getClassName(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, static_cast<CMPIString*>(nullptr), [](Self& self) {
        return newString(self, self.path().className());
    });
}

CMPIStatus addKey(CMPIObjectPath* op, char const* name, CMPIValue const* value,
                  CMPIType const type) {
    return BrokerStatus::onStatus<Self>(op, [&](Self& self) {
        self.path().addKey(required(name, "key name"), ValueConverter::toCim(value, type));
    });
}

CMPIData keyData(Self& self, CimValue const& v) {
    CMPIData d = ValueConverter::toData(self.registry(), v);
    d.state = static_cast<CMPIValueState>(d.state | CMPI_keyValue);
    return d;
}

CMPIData getKey(CMPIObjectPath const* op, char const* name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, ValueConverter::notFound(), [&](Self& self) {
        CimValue const* v = self.path().key(required(name, "key name"));
        if (v == nullptr) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY, std::string("no key ") + name);
        }
        return keyData(self, *v);
    });
}

CMPIData getKeyAt(CMPIObjectPath const* op, CMPICount index, CMPIString** name, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, ValueConverter::notFound(), [&](Self& self) {
        auto const& keys = self.path().keys();
        if (index >= keys.size()) {
            throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                           "key index " + std::to_string(index) + " out of range");
        }
        if (name != nullptr) {
            *name = newString(self, keys[index].name);
        }
        return keyData(self, keys[index].value);
    });
}

CMPICount getKeyCount(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, CMPICount(0), [](Self& self) {
        return static_cast<CMPICount>(self.path().keys().size());
    });
}

CMPIStatus setNameSpaceFromObjectPath(CMPIObjectPath* op, CMPIObjectPath const* src) {
    return BrokerStatus::onStatus<Self>(op, [&](Self& self) {
        Self* from = Self::from(src);
        if (from == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "source path is not ours");
        }
        self.path().setNameSpace(from->path().nameSpace());
    });
}

CMPIStatus setHostAndNameSpaceFromObjectPath(CMPIObjectPath* op, CMPIObjectPath const* src) {
    return BrokerStatus::onStatus<Self>(op, [&](Self& self) {
        Self* from = Self::from(src);
        if (from == nullptr) {
            throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "source path is not ours");
        }
        self.path().setNameSpace(from->path().nameSpace());
        self.path().setHost(from->path().host());
    });
}

// Qualifier access would need the class repository; no provider of ours asks.
CMPIData noQualifiers(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, ValueConverter::notFound(), [](Self&) -> CMPIData {
        throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "qualifiers are not available to providers");
    });
}
CMPIData getClassQualifier(CMPIObjectPath const* op, char const*, CMPIStatus* rc) {
    return noQualifiers(op, rc);
}
CMPIData getPropertyQualifier(CMPIObjectPath const* op, char const*, char const*, CMPIStatus* rc) {
    return noQualifiers(op, rc);
}
CMPIData getMethodQualifier(CMPIObjectPath const* op, char const*, char const*, CMPIStatus* rc) {
    return noQualifiers(op, rc);
}
CMPIData getParameterQualifier(CMPIObjectPath const* op, char const*, char const*, char const*,
                               CMPIStatus* rc) {
    return noQualifiers(op, rc);
}

CMPIString* toString(CMPIObjectPath const* op, CMPIStatus* rc) {
    return BrokerStatus::on<Self>(op, rc, static_cast<CMPIString*>(nullptr), [](Self& self) {
        return newString(self, self.path().toString());
    });
}

CMPIObjectPathFT const pathTable = {CMPICurrentVersion,
                                    release,
                                    clone,
                                    setNameSpace,
                                    getNameSpace,
                                    setHostname,
                                    getHostname,
                                    setClassName,
                                    getClassName,
                                    addKey,
                                    getKey,
                                    getKeyAt,
                                    getKeyCount,
                                    setNameSpaceFromObjectPath,
                                    setHostAndNameSpaceFromObjectPath,
                                    getClassQualifier,
                                    getPropertyQualifier,
                                    getMethodQualifier,
                                    getParameterQualifier,
                                    toString};

} // namespace

BrokerObjectPath::BrokerObjectPath(ObjectRegistry& registry, CimObjectPath path)
    : EncapsulatedObject(registry), _cmpi{this, &pathTable}, _path(std::move(path)) {}

BrokerObjectPath* BrokerObjectPath::from(CMPIObjectPath const* op) {
    return (op != nullptr && op->ft == &pathTable) ? static_cast<BrokerObjectPath*>(op->hdl)
                                                   : nullptr;
}

} // namespace Cimom
