// The four symbols an object manager resolves for "QLNVeldra", and how they
// build the one provider object tree they share.
#include "AutostartDecorator.h"
#include "CmpiBroker.h"
#include "CmpiName.h"
#include "LoggedProvider.h"
#include "Logger.h"
#include "PerfmonDecorator.h"
#include "ProviderEntry.h"
#include "QLNUtil.h"
#include "QLNVeldraProvider.h"
#include "QLN_AutoStartVeldra.h"
#include "cmpift.h"

#include <map>
#include <pthread.h>
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
    QLN::ProviderFactory inner =
        QLN::QLNUtil::PerfmonEnabled() ? createPerfmonProvider : createVeldraProvider;
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

CmpiProvider* findOrCreateProvider(CMPIBroker const* broker, CMPIContext const* context,
                                   char const* name) {
    // Does not own the providers; the object managers' references do.
    static std::map<std::string, CmpiProvider*> providerRegistry;
    return QLN::ProviderEntry::findOrCreate(providerRegistry, providerRegistryMutex, name, [&] {
        return createLoggedProvider(broker, context, name);
    });
}

} // namespace

VELDRA_PROVIDER_ENTRY_POINTS(findOrCreateProvider)
