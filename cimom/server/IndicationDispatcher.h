#pragma once

#include "IndicationSink.h"
#include "ListenerQueue.h"
#include "SubscriptionStore.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace Cimom {

// Where providers' indications go in veldra-cimd: each one is matched
// against the subscriptions (source namespace, class or subclass of the
// filter's class, WHERE clause) and queued for every matching destination.
// Delivery never blocks the provider's thread.
class IndicationDispatcher : public IndicationSink {
public:
    using ClassIsA = std::function<bool(std::string const& nameSpace, std::string const& cls,
                                        std::string const& base)>;

    IndicationDispatcher(SubscriptionStore const& store, ClassIsA classIsA,
                         ListenerQueue::Settings settings, ListenerQueue::Sender sender = nullptr);

    void deliver(std::string const& nameSpace, CimInstance const& indication) override;
    // Indications queued and not yet sent, over all destinations.
    std::size_t pending() const;

private:
    ListenerQueue& _queueFor(std::string const& url);

    SubscriptionStore const& _store;
    ClassIsA _classIsA;
    ListenerQueue::Settings _settings;
    ListenerQueue::Sender _sender;
    mutable std::mutex _mutex;
    std::map<std::string, std::unique_ptr<ListenerQueue>> _queues; // by URL
};

} // namespace Cimom
