#pragma once
// What the entry points of both provider libraries share: the registry that
// builds a provider once and hands out references to it, and the shape of the
// four `_Generic_Create_*MI` functions. No exception leaves them.
#include "CmpiAssociationProvider.h"
#include "CmpiContext.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiMethodProvider.h"
#include "CmpiProvider.h"
#include "Logger.h"

#include <exception>
#include <map>
#include <pthread.h>
#include <string>

namespace QLN::ProviderEntry {

// Looks `name` up in `registry` under `mutex`, building the provider with
// `create` when there is none or when a terminating cleanup deleted it, and
// takes one reference outside the lock. A create that throws leaves the
// registry as it was; one that gives null (a name the library does not
// serve) stores nothing.
template <typename Create>
CmpiCpp::CmpiProvider* findOrCreate(std::map<std::string, CmpiCpp::CmpiProvider*>& registry,
                                    pthread_mutex_t& mutex, char const* name, Create create) {
    CmpiCpp::CmpiProvider* provider = nullptr;
    pthread_mutex_lock(&mutex);
    auto found = registry.find(std::string(name));
    if (found != registry.end() && !CmpiCpp::CmpiProvider::isLive(found->second)) {
        registry.erase(found);
        found = registry.end();
    }
    if (found != registry.end()) {
        provider = found->second;
    } else {
        try {
            provider = create();
        } catch (...) {
            pthread_mutex_unlock(&mutex);
            throw;
        }
        if (provider != nullptr)
            registry[std::string(name)] = provider;
    }
    pthread_mutex_unlock(&mutex);
    if (provider != nullptr)
        provider->incRefcount();
    return provider;
}

// One of the three error lines of the entry points for what `failure` holds.
void logFailure(Logger& logger, char const* entryPoint, char const* name,
                std::exception_ptr failure);

// One entry point: the provider that `find` gives, asked for the function
// table of `Interface`. A provider without that interface gets its reference
// back, so that its count still reaches zero.
template <typename Interface, typename MI, typename Find>
MI* createMI(char const* entryPoint, MI* (Interface::*accessor)(), char const* name, Find find) {
    if (name == nullptr)
        return nullptr;
    Logger logger{std::string(name)};
    CmpiCpp::CmpiProvider* provider = nullptr;
    try {
        provider = find();
    } catch (...) {
        logFailure(logger, entryPoint, name, std::current_exception());
        return nullptr;
    }
    Interface* wanted = provider != nullptr ? dynamic_cast<Interface*>(provider) : nullptr;
    if (wanted == nullptr) {
        if (provider != nullptr)
            CmpiCpp::CmpiProvider::releaseReference(provider, CmpiCpp::CmpiContext(), false);
        return nullptr;
    }
    try {
        return (wanted->*accessor)();
    } catch (...) {
        logFailure(logger, entryPoint, name, std::current_exception());
        return nullptr;
    }
}

} // namespace QLN::ProviderEntry

// The four exported symbols of a provider library, each handing its interface
// and accessor to createMI with `findFunction(broker, context, name)`. The
// status argument is not read: a failure is told by the null result and the log.
#define VELDRA_PROVIDER_ENTRY_POINT(Interface, MI, accessor, findFunction)                         \
    extern "C" __attribute__((visibility("default"))) CMPI##MI* _Generic_Create_##MI(              \
        CMPIBroker const* broker, CMPIContext const* context, char const* name, CMPIStatus*) {     \
        return QLN::ProviderEntry::createMI<CmpiCpp::Interface>(                                   \
            "_Generic_Create_" #MI, &CmpiCpp::Interface::accessor, name,                           \
            [&] { return findFunction(broker, context, name); });                                  \
    }
#define VELDRA_PROVIDER_ENTRY_POINTS(findFunction)                                                 \
    VELDRA_PROVIDER_ENTRY_POINT(CmpiInstanceProvider, InstanceMI, getInstanceMI, findFunction)     \
    VELDRA_PROVIDER_ENTRY_POINT(CmpiAssociationProvider, AssociationMI, getAssociationMI,          \
                                findFunction)                                                      \
    VELDRA_PROVIDER_ENTRY_POINT(CmpiMethodProvider, MethodMI, getMethodMI, findFunction)           \
    VELDRA_PROVIDER_ENTRY_POINT(CmpiIndicationProvider, IndicationMI, getIndicationMI, findFunction)
