#pragma once

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimRequest.h"
#include "SubscriptionStore.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Cimom {

class ClassRepository;
class ProviderManager;

// The three classes through which a client subscribes to indications, in
// root/interop: CIM_IndicationFilter, CIM_ListenerDestinationCIMXML and
// CIM_IndicationSubscription. The object manager serves them itself from
// the SubscriptionStore, and keeps the indication providers' filters and
// switch in line with what is subscribed.
class SubscriptionOperations {
public:
    static constexpr char const* interopNamespace = "root/interop";
    static constexpr char const* filterClass = "CIM_IndicationFilter";
    static constexpr char const* destinationClass = "CIM_ListenerDestinationCIMXML";
    static constexpr char const* subscriptionClass = "CIM_IndicationSubscription";

    SubscriptionOperations(SubscriptionStore& store, ProviderManager& providers,
                           ClassRepository const& classes, std::string systemName);

    // Whether `cls` in `nameSpace` is one of the three or a class above one.
    bool serves(std::string const& nameSpace, std::string const& cls) const;
    // Errors are CimOperationError with the code DSP0200 gives.
    CimObjectPath create(CimRequest const& request);
    void remove(CimObjectPath const& path);
    CimInstance get(CimObjectPath const& path) const;
    std::vector<CimInstance> instances(std::string const& cls) const;

    // Brings the providers' activated filters and indication switch in line
    // with the subscriptions; at start, and after every change.
    void activate();

private:
    CimInstance _filterInstance(SubscriptionStore::Filter const& filter) const;
    CimInstance _destinationInstance(SubscriptionStore::Destination const& destination) const;
    CimInstance _subscriptionInstance(SubscriptionStore::Subscription const& subscription) const;
    CimObjectPath _systemPath(std::string const& cls, std::string const& systemName,
                              std::string const& name) const;

    SubscriptionStore& _store;
    ProviderManager& _providers;
    ClassRepository const& _classes;
    std::string _systemName;
    std::set<std::pair<std::string, std::string>> _activated; // (namespace, class)
    bool _enabled = false;
};

} // namespace Cimom
