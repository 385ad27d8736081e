#pragma once

#include "WqlFilter.h"

#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace Cimom {

// The indication filters, listener destinations and subscriptions that
// clients created, kept in a state file so that they outlive a restart.
// Every change is written (temporary file and rename) before it counts: a
// change that cannot be saved is refused and memory stays as it was.
class SubscriptionStore {
public:
    struct Filter {
        std::string name;
        std::string systemName;
        std::string query;
        std::string queryLanguage = "WQL";
        std::string sourceNamespace;
        WqlFilter wql;
    };
    struct Destination {
        std::string name;
        std::string systemName;
        std::string url;
    };
    struct Subscription {
        std::string filter;      // filter's Name
        std::string destination; // destination's Name
    };
    // A subscription with its two ends, as delivery needs it.
    struct Active {
        Filter filter;
        Destination destination;
    };

    // An empty path keeps everything in memory only. A state file that
    // cannot be read is logged and set aside as "<file>.broken".
    explicit SubscriptionStore(std::string stateFile);

    // Each throws std::invalid_argument when the name is taken or an end is
    // missing, std::runtime_error when the state cannot be saved.
    void addFilter(Filter filter);
    void addDestination(Destination destination);
    void addSubscription(Subscription subscription);
    // False when there is no such object; std::invalid_argument when a
    // subscription still uses it.
    bool removeFilter(std::string const& name);
    bool removeDestination(std::string const& name);
    bool removeSubscription(std::string const& filter, std::string const& destination);

    std::vector<Filter> filters() const;
    std::vector<Destination> destinations() const;
    std::vector<Subscription> subscriptions() const;
    std::vector<Active> active() const;

private:
    void _load();
    void _save() const; // under _mutex

    std::string _stateFile;
    mutable std::mutex _mutex;
    std::vector<Filter> _filters;
    std::vector<Destination> _destinations;
    std::vector<Subscription> _subscriptions;
};

} // namespace Cimom
