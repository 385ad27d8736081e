#include "SubscriptionOperations.h"

#include "CimError.h"
#include "CimName.h"
#include "CimOperationError.h"
#include "ClassRepository.h"
#include "InstanceXml.h"
#include "ProviderManager.h"
#include "ServerLog.h"

#include <atomic>
#include <chrono>
#include <stdexcept>

namespace Cimom {

namespace {

[[noreturn]] void fail(int code, std::string const& what) {
    throw CimOperationError(code, what);
}

constexpr char const* systemClass = "CIM_ComputerSystem";

std::string textOf(CimInstance const& instance, char const* name) {
    CimValue const* value = instance.property(name);
    if (!value || value->isNull())
        return "";
    if (value->type() != CMPI_string)
        fail(CimOperationError::invalidParameter, std::string(name) + " must be a string");
    return value->asString();
}

std::string keyText(CimObjectPath const& path, char const* name) {
    CimValue const* value = path.key(name);
    return value && !value->isNull() && value->type() == CMPI_string ? value->asString() : "";
}

// The properties of a NewInstance: plain values as text, references read as paths.
CimInstance readNewInstance(CimRequest const& request, ClassRepository const& classes) {
    CimRequest::Param const* p = request.param("NewInstance");
    pugi::xml_node node = p ? p->node.child("INSTANCE") : pugi::xml_node();
    if (!node)
        fail(CimOperationError::invalidParameter, "CreateInstance needs a NewInstance");
    CimInstance instance(CimObjectPath(request.nameSpace(), node.attribute("CLASSNAME").value()));
    for (pugi::xml_node property : node.children()) {
        std::string tag = property.name();
        std::string name = property.attribute("NAME").value();
        if (tag == "PROPERTY") {
            pugi::xml_node value = property.child("VALUE");
            instance.setProperty(name, value ? CimValue::string(value.text().get())
                                             : CimValue::null(CMPI_string));
        } else if (tag == "PROPERTY.REFERENCE") {
            pugi::xml_node value = property.child("VALUE.REFERENCE");
            if (!value)
                continue;
            instance.setProperty(name, CimValue::reference(InstanceXml::readReference(
                                           value, request.nameSpace(), &classes)));
        }
    }
    return instance;
}

std::string generatedName(char const* kind) {
    static std::atomic<unsigned> serial{0};
    auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::string("veldra-") + kind + "-" +
           std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()) +
           "-" + std::to_string(serial++);
}

} // namespace

SubscriptionOperations::SubscriptionOperations(SubscriptionStore& store, ProviderManager& providers,
                                               ClassRepository const& classes,
                                               std::string systemName)
    : _store(store), _providers(providers), _classes(classes), _systemName(std::move(systemName)) {}

bool SubscriptionOperations::serves(std::string const& nameSpace, std::string const& cls) const {
    if (!CimName::equal(nameSpace, interopNamespace))
        return false;
    for (char const* ours : {filterClass, destinationClass, subscriptionClass})
        if (CimName::equal(cls, ours) || _classes.isA(nameSpace, ours, cls))
            return true;
    return false;
}

CimObjectPath SubscriptionOperations::_systemPath(std::string const& cls,
                                                  std::string const& systemName,
                                                  std::string const& name) const {
    CimObjectPath path(interopNamespace, cls);
    path.addKey("SystemCreationClassName", CimValue::string(systemClass));
    path.addKey("SystemName", CimValue::string(systemName.empty() ? _systemName : systemName));
    path.addKey("CreationClassName", CimValue::string(cls));
    path.addKey("Name", CimValue::string(name));
    return path;
}

CimInstance SubscriptionOperations::_filterInstance(SubscriptionStore::Filter const& filter) const {
    CimInstance instance(_systemPath(filterClass, filter.systemName, filter.name));
    for (auto const& key : instance.path().keys())
        instance.setProperty(key.name, key.value);
    instance.setProperty("Query", CimValue::string(filter.query));
    instance.setProperty("QueryLanguage", CimValue::string(filter.queryLanguage));
    instance.setProperty("SourceNamespace", CimValue::string(filter.sourceNamespace));
    return instance;
}

CimInstance SubscriptionOperations::_destinationInstance(
    SubscriptionStore::Destination const& destination) const {
    CimInstance instance(_systemPath(destinationClass, destination.systemName, destination.name));
    for (auto const& key : instance.path().keys())
        instance.setProperty(key.name, key.value);
    instance.setProperty("Destination", CimValue::string(destination.url));
    return instance;
}

CimInstance SubscriptionOperations::_subscriptionInstance(
    SubscriptionStore::Subscription const& subscription) const {
    std::string filterSystem, destinationSystem;
    for (auto const& f : _store.filters())
        if (CimName::equal(f.name, subscription.filter))
            filterSystem = f.systemName;
    for (auto const& d : _store.destinations())
        if (CimName::equal(d.name, subscription.destination))
            destinationSystem = d.systemName;
    CimObjectPath path(interopNamespace, subscriptionClass);
    path.addKey("Filter",
                CimValue::reference(_systemPath(filterClass, filterSystem, subscription.filter)));
    path.addKey("Handler", CimValue::reference(_systemPath(destinationClass, destinationSystem,
                                                           subscription.destination)));
    CimInstance instance(path);
    for (auto const& key : path.keys())
        instance.setProperty(key.name, key.value);
    instance.setProperty("SubscriptionState", CimValue::uint16(2)); // enabled
    return instance;
}

CimObjectPath SubscriptionOperations::create(CimRequest const& request) {
    CimInstance instance = readNewInstance(request, _classes);
    std::string const cls = instance.className();
    CimObjectPath made;
    try {
        if (CimName::equal(cls, filterClass)) {
            SubscriptionStore::Filter filter;
            filter.name = textOf(instance, "Name");
            if (filter.name.empty())
                filter.name = generatedName("filter");
            filter.systemName = textOf(instance, "SystemName");
            filter.query = textOf(instance, "Query");
            filter.queryLanguage = textOf(instance, "QueryLanguage");
            if (filter.queryLanguage.empty())
                filter.queryLanguage = "WQL";
            if (!CimName::equal(filter.queryLanguage, "WQL") &&
                !CimName::equal(filter.queryLanguage, "DMTF:CQL"))
                fail(CimOperationError::notSupported,
                     "query language " + filter.queryLanguage + " is not supported");
            filter.sourceNamespace = textOf(instance, "SourceNamespace");
            try {
                filter.wql = WqlFilter::parse(filter.query);
            } catch (std::invalid_argument const& e) {
                fail(CimOperationError::invalidParameter, e.what());
            }
            made = _filterInstance(filter).path();
            _store.addFilter(std::move(filter));
        } else if (CimName::equal(cls, destinationClass)) {
            SubscriptionStore::Destination destination;
            destination.name = textOf(instance, "Name");
            if (destination.name.empty())
                destination.name = generatedName("destination");
            destination.systemName = textOf(instance, "SystemName");
            destination.url = textOf(instance, "Destination");
            if (destination.url.rfind("http://", 0) != 0 &&
                destination.url.rfind("https://", 0) != 0)
                fail(CimOperationError::invalidParameter,
                     "Destination must be an http:// or https:// URL");
            made = _destinationInstance(destination).path();
            _store.addDestination(std::move(destination));
        } else if (CimName::equal(cls, subscriptionClass)) {
            CimValue const* filter = instance.property("Filter");
            CimValue const* handler = instance.property("Handler");
            if (!filter || filter->type() != CMPI_ref || !handler || handler->type() != CMPI_ref)
                fail(CimOperationError::invalidParameter,
                     "a subscription needs Filter and Handler references");
            SubscriptionStore::Subscription subscription{keyText(filter->asReference(), "Name"),
                                                         keyText(handler->asReference(), "Name")};
            _store.addSubscription(subscription);
            made = _subscriptionInstance(subscription).path();
        } else {
            fail(CimOperationError::notSupported,
                 "instances of " + cls + " cannot be created here");
        }
    } catch (CimOperationError const&) {
        throw;
    } catch (std::invalid_argument const& e) {
        std::string what = e.what();
        fail(what.find("exists") != std::string::npos ? CimOperationError::alreadyExists
                                                      : CimOperationError::invalidParameter,
             what);
    } catch (std::runtime_error const& e) {
        fail(CimOperationError::failed, e.what());
    }
    // A subscription has no Name; it is known by the two it joins.
    std::string what = keyText(made, "Name");
    CimValue const* filter = made.key("Filter");
    CimValue const* handler = made.key("Handler");
    if (what.empty() && filter && handler && filter->type() == CMPI_ref &&
        handler->type() == CMPI_ref)
        what = keyText(filter->asReference(), "Name") + " -> " +
               keyText(handler->asReference(), "Name");
    ServerLog::info("subscriptions: created " + made.className() + " " + what);
    activate();
    return made;
}

void SubscriptionOperations::remove(CimObjectPath const& path) {
    std::string const& cls = path.className();
    bool removed = false;
    try {
        if (CimName::equal(cls, filterClass)) {
            removed = _store.removeFilter(keyText(path, "Name"));
        } else if (CimName::equal(cls, destinationClass)) {
            removed = _store.removeDestination(keyText(path, "Name"));
        } else if (CimName::equal(cls, subscriptionClass)) {
            CimValue const* filter = path.key("Filter");
            CimValue const* handler = path.key("Handler");
            if (filter && filter->type() == CMPI_ref && handler && handler->type() == CMPI_ref)
                removed = _store.removeSubscription(keyText(filter->asReference(), "Name"),
                                                    keyText(handler->asReference(), "Name"));
        }
    } catch (CimOperationError const&) {
        throw;
    } catch (std::exception const& e) {
        fail(CimOperationError::failed, e.what());
    }
    if (!removed)
        fail(CimOperationError::notFound, "no such " + cls);
    activate();
}

CimInstance SubscriptionOperations::get(CimObjectPath const& path) const {
    for (CimInstance const& instance : instances(path.className()))
        if (instance.path() == path)
            return instance;
    // Clients often write the system keys differently; the Name (or the two ends) decides.
    for (CimInstance const& instance : instances(path.className())) {
        CimObjectPath const& held = instance.path();
        if (!CimName::equal(held.className(), path.className()))
            continue;
        if (CimName::equal(path.className(), subscriptionClass)) {
            CimValue const* f = path.key("Filter");
            CimValue const* h = path.key("Handler");
            if (f && h && f->type() == CMPI_ref && h->type() == CMPI_ref &&
                CimName::equal(keyText(f->asReference(), "Name"),
                               keyText(held.key("Filter")->asReference(), "Name")) &&
                CimName::equal(keyText(h->asReference(), "Name"),
                               keyText(held.key("Handler")->asReference(), "Name")))
                return instance;
        } else if (CimName::equal(keyText(path, "Name"), keyText(held, "Name"))) {
            return instance;
        }
    }
    fail(CimOperationError::notFound, "no such " + path.className());
}

std::vector<CimInstance> SubscriptionOperations::instances(std::string const& cls) const {
    std::vector<CimInstance> out;
    if (CimName::equal(cls, filterClass) || _classes.isA(interopNamespace, filterClass, cls))
        for (auto const& f : _store.filters())
            out.push_back(_filterInstance(f));
    if (CimName::equal(cls, destinationClass) ||
        _classes.isA(interopNamespace, destinationClass, cls))
        for (auto const& d : _store.destinations())
            out.push_back(_destinationInstance(d));
    if (CimName::equal(cls, subscriptionClass) ||
        _classes.isA(interopNamespace, subscriptionClass, cls))
        for (auto const& s : _store.subscriptions())
            out.push_back(_subscriptionInstance(s));
    return out;
}

void SubscriptionOperations::activate() {
    // Which registered indication classes some subscription covers.
    std::set<std::pair<std::string, std::string>> wanted;
    auto active = _store.active();
    auto registered = _providers.indicationClasses();
    for (auto const& each : active) {
        auto const& filter = each.filter;
        for (auto const& [ns, cls] : registered) {
            // A filter without a source namespace takes indications from all of them.
            if (!filter.sourceNamespace.empty() && !CimName::equal(filter.sourceNamespace, ns))
                continue;
            if (CimName::equal(cls, filter.wql.className()) ||
                _classes.isA(ns, cls, filter.wql.className()))
                wanted.insert({ns, cls});
        }
    }
    auto call = [](char const* what, auto&& action) {
        try {
            action();
        } catch (std::exception const& e) {
            ServerLog::warn(std::string("subscriptions: ") + what + " failed: " + e.what());
        }
    };
    for (auto const& [ns, cls] : wanted)
        if (!_activated.count({ns, cls}))
            call("activateFilter",
                 [&, ns = ns, cls = cls] { _providers.activateFilter(ns, cls, true); });
    for (auto const& [ns, cls] : _activated)
        if (!wanted.count({ns, cls}))
            call("deActivateFilter",
                 [&, ns = ns, cls = cls] { _providers.deActivateFilter(ns, cls, true); });
    _activated = std::move(wanted);
    if (!active.empty() && !_enabled)
        call("enableIndications", [&] { _providers.enableIndications(); });
    if (active.empty() && _enabled)
        call("disableIndications", [&] { _providers.disableIndications(); });
    _enabled = !active.empty();
}

} // namespace Cimom
