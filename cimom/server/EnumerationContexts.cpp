#include "EnumerationContexts.h"

#include "CimOperationError.h"

#include <algorithm>
#include <cstdio>
#include <random>

namespace Cimom {

namespace {

// Enough to tell a client that its context ran out rather than never existed.
constexpr std::size_t rememberedExpired = 256;

[[noreturn]] void invalidContext(std::string const& id, std::string const& why) {
    throw CimOperationError(CimOperationError::invalidEnumerationContext,
                            "enumeration context " + id + " " + why);
}

} // namespace

EnumerationContexts::EnumerationContexts(std::size_t maxPerClient,
                                         std::function<Clock::time_point()> now)
    : _maxPerClient(maxPerClient), _now(std::move(now)), _salt(std::random_device{}()) {
    _salt = (_salt << 32) ^ std::random_device{}();
}

void EnumerationContexts::_expire(Clock::time_point now) {
    for (auto it = _contexts.begin(); it != _contexts.end();) {
        if (it->second.expires > now) {
            ++it;
            continue;
        }
        _expired.push_back(it->first);
        if (_expired.size() > rememberedExpired)
            _expired.pop_front();
        it = _contexts.erase(it);
    }
}

EnumerationContexts::Batch EnumerationContexts::open(Owner const& owner, Results results,
                                                     std::chrono::seconds timeout,
                                                     std::uint32_t max) {
    Context context{owner, std::move(results), 0, timeout, {}};
    Batch batch{_take(context, max), {}};
    if (context.next == context.results.objects.size())
        return batch; // nothing left to keep

    std::lock_guard lock(_mutex);
    Clock::time_point const now = _now();
    _expire(now);
    std::size_t held = std::count_if(_contexts.begin(), _contexts.end(), [&](auto const& entry) {
        return entry.second.owner.client == owner.client;
    });
    if (held >= _maxPerClient)
        throw CimOperationError(CimOperationError::serverLimitsExceeded,
                                std::to_string(held) +
                                    " enumeration contexts are open for this client (limit " +
                                    std::to_string(_maxPerClient) + "); close or finish one first");
    // The serial keeps names unique; the salt keeps them from being guessed.
    std::uint64_t const serial = ++_serial;
    char name[48];
    std::snprintf(name, sizeof name, "veldra-%llu-%016llx", static_cast<unsigned long long>(serial),
                  static_cast<unsigned long long>(_salt ^ (serial * 0x9e3779b97f4a7c15ULL)));
    context.expires = now + timeout;
    _compact(context);
    _contexts.emplace(name, std::move(context));
    batch.context = name;
    return batch;
}

EnumerationContexts::Context& EnumerationContexts::_find(Owner const& owner, std::string const& id,
                                                         Clock::time_point now) {
    _expire(now);
    auto found = _contexts.find(id);
    if (found == _contexts.end() || found->second.owner.client != owner.client) {
        if (std::find(_expired.begin(), _expired.end(), id) != _expired.end())
            invalidContext(id, "has expired: it was not used within its operation timeout");
        invalidContext(id, "is not open: unknown, closed or at its end");
    }
    Context& context = found->second;
    if (context.owner.nameSpace != owner.nameSpace)
        invalidContext(id, "belongs to namespace " + context.owner.nameSpace);
    context.expires = now + context.timeout;
    return context;
}

void EnumerationContexts::_compact(Context& context) {
    auto& objects = context.results.objects;
    if (context.next == 0 || context.next >= objects.size())
        return;
    std::size_t const cut = objects[context.next].begin;
    if (cut < context.results.text.size() / 2)
        return;
    context.results.text.erase(0, cut);
    objects.erase(objects.begin(), objects.begin() + static_cast<std::ptrdiff_t>(context.next));
    for (auto& span : objects) {
        span.begin -= cut;
        span.end -= cut;
    }
    context.next = 0;
    context.results.text.shrink_to_fit();
    objects.shrink_to_fit();
}

EnumerationContexts::Batch EnumerationContexts::pull(Owner const& owner, std::string const& id,
                                                     Kind kind, std::uint32_t max) {
    std::lock_guard lock(_mutex);
    Context& context = _find(owner, id, _now());
    if (context.results.kind != kind)
        invalidContext(id, kind == Kind::paths
                               ? "holds instances; pull them with PullInstancesWithPath"
                               : "holds paths; pull them with PullInstancePaths");
    Batch batch{_take(context, max), id};
    if (context.next == context.results.objects.size()) {
        _contexts.erase(id);
        batch.context.clear();
    } else {
        _compact(context);
    }
    return batch;
}

std::string EnumerationContexts::_take(Context& context, std::uint32_t max) {
    auto const& objects = context.results.objects;
    std::size_t const count = std::min<std::size_t>(max, objects.size() - context.next);
    if (count == 0)
        return {};
    std::size_t const begin = objects[context.next].begin;
    std::size_t const end = objects[context.next + count - 1].end;
    context.next += count;
    return context.results.text.substr(begin, end - begin);
}

std::uint64_t EnumerationContexts::remaining(Owner const& owner, std::string const& id) {
    std::lock_guard lock(_mutex);
    Context& context = _find(owner, id, _now());
    return context.results.objects.size() - context.next;
}

void EnumerationContexts::close(Owner const& owner, std::string const& id) {
    std::lock_guard lock(_mutex);
    _find(owner, id, _now());
    _contexts.erase(id);
}

std::size_t EnumerationContexts::openCount() const {
    std::lock_guard lock(_mutex);
    return _contexts.size();
}

} // namespace Cimom
