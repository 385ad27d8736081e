#include "ProviderManager.h"

#include <chrono>
#include <filesystem>
#include <thread>

#include "BrokerArgs.h"
#include "BrokerContext.h"
#include "BrokerObjectPath.h"
#include "BrokerResult.h"
#include "BrokerStatus.h"
#include "CimError.h"
#include "CimName.h"
#include "LoadedProvider.h"
#include "MemoryIndicationSink.h"
#include "RegistrationFile.h"

namespace Cimom {

namespace {

// Calls nested on one thread (a provider's up-call during its own request)
// must not take the lifecycle lock again: a waiting shutdown would deadlock them.
thread_local int callDepth = 0;

char const* cstr(std::string const& s) {
    return s.empty() ? nullptr : s.c_str();
}

// A NULL-terminated array over the names, or null for "all properties".
class PropertyArray {
public:
    explicit PropertyArray(BrokerUpcalls::PropertyList const* list) {
        if (list != nullptr) {
            for (std::string const& s : *list) {
                _ptrs.push_back(s.c_str());
            }
            _ptrs.push_back(nullptr);
        }
    }
    char const** get() { return _ptrs.empty() ? nullptr : _ptrs.data(); }

private:
    std::vector<char const*> _ptrs;
};

// A provider may leave entries of its tables empty; calling one would crash.
template <class Fn> Fn required(Fn fn, LoadedProvider const& p, char const* operation) {
    if (fn == nullptr) {
        throw CimError(CMPI_RC_ERR_NOT_SUPPORTED,
                       "provider " + p.registration().name + " does not implement " + operation);
    }
    return fn;
}

// What every call into a provider needs, made in an arena that closes when
// the call is done: a result to collect the answer, the request's path and
// a context in the request's namespace. The arena comes first, so that the
// objects are made in it.
struct ProviderCall {
    ProviderCall(Broker& broker, CimObjectPath const& path)
        : arena(broker.registry()), result(broker.registry().make<BrokerResult>()),
          op(broker.registry().make<BrokerObjectPath>(path)->cmpi()),
          ctx(broker.newContext(path.nameSpace(), 0)->cmpi()) {}

    ObjectRegistry::Scope arena;
    BrokerResult* const result;
    CMPIObjectPath* const op;
    CMPIContext* const ctx;
};

} // namespace

// Shared hold on the providers for one call, unless this thread holds one already.
class ProviderManager::CallGuard {
public:
    explicit CallGuard(ProviderManager const& pm) : _pm(pm), _locked(callDepth == 0) {
        if (_locked) {
            while (!_pm._lifecycle.try_lock_shared()) {
                if (_pm._shuttingDown) {
                    throw CimError(CMPI_RC_ERR_FAILED, "the provider manager is shutting down");
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
            if (_pm._shuttingDown) {
                _pm._lifecycle.unlock_shared();
                throw CimError(CMPI_RC_ERR_FAILED, "the provider manager is shut down");
            }
        }
        ++callDepth;
    }
    ~CallGuard() {
        --callDepth;
        if (_locked) {
            _pm._lifecycle.unlock_shared();
        }
    }
    CallGuard(CallGuard const&) = delete;
    CallGuard& operator=(CallGuard const&) = delete;

private:
    ProviderManager const& _pm;
    bool _locked;
};

ProviderManager::ProviderManager() : ProviderManager(Options{}) {}

ProviderManager::ProviderManager(Options options)
    : _options(std::move(options)), _broker(std::make_unique<Broker>()) {
    if (_options.log) {
        _broker->setLog(_options.log);
    }
    _broker->reportVersions(_options.brokerVersion, _options.encapsulatedVersion);
    _sink = _options.indicationSink;
    if (!_sink) {
        Broker* broker = _broker.get();
        _sink = std::make_shared<MemoryIndicationSink>(
            [broker](std::string const& line) { broker->log(CMPI_SEV_INFO, line); });
    }
    _broker->setIndicationSink(_sink);
    if (_options.classIsA) {
        _broker->setClassIsA(_options.classIsA);
    }
    _broker->setUpcalls(this);
}

ProviderManager::~ProviderManager() {
    shutdown();
    _broker->setUpcalls(nullptr);
}

std::string ProviderManager::_findLibrary(std::string const& library,
                                          std::vector<std::string> const& dirs) const {
    if (library.find('/') != std::string::npos) {
        return library;
    }
    std::string const file = "lib" + library + ".so";
    for (std::string const& dir : dirs) {
        std::filesystem::path const candidate = std::filesystem::path(dir) / file;
        std::error_code ec;
        if (std::filesystem::exists(candidate, ec)) {
            return candidate.string();
        }
    }
    std::string searched;
    for (std::string const& dir : dirs) {
        searched += (searched.empty() ? "" : ", ") + dir;
    }
    throw CimError(CMPI_RC_ERR_FAILED, "library " + file + " not found (searched: " +
                                           (searched.empty() ? "no directories" : searched) + ")");
}

void ProviderManager::loadRegistrationFile(std::string const& path) {
    RegistrationFile::Contents const contents = RegistrationFile::load(path);
    for (ProviderRegistration const& reg : contents.providers) {
        load(reg, contents.libraryDirs);
    }
}

void ProviderManager::load(ProviderRegistration const& registration,
                           std::vector<std::string> const& extraLibraryDirs) {
    if (registration.namespaces.empty() || registration.kinds.empty()) {
        throw CimError(CMPI_RC_ERR_FAILED,
                       "provider " + registration.name + ": no namespace or no kind registered");
    }
    std::vector<std::string> dirs = extraLibraryDirs;
    dirs.insert(dirs.end(), _options.libraryDirs.begin(), _options.libraryDirs.end());
    std::string file;
    try {
        file = _findLibrary(registration.library, dirs);
    } catch (CimError const& e) {
        throw CimError(CMPI_RC_ERR_FAILED,
                       "provider " + registration.name + ": " + e.description());
    }
    std::unique_lock<std::shared_mutex> lock(_lifecycle);
    if (_shuttingDown) {
        throw CimError(CMPI_RC_ERR_FAILED, "the provider manager is shut down");
    }
    for (auto const& p : _providers) {
        if (CimName::equal(p->registration().name, registration.name)) {
            throw CimError(CMPI_RC_ERR_FAILED,
                           "provider " + registration.name + " is already loaded");
        }
    }
    auto provider = std::make_unique<LoadedProvider>(registration, file, *_broker);
    _broker->log(CMPI_SEV_INFO, "provider " + registration.name + " loaded from " + file);
    _providers.push_back(std::move(provider));
}

std::vector<std::string> ProviderManager::providerNames() const {
    std::shared_lock<std::shared_mutex> lock(_lifecycle);
    std::vector<std::string> names;
    for (auto const& p : _providers) {
        names.push_back(p->registration().name);
    }
    return names;
}

LoadedProvider* ProviderManager::_providerFor(Role role, std::string const& nameSpace,
                                              std::string const& className) const {
    for (auto const& p : _providers) {
        ProviderRegistration const& reg = p->registration();
        bool hasRole = false;
        switch (role) {
        case Role::Instance:
            hasRole = p->instanceMI() != nullptr;
            break;
        case Role::Association:
            hasRole = p->associationMI() != nullptr;
            break;
        case Role::Method:
            hasRole = p->methodMI() != nullptr;
            break;
        case Role::Indication:
            hasRole = p->indicationMI() != nullptr;
            break;
        }
        if (!hasRole) {
            continue;
        }
        bool inNamespace = false;
        for (std::string const& ns : reg.namespaces) {
            inNamespace = inNamespace || CimName::equal(ns, nameSpace);
        }
        if (!inNamespace) {
            continue;
        }
        for (std::string const& cls : reg.classes) {
            if (CimName::equal(cls, className)) {
                return p.get();
            }
        }
    }
    return nullptr;
}

std::vector<LoadedProvider*>
ProviderManager::_associationProviders(std::string const& nameSpace,
                                       std::string const& assocClass) const {
    std::vector<LoadedProvider*> out;
    for (auto const& p : _providers) {
        if (p->associationMI() == nullptr) {
            continue;
        }
        ProviderRegistration const& reg = p->registration();
        bool inNamespace = false;
        for (std::string const& ns : reg.namespaces) {
            inNamespace = inNamespace || CimName::equal(ns, nameSpace);
        }
        if (!inNamespace) {
            continue;
        }
        bool serves = assocClass.empty();
        // A provider serves the requested class if one of its classes is that
        // class or derives from it (the server's hierarchy decides).
        for (std::size_t i = 0; !serves && i < reg.classes.size(); ++i) {
            serves = _broker->isA(nameSpace, reg.classes[i], assocClass);
        }
        if (serves) {
            out.push_back(p.get());
        }
    }
    return out;
}

LoadedProvider* ProviderManager::_requireProvider(Role role, std::string const& nameSpace,
                                                  std::string const& className) const {
    if (LoadedProvider* p = _providerFor(role, nameSpace, className)) {
        return p;
    }
    char const* kind = "instance";
    switch (role) {
    case Role::Instance:
        kind = "instance";
        break;
    case Role::Association:
        kind = "association";
        break;
    case Role::Method:
        kind = "method";
        break;
    case Role::Indication:
        kind = "indication";
        break;
    }
    throw CimError(CMPI_RC_ERR_INVALID_CLASS,
                   std::string("no ") + kind + " provider for " + className + " in " + nameSpace);
}

bool ProviderManager::hasInstanceProvider(std::string const& nameSpace,
                                          std::string const& className) const {
    std::shared_lock<std::shared_mutex> lock(_lifecycle);
    return _providerFor(Role::Instance, nameSpace, className) != nullptr;
}

bool ProviderManager::hasMethodProvider(std::string const& nameSpace,
                                        std::string const& className) const {
    std::shared_lock<std::shared_mutex> lock(_lifecycle);
    return _providerFor(Role::Method, nameSpace, className) != nullptr;
}

bool ProviderManager::hasAssociationProvider(std::string const& nameSpace,
                                             std::string const& assocClass) const {
    std::shared_lock<std::shared_mutex> lock(_lifecycle);
    return !_associationProviders(nameSpace, assocClass).empty();
}

void ProviderManager::_check(CMPIStatus status, LoadedProvider const& provider,
                             char const* operation) const {
    if (status.rc == CMPI_RC_OK) {
        return;
    }
    std::string msg = BrokerStatus::message(status);
    if (msg.empty()) {
        msg = "provider " + provider.registration().name + " failed " + operation;
    }
    throw CimError(status.rc, msg);
}

void ProviderManager::_complete(CimObjectPath const& request, CimObjectPath& path) {
    // Providers often leave the namespace out of the paths they return.
    if (path.nameSpace().empty()) {
        path.setNameSpace(request.nameSpace());
    }
}

void ProviderManager::_finish(CimObjectPath const& request, CimInstance& inst,
                              PropertyList const* propertyList) {
    // Most paths are complete already; only an incomplete one is copied.
    if (inst.path().nameSpace().empty()) {
        CimObjectPath path = inst.path();
        _complete(request, path);
        inst.setPath(std::move(path));
    }
    if (propertyList != nullptr) {
        inst = inst.filtered(propertyList);
    }
}

std::vector<CimInstance> ProviderManager::_finish(CimObjectPath const& request,
                                                  std::vector<CimInstance> found,
                                                  PropertyList const* propertyList) {
    for (CimInstance& inst : found) {
        _finish(request, inst, propertyList);
    }
    return found;
}

std::vector<CimObjectPath> ProviderManager::enumerateInstanceNames(CimObjectPath const& classPath) {
    CallGuard guard(*this);
    LoadedProvider* p =
        _requireProvider(Role::Instance, classPath.nameSpace(), classPath.className());
    ProviderCall call(*_broker, classPath);
    _check(required(p->instanceMI()->ft->enumerateInstanceNames, *p, "enumerateInstanceNames")(
               p->instanceMI(), call.ctx, call.result->cmpi(), call.op),
           *p, "enumerateInstanceNames");
    std::vector<CimObjectPath> paths = call.result->takePaths();
    for (CimObjectPath& path : paths) {
        _complete(classPath, path);
    }
    return paths;
}

std::vector<CimInstance> ProviderManager::enumerateInstances(CimObjectPath const& classPath,
                                                             PropertyList const* propertyList) {
    std::vector<CimInstance> found;
    enumerateInstances(classPath, propertyList,
                       [&found](CimInstance const& instance) { found.push_back(instance); });
    return found;
}

void ProviderManager::enumerateInstances(CimObjectPath const& classPath,
                                         PropertyList const* propertyList,
                                         InstanceSink const& sink) {
    CallGuard guard(*this);
    LoadedProvider* p =
        _requireProvider(Role::Instance, classPath.nameSpace(), classPath.className());
    ProviderCall call(*_broker, classPath);
    call.result->setInstanceSink([&](CimInstance const& instance) {
        // Most instances go on as they are; only an incomplete one, or one
        // with more than was asked for, is copied.
        if (!instance.path().nameSpace().empty() && propertyList == nullptr) {
            sink(instance);
            return;
        }
        CimInstance finished = instance;
        _finish(classPath, finished, propertyList);
        sink(finished);
    });
    PropertyArray props(propertyList);
    _check(required(p->instanceMI()->ft->enumerateInstances, *p, "enumerateInstances")(
               p->instanceMI(), call.ctx, call.result->cmpi(), call.op, props.get()),
           *p, "enumerateInstances");
}

CimInstance ProviderManager::getInstance(CimObjectPath const& path,
                                         PropertyList const* propertyList) {
    CallGuard guard(*this);
    LoadedProvider* p = _requireProvider(Role::Instance, path.nameSpace(), path.className());
    ProviderCall call(*_broker, path);
    PropertyArray props(propertyList);
    _check(required(p->instanceMI()->ft->getInstance, *p, "getInstance")(
               p->instanceMI(), call.ctx, call.result->cmpi(), call.op, props.get()),
           *p, "getInstance");
    std::vector<CimInstance> found = _finish(path, call.result->takeInstances(), propertyList);
    if (found.empty()) {
        throw CimError(CMPI_RC_ERR_NOT_FOUND, "no instance " + path.toString());
    }
    return found.front();
}

std::vector<CimInstance>
ProviderManager::associators(CimObjectPath const& path, std::string const& assocClass,
                             std::string const& resultClass, std::string const& role,
                             std::string const& resultRole, PropertyList const* propertyList) {
    CallGuard guard(*this);
    std::vector<CimInstance> all;
    for (LoadedProvider* p : _associationProviders(path.nameSpace(), assocClass)) {
        ProviderCall call(*_broker, path);
        PropertyArray props(propertyList);
        _check(required(p->associationMI()->ft->associators, *p, "associators")(
                   p->associationMI(), call.ctx, call.result->cmpi(), call.op, cstr(assocClass),
                   cstr(resultClass), cstr(role), cstr(resultRole), props.get()),
               *p, "associators");
        for (CimInstance& i : _finish(path, call.result->takeInstances(), propertyList)) {
            all.push_back(std::move(i));
        }
    }
    return all;
}

std::vector<CimObjectPath> ProviderManager::associatorNames(CimObjectPath const& path,
                                                            std::string const& assocClass,
                                                            std::string const& resultClass,
                                                            std::string const& role,
                                                            std::string const& resultRole) {
    CallGuard guard(*this);
    std::vector<CimObjectPath> all;
    for (LoadedProvider* p : _associationProviders(path.nameSpace(), assocClass)) {
        ProviderCall call(*_broker, path);
        _check(required(p->associationMI()->ft->associatorNames, *p, "associatorNames")(
                   p->associationMI(), call.ctx, call.result->cmpi(), call.op, cstr(assocClass),
                   cstr(resultClass), cstr(role), cstr(resultRole)),
               *p, "associatorNames");
        for (CimObjectPath& found : call.result->takePaths()) {
            _complete(path, found);
            all.push_back(std::move(found));
        }
    }
    return all;
}

std::vector<CimInstance> ProviderManager::references(CimObjectPath const& path,
                                                     std::string const& resultClass,
                                                     std::string const& role,
                                                     PropertyList const* propertyList) {
    CallGuard guard(*this);
    std::vector<CimInstance> all;
    for (LoadedProvider* p : _associationProviders(path.nameSpace(), resultClass)) {
        ProviderCall call(*_broker, path);
        PropertyArray props(propertyList);
        _check(required(p->associationMI()->ft->references, *p,
                        "references")(p->associationMI(), call.ctx, call.result->cmpi(), call.op,
                                      cstr(resultClass), cstr(role), props.get()),
               *p, "references");
        for (CimInstance& i : _finish(path, call.result->takeInstances(), propertyList)) {
            all.push_back(std::move(i));
        }
    }
    return all;
}

std::vector<CimObjectPath> ProviderManager::referenceNames(CimObjectPath const& path,
                                                           std::string const& resultClass,
                                                           std::string const& role) {
    CallGuard guard(*this);
    std::vector<CimObjectPath> all;
    for (LoadedProvider* p : _associationProviders(path.nameSpace(), resultClass)) {
        ProviderCall call(*_broker, path);
        _check(required(p->associationMI()->ft->referenceNames, *p,
                        "referenceNames")(p->associationMI(), call.ctx, call.result->cmpi(),
                                          call.op, cstr(resultClass), cstr(role)),
               *p, "referenceNames");
        for (CimObjectPath& found : call.result->takePaths()) {
            _complete(path, found);
            all.push_back(std::move(found));
        }
    }
    return all;
}

MethodResult ProviderManager::invokeMethod(CimObjectPath const& path, std::string const& method,
                                           Args const& inArgs) {
    CallGuard guard(*this);
    LoadedProvider* p = _requireProvider(Role::Method, path.nameSpace(), path.className());
    ProviderCall call(*_broker, path);
    BrokerArgs* in = _broker->registry().make<BrokerArgs>(inArgs);
    BrokerArgs* out = _broker->registry().make<BrokerArgs>();
    _check(required(p->methodMI()->ft->invokeMethod, *p,
                    "invokeMethod")(p->methodMI(), call.ctx, call.result->cmpi(), call.op,
                                    method.c_str(), in->cmpi(), out->cmpi()),
           *p, "invokeMethod");
    MethodResult r;
    std::vector<CimValue> data = call.result->takeData();
    if (!data.empty()) {
        r.returnValue = std::move(data.front());
    }
    r.outArgs = out->args();
    return r;
}

void ProviderManager::activateFilter(std::string const& nameSpace, std::string const& className,
                                     bool firstActivation) {
    _filterCall(&CMPIIndicationMIFT::activateFilter, "activateFilter", nameSpace, className,
                firstActivation);
}

void ProviderManager::deActivateFilter(std::string const& nameSpace, std::string const& className,
                                       bool lastActivation) {
    _filterCall(&CMPIIndicationMIFT::deActivateFilter, "deActivateFilter", nameSpace, className,
                lastActivation);
}

void ProviderManager::enableIndications() {
    _switchCall(&CMPIIndicationMIFT::enableIndications, "enableIndications");
}

std::vector<std::pair<std::string, std::string>> ProviderManager::indicationClasses() const {
    std::shared_lock<std::shared_mutex> lock(_lifecycle);
    std::vector<std::pair<std::string, std::string>> out;
    for (auto const& p : _providers) {
        if (p->indicationMI() == nullptr)
            continue;
        ProviderRegistration const& reg = p->registration();
        for (std::string const& ns : reg.namespaces)
            for (std::string const& cls : reg.classes)
                out.emplace_back(ns, cls);
    }
    return out;
}

void ProviderManager::disableIndications() {
    _switchCall(&CMPIIndicationMIFT::disableIndications, "disableIndications");
}

// Activation and deactivation differ only in the table entry they call.
void ProviderManager::_filterCall(FilterEntry entry, char const* operation,
                                  std::string const& nameSpace, std::string const& className,
                                  bool edge) {
    CallGuard guard(*this);
    LoadedProvider* p = _requireProvider(Role::Indication, nameSpace, className);
    ProviderCall call(*_broker, CimObjectPath(nameSpace, className));
    CMPIIndicationMI* mi = p->indicationMI();
    _check(required(mi->ft->*entry, *p, operation)(mi, call.ctx, nullptr, className.c_str(),
                                                   call.op, edge ? 1 : 0),
           *p, operation);
}

// The indication switch goes to every indication provider, in its first namespace.
void ProviderManager::_switchCall(SwitchEntry entry, char const* operation) {
    CallGuard guard(*this);
    for (auto const& p : _providers) {
        if (CMPIIndicationMI* mi = p->indicationMI()) {
            ObjectRegistry::Scope scope(_broker->registry());
            BrokerContext* ctx = _broker->newContext(p->registration().namespaces.front(), 0);
            _check(required(mi->ft->*entry, *p, operation)(mi, ctx->cmpi()), *p, operation);
        }
    }
}

void ProviderManager::shutdown() {
    _shuttingDown = true;
    std::unique_lock<std::shared_mutex> lock(_lifecycle);
    // Unload in reverse order of loading, as a provider may use one loaded before it.
    while (!_providers.empty()) {
        std::unique_ptr<LoadedProvider> p = std::move(_providers.back());
        _providers.pop_back();
        std::string const name = p->registration().name;
        p->shutdown();
        _broker->log(CMPI_SEV_INFO, "provider " + name + " unloaded");
    }
}

} // namespace Cimom
