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
//   for (const CimInstance& i : pm.enumerateInstances(cls, nullptr)) { ... }
//   CimInstance one = pm.getInstance(path, nullptr);     // CimError(CMPI_RC_ERR_NOT_FOUND) if none
//   MethodResult r = pm.invokeMethod(path, "Identify", {{"Duration", CimValue::uint32(5)}});
//   pm.shutdown();                                        // cleanup(terminating), dlclose
//
// Requests name one namespace and one concrete class; the server expands
// class hierarchies. Failures are CimError carrying the provider's CMPI code
// and message. All operations may be called from many threads at once;
// shutdown waits for calls in flight and refuses new ones.

#include <atomic>
#include <memory>
#include <shared_mutex>
#include <string>
#include <vector>

#include "Broker.h"
#include "BrokerUpcalls.h"
#include "IndicationSink.h"
#include "ProviderRegistration.h"

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
    ProviderManager(const ProviderManager&) = delete;
    ProviderManager& operator=(const ProviderManager&) = delete;

    // Loads every provider of the file; its libraryPath comes before the
    // directories of the options. Throws CimError(CMPI_RC_ERR_FAILED).
    void loadRegistrationFile(const std::string& path);
    void load(const ProviderRegistration& registration,
              const std::vector<std::string>& extraLibraryDirs = {});

    std::vector<std::string> providerNames() const;
    bool hasInstanceProvider(const std::string& nameSpace, const std::string& className) const;
    bool hasMethodProvider(const std::string& nameSpace, const std::string& className) const;
    bool hasAssociationProvider(const std::string& nameSpace, const std::string& assocClass) const;

    std::vector<CimObjectPath> enumerateInstanceNames(const CimObjectPath& classPath) override;
    std::vector<CimInstance> enumerateInstances(const CimObjectPath& classPath,
                                                const PropertyList* propertyList) override;
    CimInstance getInstance(const CimObjectPath& path, const PropertyList* propertyList) override;
    // An empty assocClass asks every association provider of the namespace.
    std::vector<CimInstance> associators(const CimObjectPath& path, const std::string& assocClass,
                                         const std::string& resultClass, const std::string& role,
                                         const std::string& resultRole,
                                         const PropertyList* propertyList) override;
    std::vector<CimObjectPath> associatorNames(const CimObjectPath& path,
                                               const std::string& assocClass,
                                               const std::string& resultClass,
                                               const std::string& role,
                                               const std::string& resultRole) override;
    // resultClass (the association class) picks the providers as assocClass does above.
    std::vector<CimInstance> references(const CimObjectPath& path, const std::string& resultClass,
                                        const std::string& role,
                                        const PropertyList* propertyList) override;
    std::vector<CimObjectPath> referenceNames(const CimObjectPath& path,
                                              const std::string& resultClass,
                                              const std::string& role) override;
    MethodResult invokeMethod(const CimObjectPath& path, const std::string& method,
                              const Args& inArgs) override;

    // Passed to the indication providers of the namespace that registered the
    // class (no filter expression: the broker has no query engine).
    void activateFilter(const std::string& nameSpace, const std::string& className,
                        bool firstActivation);
    void deActivateFilter(const std::string& nameSpace, const std::string& className,
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

    LoadedProvider* _providerFor(Role role, const std::string& nameSpace,
                                 const std::string& className) const;
    // The same, or CimError INVALID_CLASS naming what is missing.
    LoadedProvider* _requireProvider(Role role, const std::string& nameSpace,
                                     const std::string& className) const;
    std::vector<LoadedProvider*> _associationProviders(const std::string& nameSpace,
                                                       const std::string& assocClass) const;
    std::string _findLibrary(const std::string& library,
                             const std::vector<std::string>& dirs) const;
    void _check(CMPIStatus status, const LoadedProvider& provider, const char* operation) const;
    using FilterEntry = CMPIStatus (*CMPIIndicationMIFT::*)(CMPIIndicationMI*, const CMPIContext*,
                                                           const CMPISelectExp*, const char*,
                                                           const CMPIObjectPath*, CMPIBoolean);
    using SwitchEntry = CMPIStatus (*CMPIIndicationMIFT::*)(CMPIIndicationMI*, const CMPIContext*);
    void _filterCall(FilterEntry entry, const char* operation, const std::string& nameSpace,
                     const std::string& className, bool edge);
    void _switchCall(SwitchEntry entry, const char* operation);
    static void _complete(const CimObjectPath& request, CimObjectPath& path);
    static std::vector<CimInstance> _finish(const CimObjectPath& request,
                                            std::vector<CimInstance> found,
                                            const PropertyList* propertyList);

    Options _options;
    std::unique_ptr<Broker> _broker;
    std::shared_ptr<IndicationSink> _sink;
    mutable std::shared_mutex _lifecycle;
    std::atomic<bool> _shuttingDown{false};
    std::vector<std::unique_ptr<LoadedProvider>> _providers;
};
