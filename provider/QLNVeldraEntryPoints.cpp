// The four symbols an object manager resolves, and the registry that lets
// them share one provider object tree. No exception leaves this file.
#include "AutostartDecorator.h"
#include "CmpiAssociationProvider.h"
#include "CmpiBroker.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiMethodProvider.h"
#include "CmpiName.h"
#include "CmpiStatus.h"
#include "LoggedProvider.h"
#include "Logger.h"
#include "PerfmonDecorator.h"
#include "QLNUtil.h"
#include "QLNVeldraProvider.h"
#include "QLN_AutoStartVeldra.h"
#include "cmpift.h"

#include <pthread.h>
#include <exception>
#include <map>
#include <string>

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiProvider;

namespace {

char const* const providerName = "QLNVeldra";
char const* const providerNameSpace = "root/mwq";
// The product's display name; kept beside the other two, read by nothing.
[[maybe_unused]] char const* const providerDisplayName = "MW Veldra";

pthread_mutex_t providerRegistryMutex = PTHREAD_MUTEX_INITIALIZER;

CmpiProvider* createVeldraProvider(CmpiBroker const& broker, Logger& logger) {
    return new QLN::QLNVeldraProvider(broker, logger);
}

CmpiProvider* createPerfmonProvider(CmpiBroker const& broker, Logger& logger) {
    return new QLN::PerfmonDecorator(broker, logger, createVeldraProvider);
}

CmpiProvider* createAutostartProvider(CmpiBroker const& broker, Logger& logger) {
    QLN::CmpiManagedInstance* autostart = new QLN::QLN_AutoStartVeldra(logger, providerNameSpace);
    QLN::ProviderFactory inner = QLN::QLNUtil::PerfmonEnabled() ? createPerfmonProvider : createVeldraProvider;
    return new QLN::AutostartDecorator(broker, logger, autostart, inner);
}

CmpiProvider* createLoggedProvider(CMPIBroker const* broker, CMPIContext const*, char const* name) {
    if (!(CmpiCpp::CmpiName(name) == CmpiCpp::CmpiName(providerName))) {
        return nullptr;
    }
    // The logger all others are copied from, named after the first caller.
    static Logger providerLogger{std::string(name)};
    CmpiBroker const wrapped(broker);
    return new QLN::LoggedProvider(wrapped, providerLogger, createAutostartProvider);
}

CmpiProvider* findOrCreateProvider(CMPIBroker const* broker, CMPIContext const* context, char const* name) {
    // Does not own the providers; the object managers' references do.
    static std::map<std::string, CmpiProvider*> providerRegistry;
    CmpiProvider* provider = nullptr;
    pthread_mutex_lock(&providerRegistryMutex);
    auto found = providerRegistry.find(std::string(name));
    // A terminating cleanup deletes the provider whatever references the
    // object manager still holds; the next caller builds a new one.
    if (found != providerRegistry.end() && !CmpiProvider::isLive(found->second)) {
        providerRegistry.erase(found);
        found = providerRegistry.end();
    }
    if (found != providerRegistry.end()) {
        provider = found->second;
    } else {
        try {
            provider = createLoggedProvider(broker, context, name);
        } catch (...) {
            pthread_mutex_unlock(&providerRegistryMutex);
            throw;
        }
        if (provider != nullptr) {
            providerRegistry[std::string(name)] = provider;
        }
    }
    pthread_mutex_unlock(&providerRegistryMutex);
    if (provider != nullptr) {
        provider->incRefcount();
    }
    return provider;
}

void logFailure(Logger& logger, char const* entryPoint, char const* name, std::exception_ptr failure) {
    try {
        std::rethrow_exception(failure);
    } catch (CmpiCpp::CmpiStatus const& status) {
        logger.error("%s: %s constructor threw CmpiStatus exception: %s", entryPoint, name, status.str().c_str());
    } catch (std::exception const& e) {
        logger.error("%s: %s constructor threw std::exception: %s", entryPoint, name, e.what());
    } catch (...) {
        logger.error("%s: %s constructor threw unknown exception", entryPoint, name);
    }
}

// The shape all four entry points share; Interface is the provider interface
// asked for, accessor the member that hands out its function table.
template <typename Interface, typename MI>
MI* createMI(char const* entryPoint, MI* (Interface::*accessor)(), CMPIBroker const* broker,
             CMPIContext const* context, char const* name) {
    Logger logger{std::string(name != nullptr ? name : "")};
    if (name == nullptr) {
        return nullptr;
    }
    CmpiProvider* provider = nullptr;
    try {
        provider = findOrCreateProvider(broker, context, name);
    } catch (...) {
        logFailure(logger, entryPoint, name, std::current_exception());
        return nullptr;
    }
    Interface* wanted = provider != nullptr ? dynamic_cast<Interface*>(provider) : nullptr;
    if (wanted == nullptr) {
        return nullptr;
    }
    try {
        return (wanted->*accessor)();
    } catch (...) {
        logFailure(logger, entryPoint, name, std::current_exception());
        return nullptr;
    }
}

} // namespace

#define VELDRA_EXPORT extern "C" __attribute__((visibility("default")))

// The status argument of the generic factories is not read: a failure is
// told by the null result and the log.
VELDRA_EXPORT CMPIInstanceMI* _Generic_Create_InstanceMI(CMPIBroker const* broker, CMPIContext const* context,
                                                         char const* name, CMPIStatus*) {
    return createMI<CmpiCpp::CmpiInstanceProvider>("_Generic_Create_InstanceMI",
                                                    &CmpiCpp::CmpiInstanceProvider::getInstanceMI, broker,
                                                    context, name);
}

VELDRA_EXPORT CMPIAssociationMI* _Generic_Create_AssociationMI(CMPIBroker const* broker,
                                                               CMPIContext const* context, char const* name,
                                                               CMPIStatus*) {
    return createMI<CmpiCpp::CmpiAssociationProvider>("_Generic_Create_AssociationMI",
                                                       &CmpiCpp::CmpiAssociationProvider::getAssociationMI,
                                                       broker, context, name);
}

VELDRA_EXPORT CMPIMethodMI* _Generic_Create_MethodMI(CMPIBroker const* broker, CMPIContext const* context,
                                                     char const* name, CMPIStatus*) {
    return createMI<CmpiCpp::CmpiMethodProvider>("_Generic_Create_MethodMI",
                                                  &CmpiCpp::CmpiMethodProvider::getMethodMI, broker, context,
                                                  name);
}

VELDRA_EXPORT CMPIIndicationMI* _Generic_Create_IndicationMI(CMPIBroker const* broker, CMPIContext const* context,
                                                             char const* name, CMPIStatus*) {
    return createMI<CmpiCpp::CmpiIndicationProvider>("_Generic_Create_IndicationMI",
                                                      &CmpiCpp::CmpiIndicationProvider::getIndicationMI, broker,
                                                      context, name);
}
