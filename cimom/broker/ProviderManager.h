#pragma once

// Hosts CMPI providers for the object manager.
//
//   ProviderManager::Options opts;
//   opts.libraryDirs = {"/usr/lib/veldra"};             // searched for lib<library>.so
//   opts.classIsA = [&](ns, cls, ancestor) { ... };      // from the class repository
//   ProviderManager pm(opts);
//   pm.loadRegistrationFile("/etc/veldra/providers.yaml"); // dlopen + _Generic_Create_*MI
//
//   CimObjectPath cls("root/mwq", "QLN_VDDiskDrive");
//   for (CimInstance const& i : pm.enumerateInstances(cls, nullptr)) { ... }
//   CimInstance one = pm.getInstance(path, nullptr);     // CimError(CMPI_RC_ERR_NOT_FOUND) if none
//   MethodResult r = pm.invokeMethod(path, "Identify", {{"Duration", CimValue::uint32(5)}});
//   pm.shutdown();                                        // cleanup(terminating), dlclose
//
// Requests name one namespace and one concrete class; the server expands
// class hierarchies. Failures are CimError carrying the provider's CMPI code
// and message. All operations may be called from many threads at once;
// shutdown waits for calls in flight and refuses new ones.

#include <atomic>
#include <functional>
#include <memory>
#include <shared_mutex>
#include <string>
#include <vector>

#include "Broker.h"
#include "BrokerUpcalls.h"
#include "IndicationSink.h"
#include "ProviderRegistration.h"

namespace Cimom {

class LoadedProvider;
class BrokerResult;

class ProviderManager : public BrokerUpcalls {
public:
    struct Options {
        std::vector<std::string> libraryDirs;
        // Default: a MemoryIndicationSink that logs through the broker log.
        std::shared_ptr<IndicationSink> indicationSink;
        Broker::ClassIsA classIsA;
        Broker::LogFunction log;
        // Versions the broker reports (see Broker::reportVersions).
        unsigned int brokerVersion = CMPICurrentVersion;
        int encapsulatedVersion = CMPICurrentVersion;
    };

    ProviderManager();
    explicit ProviderManager(Options options);
    ~ProviderManager() override;
    ProviderManager(ProviderManager const&) = delete;
    ProviderManager& operator=(ProviderManager const&) = delete;

    // Loads every provider of the file; its libraryPath comes before the
    // directories of the options. Throws CimError(CMPI_RC_ERR_FAILED).
    void loadRegistrationFile(std::string const& path);
    void load(ProviderRegistration const& registration,
              std::vector<std::string> const& extraLibraryDirs = {});

    std::vector<std::string> providerNames() const;
    bool hasInstanceProvider(std::string const& nameSpace, std::string const& className) const;
    bool hasMethodProvider(std::string const& nameSpace, std::string const& className) const;
    bool hasAssociationProvider(std::string const& nameSpace, std::string const& assocClass) const;

    std::vector<CimObjectPath> enumerateInstanceNames(CimObjectPath const& classPath) override;
    std::vector<CimInstance> enumerateInstances(CimObjectPath const& classPath,
                                                PropertyList const* propertyList) override;
    // The same, each instance handed to `sink` as the provider returns it
    // (complete and cut to the property list), none kept.
    using InstanceSink = std::function<void(CimInstance const&)>;
    void enumerateInstances(CimObjectPath const& classPath, PropertyList const* propertyList,
                            InstanceSink const& sink);
    CimInstance getInstance(CimObjectPath const& path, PropertyList const* propertyList) override;
    // An empty assocClass asks every association provider of the namespace.
    std::vector<CimInstance> associators(CimObjectPath const& path, std::string const& assocClass,
                                         std::string const& resultClass, std::string const& role,
                                         std::string const& resultRole,
                                         PropertyList const* propertyList) override;
    std::vector<CimObjectPath> associatorNames(CimObjectPath const& path,
                                               std::string const& assocClass,
                                               std::string const& resultClass,
                                               std::string const& role,
                                               std::string const& resultRole) override;
    // resultClass (the association class) picks the providers as assocClass does above.
    std::vector<CimInstance> references(CimObjectPath const& path, std::string const& resultClass,
                                        std::string const& role,
                                        PropertyList const* propertyList) override;
    std::vector<CimObjectPath> referenceNames(CimObjectPath const& path,
                                              std::string const& resultClass,
                                              std::string const& role) override;
    MethodResult invokeMethod(CimObjectPath const& path, std::string const& method,
                              Args const& inArgs) override;

    // Passed to the indication providers of the namespace that registered the
    // class (no filter expression: the broker has no query engine).
    void activateFilter(std::string const& nameSpace, std::string const& className,
                        bool firstActivation);
    void deActivateFilter(std::string const& nameSpace, std::string const& className,
                          bool lastActivation);
    void enableIndications();
    void disableIndications();
    // The (namespace, class) pairs that indication providers registered.
    std::vector<std::pair<std::string, std::string>> indicationClasses() const;

    void shutdown();

    Broker& broker() { return *_broker; }
    std::shared_ptr<IndicationSink> indicationSink() const { return _sink; }

private:
    class CallGuard;
    enum class Role { Instance, Association, Method, Indication };

    LoadedProvider* _providerFor(Role role, std::string const& nameSpace,
                                 std::string const& className) const;
    // The same, or CimError INVALID_CLASS naming what is missing.
    LoadedProvider* _requireProvider(Role role, std::string const& nameSpace,
                                     std::string const& className) const;
    std::vector<LoadedProvider*> _associationProviders(std::string const& nameSpace,
                                                       std::string const& assocClass) const;
    std::string _findLibrary(std::string const& library,
                             std::vector<std::string> const& dirs) const;
    void _check(CMPIStatus status, LoadedProvider const& provider, char const* operation) const;
    using FilterEntry = CMPIStatus (*CMPIIndicationMIFT::*)(CMPIIndicationMI*, CMPIContext const*,
                                                            CMPISelectExp const*, char const*,
                                                            CMPIObjectPath const*, CMPIBoolean);
    using SwitchEntry = CMPIStatus (*CMPIIndicationMIFT::*)(CMPIIndicationMI*, CMPIContext const*);
    void _filterCall(FilterEntry entry, char const* operation, std::string const& nameSpace,
                     std::string const& className, bool edge);
    void _switchCall(SwitchEntry entry, char const* operation);
    static void _complete(CimObjectPath const& request, CimObjectPath& path);
    // Completes the path's namespace and cuts to the property list.
    static void _finish(CimObjectPath const& request, CimInstance& inst,
                        PropertyList const* propertyList);
    static std::vector<CimInstance> _finish(CimObjectPath const& request,
                                            std::vector<CimInstance> found,
                                            PropertyList const* propertyList);

    Options _options;
    std::unique_ptr<Broker> _broker;
    std::shared_ptr<IndicationSink> _sink;
    mutable std::shared_mutex _lifecycle;
    std::atomic<bool> _shuttingDown{false};
    std::vector<std::unique_ptr<LoadedProvider>> _providers;
};

} // namespace Cimom
