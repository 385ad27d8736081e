// The four symbols an object manager resolves for "QLNVeldraHost". The host
// provider serves instances only; the other three hand back null, which tells
// the object manager that this library has no such interface. No exception
// leaves this file.
#include "CmpiAssociationProvider.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiMethodProvider.h"
#include "CmpiName.h"
#include "CmpiStatus.h"
#include "Logger.h"
#include "QLNVeldraHostProvider.h"
#include "cmpift.h"

#include <exception>
#include <mutex>
#include <string>

namespace {

char const* const providerName = "QLNVeldraHost";

std::mutex providerMutex;
// The one provider object while some function table holds it; the provider
// clears this when its last reference goes.
QLN::QLNVeldraHostProvider* provider = nullptr;

void forgetProvider() {
    // Called from the provider's cleanup, which runs outside providerMutex
    // (the object manager's cleanup call), so taking it here is safe.
    std::lock_guard lock(providerMutex);
    provider = nullptr;
}

CmpiCpp::CmpiProvider* findOrCreateProvider(CMPIBroker const* broker, char const* name) {
    if (!(CmpiCpp::CmpiName(name) == CmpiCpp::CmpiName(providerName))) {
        return nullptr;
    }
    std::lock_guard lock(providerMutex);
    if (provider == nullptr) {
        static Logger providerLogger{std::string(providerName)};
        provider = new QLN::QLNVeldraHostProvider(CmpiCpp::CmpiBroker(broker), providerLogger);
        provider->setOnCleanup(forgetProvider);
    }
    provider->incRefcount();
    return provider;
}

template <typename Interface, typename MI>
MI* createMI(char const* entryPoint, MI* (Interface::*accessor)(), CMPIBroker const* broker,
             char const* name) {
    if (name == nullptr) {
        return nullptr;
    }
    Logger logger{std::string(name)};
    CmpiCpp::CmpiProvider* found = nullptr;
    try {
        found = findOrCreateProvider(broker, name);
        Interface* wanted = dynamic_cast<Interface*>(found);
        if (wanted == nullptr) {
            if (found != nullptr) {
                // Not this interface: give back the reference just taken.
                CmpiCpp::CmpiProvider::releaseReference(found, CmpiCpp::CmpiContext(), false);
            }
            return nullptr;
        }
        return (wanted->*accessor)();
    } catch (CmpiCpp::CmpiStatus const& status) {
        logger.error("%s: %s constructor threw CmpiStatus exception: %s", entryPoint, name,
                     status.str().c_str());
    } catch (std::exception const& e) {
        logger.error("%s: %s constructor threw std::exception: %s", entryPoint, name, e.what());
    } catch (...) {
        logger.error("%s: %s constructor threw unknown exception", entryPoint, name);
    }
    return nullptr;
}

} // namespace

#define VELDRA_EXPORT extern "C" __attribute__((visibility("default")))

VELDRA_EXPORT CMPIInstanceMI* _Generic_Create_InstanceMI(CMPIBroker const* broker,
                                                         CMPIContext const*, char const* name,
                                                         CMPIStatus*) {
    return createMI<CmpiCpp::CmpiInstanceProvider>(
        "_Generic_Create_InstanceMI", &CmpiCpp::CmpiInstanceProvider::getInstanceMI, broker, name);
}

VELDRA_EXPORT CMPIAssociationMI* _Generic_Create_AssociationMI(CMPIBroker const* broker,
                                                               CMPIContext const*, char const* name,
                                                               CMPIStatus*) {
    return createMI<CmpiCpp::CmpiAssociationProvider>(
        "_Generic_Create_AssociationMI", &CmpiCpp::CmpiAssociationProvider::getAssociationMI,
        broker, name);
}

VELDRA_EXPORT CMPIMethodMI* _Generic_Create_MethodMI(CMPIBroker const* broker, CMPIContext const*,
                                                     char const* name, CMPIStatus*) {
    return createMI<CmpiCpp::CmpiMethodProvider>(
        "_Generic_Create_MethodMI", &CmpiCpp::CmpiMethodProvider::getMethodMI, broker, name);
}

VELDRA_EXPORT CMPIIndicationMI* _Generic_Create_IndicationMI(CMPIBroker const* broker,
                                                             CMPIContext const*, char const* name,
                                                             CMPIStatus*) {
    return createMI<CmpiCpp::CmpiIndicationProvider>(
        "_Generic_Create_IndicationMI", &CmpiCpp::CmpiIndicationProvider::getIndicationMI, broker,
        name);
}
