#include "IndicationDispatcher.h"

#include "CimName.h"

#include <set>

namespace Cimom {

IndicationDispatcher::IndicationDispatcher(SubscriptionStore const& store, ClassIsA classIsA,
                                           ListenerQueue::Settings settings,
                                           ListenerQueue::Sender sender)
    : _store(store), _classIsA(std::move(classIsA)), _settings(settings),
      _sender(std::move(sender)) {}

void IndicationDispatcher::deliver(std::string const& nameSpace, CimInstance const& indication) {
    std::set<std::string> sentTo; // two filters of one destination send once
    for (auto const& each : _store.active()) {
        auto const& filter = each.filter;
        if (!filter.sourceNamespace.empty() && !CimName::equal(filter.sourceNamespace, nameSpace))
            continue;
        if (!CimName::equal(filter.wql.className(), indication.className()) &&
            !(_classIsA && _classIsA(nameSpace, indication.className(), filter.wql.className())))
            continue;
        if (!filter.wql.matches(indication))
            continue;
        if (!sentTo.insert(each.destination.url).second)
            continue;
        _queueFor(each.destination.url).push(indication);
    }
}

ListenerQueue& IndicationDispatcher::_queueFor(std::string const& url) {
    std::lock_guard lock(_mutex);
    auto& queue = _queues[url];
    if (!queue)
        queue = std::make_unique<ListenerQueue>(url, _settings, _sender);
    return *queue;
}

std::size_t IndicationDispatcher::pending() const {
    std::lock_guard lock(_mutex);
    std::size_t total = 0;
    for (auto const& [url, queue] : _queues)
        total += queue->pending();
    return total;
}

} // namespace Cimom
