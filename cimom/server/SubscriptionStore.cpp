#include "SubscriptionStore.h"

#include "CimName.h"
#include "ServerLog.h"

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>

namespace Cimom {

using nlohmann::json;

namespace {

template <class T> auto byName(std::vector<T>& list, std::string const& name) {
    return std::find_if(list.begin(), list.end(),
                        [&](T const& each) { return CimName::equal(each.name, name); });
}

} // namespace

SubscriptionStore::SubscriptionStore(std::string stateFile) : _stateFile(std::move(stateFile)) {
    if (!_stateFile.empty())
        _load();
}

void SubscriptionStore::_load() {
    std::ifstream in(_stateFile);
    if (!in)
        return; // nothing saved yet
    try {
        json state = json::parse(in);
        for (auto const& f : state.at("filters")) {
            Filter filter;
            filter.name = f.at("name");
            filter.systemName = f.value("systemName", "");
            filter.query = f.at("query");
            filter.queryLanguage = f.value("queryLanguage", "WQL");
            filter.sourceNamespace = f.value("sourceNamespace", "");
            filter.wql = WqlFilter::parse(filter.query);
            _filters.push_back(std::move(filter));
        }
        for (auto const& d : state.at("destinations"))
            _destinations.push_back({d.at("name"), d.value("systemName", ""), d.at("url")});
        for (auto const& s : state.at("subscriptions")) {
            Subscription subscription{s.at("filter"), s.at("destination")};
            if (byName(_filters, subscription.filter) == _filters.end() ||
                byName(_destinations, subscription.destination) == _destinations.end())
                throw std::invalid_argument("subscription of " + subscription.filter +
                                            " names a missing end");
            _subscriptions.push_back(std::move(subscription));
        }
        ServerLog::info("subscriptions: " + std::to_string(_subscriptions.size()) +
                        " restored from " + _stateFile);
    } catch (std::exception const& e) {
        // Serving without the subscriptions beats not serving; the file is kept for a look.
        _filters.clear();
        _destinations.clear();
        _subscriptions.clear();
        std::error_code ignored;
        std::filesystem::rename(_stateFile, _stateFile + ".broken", ignored);
        ServerLog::error("subscriptions: cannot read " + _stateFile + " (moved to " + _stateFile +
                         ".broken): " + e.what());
    }
}

void SubscriptionStore::_save() const {
    if (_stateFile.empty())
        return;
    json state{{"filters", json::array()},
               {"destinations", json::array()},
               {"subscriptions", json::array()}};
    for (auto const& f : _filters)
        state["filters"].push_back({{"name", f.name},
                                    {"systemName", f.systemName},
                                    {"query", f.query},
                                    {"queryLanguage", f.queryLanguage},
                                    {"sourceNamespace", f.sourceNamespace}});
    for (auto const& d : _destinations)
        state["destinations"].push_back(
            {{"name", d.name}, {"systemName", d.systemName}, {"url", d.url}});
    for (auto const& s : _subscriptions)
        state["subscriptions"].push_back({{"filter", s.filter}, {"destination", s.destination}});
    std::string text = state.dump(2) + "\n";
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(_stateFile).parent_path(), ec);
    std::string temp = _stateFile + ".XXXXXX";
    int fd = ::mkstemp(temp.data());
    if (fd < 0)
        throw std::runtime_error("cannot save subscriptions beside " + _stateFile + ": " +
                                 std::strerror(errno));
    bool ok = ::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
              ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (!ok || ::rename(temp.c_str(), _stateFile.c_str()) != 0) {
        int saved = errno;
        ::unlink(temp.c_str());
        throw std::runtime_error("cannot save subscriptions to " + _stateFile + ": " +
                                 std::strerror(saved));
    }
}

// Each change is made on a copy of the list, saved, and only then kept.
template <class T, class Change>
static void changeSaved(std::vector<T>& list, Change&& change, std::function<void()> const& save) {
    std::vector<T> before = list;
    change(list);
    try {
        save();
    } catch (...) {
        list = std::move(before);
        throw;
    }
}

void SubscriptionStore::addFilter(Filter filter) {
    std::lock_guard lock(_mutex);
    if (byName(_filters, filter.name) != _filters.end())
        throw std::invalid_argument("a filter named " + filter.name + " exists");
    changeSaved(
        _filters, [&](auto& list) { list.push_back(std::move(filter)); }, [this] { _save(); });
}

void SubscriptionStore::addDestination(Destination destination) {
    std::lock_guard lock(_mutex);
    if (byName(_destinations, destination.name) != _destinations.end())
        throw std::invalid_argument("a destination named " + destination.name + " exists");
    changeSaved(
        _destinations, [&](auto& list) { list.push_back(std::move(destination)); },
        [this] { _save(); });
}

void SubscriptionStore::addSubscription(Subscription subscription) {
    std::lock_guard lock(_mutex);
    if (byName(_filters, subscription.filter) == _filters.end())
        throw std::invalid_argument("no filter named " + subscription.filter);
    if (byName(_destinations, subscription.destination) == _destinations.end())
        throw std::invalid_argument("no destination named " + subscription.destination);
    for (auto const& s : _subscriptions)
        if (CimName::equal(s.filter, subscription.filter) &&
            CimName::equal(s.destination, subscription.destination))
            throw std::invalid_argument("this subscription exists");
    changeSaved(
        _subscriptions, [&](auto& list) { list.push_back(std::move(subscription)); },
        [this] { _save(); });
}

bool SubscriptionStore::removeFilter(std::string const& name) {
    std::lock_guard lock(_mutex);
    auto found = byName(_filters, name);
    if (found == _filters.end())
        return false;
    for (auto const& s : _subscriptions)
        if (CimName::equal(s.filter, name))
            throw std::invalid_argument("filter " + name + " is still subscribed");
    auto at = found - _filters.begin();
    changeSaved(
        _filters, [&](auto& list) { list.erase(list.begin() + at); }, [this] { _save(); });
    return true;
}

bool SubscriptionStore::removeDestination(std::string const& name) {
    std::lock_guard lock(_mutex);
    auto found = byName(_destinations, name);
    if (found == _destinations.end())
        return false;
    for (auto const& s : _subscriptions)
        if (CimName::equal(s.destination, name))
            throw std::invalid_argument("destination " + name + " is still subscribed");
    auto at = found - _destinations.begin();
    changeSaved(
        _destinations, [&](auto& list) { list.erase(list.begin() + at); }, [this] { _save(); });
    return true;
}

bool SubscriptionStore::removeSubscription(std::string const& filter,
                                           std::string const& destination) {
    std::lock_guard lock(_mutex);
    auto found =
        std::find_if(_subscriptions.begin(), _subscriptions.end(), [&](Subscription const& s) {
            return CimName::equal(s.filter, filter) && CimName::equal(s.destination, destination);
        });
    if (found == _subscriptions.end())
        return false;
    auto at = found - _subscriptions.begin();
    changeSaved(
        _subscriptions, [&](auto& list) { list.erase(list.begin() + at); }, [this] { _save(); });
    return true;
}

std::vector<SubscriptionStore::Filter> SubscriptionStore::filters() const {
    std::lock_guard lock(_mutex);
    return _filters;
}

std::vector<SubscriptionStore::Destination> SubscriptionStore::destinations() const {
    std::lock_guard lock(_mutex);
    return _destinations;
}

std::vector<SubscriptionStore::Subscription> SubscriptionStore::subscriptions() const {
    std::lock_guard lock(_mutex);
    return _subscriptions;
}

std::vector<SubscriptionStore::Active> SubscriptionStore::active() const {
    std::lock_guard lock(_mutex);
    std::vector<Active> out;
    for (auto const& s : _subscriptions) {
        auto filter = std::find_if(_filters.begin(), _filters.end(), [&](Filter const& f) {
            return CimName::equal(f.name, s.filter);
        });
        auto destination =
            std::find_if(_destinations.begin(), _destinations.end(), [&](Destination const& d) {
                return CimName::equal(d.name, s.destination);
            });
        if (filter != _filters.end() && destination != _destinations.end())
            out.push_back({*filter, *destination});
    }
    return out;
}

} // namespace Cimom
