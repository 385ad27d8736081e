#pragma once

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimRequest.h"
#include "SubscriptionStore.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

class ClassRepository;
class ProviderManager;

// The three classes through which a client subscribes to indications, in
// root/interop: CIM_IndicationFilter, CIM_ListenerDestinationCIMXML and
// CIM_IndicationSubscription. The object manager serves them itself from
// the SubscriptionStore, and keeps the indication providers' filters and
// switch in line with what is subscribed.
class SubscriptionOperations {
public:
    static constexpr const char* interopNamespace = "root/interop";
    static constexpr const char* filterClass = "CIM_IndicationFilter";
    static constexpr const char* destinationClass = "CIM_ListenerDestinationCIMXML";
    static constexpr const char* subscriptionClass = "CIM_IndicationSubscription";

    SubscriptionOperations(SubscriptionStore& store, ProviderManager& providers, const ClassRepository& classes,
                           std::string systemName);

    // Whether `cls` in `nameSpace` is one of the three or a class above one.
    bool serves(const std::string& nameSpace, const std::string& cls) const;
    // Errors are CimOperationError with the code DSP0200 gives.
    CimObjectPath create(const CimRequest& request);
    void remove(const CimObjectPath& path);
    CimInstance get(const CimObjectPath& path) const;
    std::vector<CimInstance> instances(const std::string& cls) const;

    // Brings the providers' activated filters and indication switch in line
    // with the subscriptions; at start, and after every change.
    void activate();

private:
    CimInstance _filterInstance(const SubscriptionStore::Filter& filter) const;
    CimInstance _destinationInstance(const SubscriptionStore::Destination& destination) const;
    CimInstance _subscriptionInstance(const SubscriptionStore::Subscription& subscription) const;
    CimObjectPath _systemPath(const std::string& cls, const std::string& systemName, const std::string& name) const;

    SubscriptionStore& _store;
    ProviderManager& _providers;
    const ClassRepository& _classes;
    std::string _systemName;
    std::set<std::pair<std::string, std::string>> _activated;  // (namespace, class)
    bool _enabled = false;
};
