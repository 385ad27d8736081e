#include "LoadedProvider.h"

#include <dlfcn.h>

#include "Broker.h"
#include "BrokerContext.h"
#include "BrokerStatus.h"
#include "CimError.h"

namespace Cimom {

namespace {

using Factory = void* (*)(CMPIBroker const*, CMPIContext const*, char const*, CMPIStatus*);

char const* entryPoint(ProviderRegistration::Kind kind) {
    switch (kind) {
    case ProviderRegistration::Kind::Instance:
        return "_Generic_Create_InstanceMI";
    case ProviderRegistration::Kind::Association:
        return "_Generic_Create_AssociationMI";
    case ProviderRegistration::Kind::Method:
        return "_Generic_Create_MethodMI";
    case ProviderRegistration::Kind::Indication:
        return "_Generic_Create_IndicationMI";
    }
    return "";
}

} // namespace

LoadedProvider::LoadedProvider(ProviderRegistration const& registration,
                               std::string const& libraryFile, Broker& broker)
    : _registration(registration), _libraryFile(libraryFile), _broker(broker) {
    dlerror();
    _handle = dlopen(libraryFile.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (_handle == nullptr) {
        char const* why = dlerror();
        throw CimError(CMPI_RC_ERR_FAILED, "provider " + registration.name + ": cannot load " +
                                               libraryFile + ": " + (why ? why : "unknown reason"));
    }
    try {
        for (ProviderRegistration::Kind kind : registration.kinds) {
            _create(kind);
        }
    } catch (...) {
        shutdown();
        throw;
    }
}

LoadedProvider::~LoadedProvider() {
    shutdown();
}

void* LoadedProvider::_entry(char const* symbol) {
    dlerror();
    void* entry = dlsym(_handle, symbol);
    if (entry == nullptr) {
        throw CimError(CMPI_RC_ERR_FAILED, "provider " + _registration.name + ": " + _libraryFile +
                                               " has no entry point " + symbol);
    }
    return entry;
}

void LoadedProvider::_create(ProviderRegistration::Kind kind) {
    char const* symbol = entryPoint(kind);
    auto factory = reinterpret_cast<Factory>(_entry(symbol));
    ObjectRegistry::Scope scope(_broker.registry());
    BrokerContext* ctx = _broker.newContext(_registration.namespaces.front(), 0);
    // Status pre-set to OK: a provider that sets anything else failed.
    CMPIStatus status = BrokerStatus::ok();
    void* mi = factory(_broker.cmpi(), ctx->cmpi(), _registration.name.c_str(), &status);
    std::string const prefix = "provider " + _registration.name + ": " + symbol;
    if (status.rc != CMPI_RC_OK) {
        std::string const msg = BrokerStatus::message(status);
        throw CimError(CMPI_RC_ERR_FAILED, prefix + " failed with status " +
                                               std::to_string(status.rc) +
                                               (msg.empty() ? "" : ": " + msg));
    }
    if (mi == nullptr) {
        throw CimError(CMPI_RC_ERR_FAILED, prefix + " returned no function table");
    }
    // Every MI struct starts with {hdl, ft}.
    if (static_cast<CMPIInstanceMI*>(mi)->ft == nullptr) {
        throw CimError(CMPI_RC_ERR_FAILED, prefix + " returned an MI without a function table");
    }
    switch (kind) {
    case ProviderRegistration::Kind::Instance:
        _instance = static_cast<CMPIInstanceMI*>(mi);
        break;
    case ProviderRegistration::Kind::Association:
        _association = static_cast<CMPIAssociationMI*>(mi);
        break;
    case ProviderRegistration::Kind::Method:
        _method = static_cast<CMPIMethodMI*>(mi);
        break;
    case ProviderRegistration::Kind::Indication:
        _indication = static_cast<CMPIIndicationMI*>(mi);
        break;
    }
}

void LoadedProvider::shutdown() {
    if (_handle == nullptr) {
        return;
    }
    {
        ObjectRegistry::Scope scope(_broker.registry());
        BrokerContext* ctx = _broker.newContext(_registration.namespaces.front(), 0);
        auto report = [&](char const* which, CMPIStatus st) {
            if (st.rc != CMPI_RC_OK && st.rc != CMPI_RC_DO_NOT_UNLOAD &&
                st.rc != CMPI_RC_NEVER_UNLOAD) {
                _broker.log(CMPI_SEV_WARNING, "provider " + _registration.name + ": " + which +
                                                  " cleanup answered " + std::to_string(st.rc) +
                                                  " " + BrokerStatus::message(st));
            }
        };
        // terminating=true: the object manager is going, the provider must let go.
        if (_instance && _instance->ft->cleanup) {
            report("instance", _instance->ft->cleanup(_instance, ctx->cmpi(), 1));
        }
        if (_association && _association->ft->cleanup) {
            report("association", _association->ft->cleanup(_association, ctx->cmpi(), 1));
        }
        if (_method && _method->ft->cleanup) {
            report("method", _method->ft->cleanup(_method, ctx->cmpi(), 1));
        }
        if (_indication && _indication->ft->cleanup) {
            report("indication", _indication->ft->cleanup(_indication, ctx->cmpi(), 1));
        }
    }
    _instance = nullptr;
    _association = nullptr;
    _method = nullptr;
    _indication = nullptr;
    dlclose(_handle);
    _handle = nullptr;
}

} // namespace Cimom
