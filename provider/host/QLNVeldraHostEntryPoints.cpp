// The four symbols an object manager resolves for "QLNVeldraHost". The host
// provider serves instances only; asked for another interface, the entry point
// hands back null, which tells the object manager that this library has none.
#include "CmpiBroker.h"
#include "CmpiName.h"
#include "Logger.h"
#include "ProviderEntry.h"
#include "QLNVeldraHostProvider.h"
#include "cmpift.h"

#include <map>
#include <pthread.h>
#include <string>

namespace {

char const* const providerName = "QLNVeldraHost";

pthread_mutex_t providerRegistryMutex = PTHREAD_MUTEX_INITIALIZER;

CmpiCpp::CmpiProvider* createHostProvider(CMPIBroker const* broker, char const* name) {
    if (!(CmpiCpp::CmpiName(name) == CmpiCpp::CmpiName(providerName)))
        return nullptr;
    static Logger providerLogger{std::string(providerName)};
    return new QLN::QLNVeldraHostProvider(CmpiCpp::CmpiBroker(broker), providerLogger);
}

CmpiCpp::CmpiProvider* findOrCreateProvider(CMPIBroker const* broker, CMPIContext const*,
                                            char const* name) {
    // Does not own the provider; the object manager's references do.
    static std::map<std::string, CmpiCpp::CmpiProvider*> providerRegistry;
    return QLN::ProviderEntry::findOrCreate(providerRegistry, providerRegistryMutex, name,
                                            [&] { return createHostProvider(broker, name); });
}

} // namespace

VELDRA_PROVIDER_ENTRY_POINTS(findOrCreateProvider)
