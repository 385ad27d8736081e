#pragma once
// The one object that answers every CMPI request of the provider. It owns the
// instance graph and the storage-access root, forwards reads to the graph
// under one mutex, keeps the indication switch, and splits method calls
// between the background worker and the classes with extrinsic methods.
#include "CmpiAssociationProvider.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiManagedInstanceCollection.h"
#include "CmpiMethodProvider.h"
#include "GraphBuilder.h"
#include "InternalVeldraControllerMRA.h"
#include "Logger.h"
#include "VeldraCFUArray.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <pthread.h>
#include <string>
#include <vector>

namespace QLN {

class QLN_VDArrayController;
class QLN_VDArraySystem;
struct WorkerPass;
struct PassRoster;
class QLN_VDStoragePool;
class QLN_VDPhysicalPackage;
class QLN_VDSCSIProtocolController;
class QLN_VDISASSCSIProtocolEndpoint;

class QLNVeldraProvider : public CmpiCpp::CmpiInstanceProvider,
                          public CmpiCpp::CmpiAssociationProvider,
                          public CmpiCpp::CmpiIndicationProvider,
                          public CmpiCpp::CmpiMethodProvider {
public:
    QLNVeldraProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger);
    ~QLNVeldraProvider() override;

    void enumInstanceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override;
    void enumInstances(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void getInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;

    CmpiCpp::CmpiBroker getBroker() override;
    void cleanup(CmpiCpp::CmpiContext const& context, bool terminating) override;

    void associators(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                     CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void associatorNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                         CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                         CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                         CmpiCpp::CmpiObjectPathResult& result) override;
    void references(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                    CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                    char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void referenceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                        CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                        CmpiCpp::CmpiObjectPathResult& result) override;

    void authorizeFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                         CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                         std::string const& owner) override;
    void mustPoll(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                  CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path) override;
    void activateFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                        CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                        bool firstActivation) override;
    void deActivateFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                          CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                          bool lastActivation) override;
    void enableIndications() override;
    void disableIndications() override;

    void invokeMethod(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                      CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in,
                      CmpiCpp::CmpiMethodResult& result) override;

    int getProviderKind() override;

    // Read-only views for the worker and for tests.
    bool indicationsEnabled() const { return _indicationsEnabled; }
    bool heartbeatEnabled() const { return _heartbeatEnabled; }
    unsigned int instanceCount() const { return _managedInstances.size(); }
    // Every path of the graph, in collection order.
    std::vector<std::string> instancePaths() const;

private:
    // Fields that were kept in the provider's layout; nothing reads them.
    struct ReservedRecord {
        std::string first;
        std::string second;
        std::string third;
    };

    // The first instance graph, built by the constructor, and the device
    // graphs of one controller, which the worker asks for new devices: these
    // keep their names and hand the work to the graph's builder.
    void _cmpiManagedInstanceFactory();
    void _createAllEnclosureInstances(int number, VeldraController* controller,
                                      QLN_VDArraySystem* arraySystem,
                                      QLN_VDPhysicalPackage* physicalPackage,
                                      std::vector<VeldraEnclosure> const& enclosures,
                                      std::vector<CageEntry>& cages,
                                      std::vector<CmpiManagedInstance*>& newInstances);
    void _createAllPhysicalDiskInstances(
        int number, VeldraController* controller, std::vector<VeldraPhysicalDisk> const& physicals,
        QLN_VDArraySystem* arraySystem, std::vector<PoolEntry> const& pools,
        std::vector<VeldraCFUArray> const& arrays, std::vector<CageEntry> const& cages,
        std::vector<QLN_VDISASSCSIProtocolEndpoint*> const& initiatorEndpoints,
        std::vector<ExtentEntry>& sparePaths, std::vector<ExtentEntry>& nonSparePaths,
        std::vector<CmpiManagedInstance*>& newInstances);
    void _createAllLogicalDiskInstances(int number, VeldraController* controller,
                                        std::vector<VeldraLogicalDisk> const& logicals,
                                        QLN_VDArraySystem* arraySystem,
                                        QLN_VDSCSIProtocolController* protocolController,
                                        std::vector<PoolEntry> const& pools,
                                        std::vector<ExtentEntry> const& sparePaths,
                                        std::vector<ExtentEntry> const& nonSparePaths,
                                        std::vector<CmpiManagedInstance*>& newInstances);
    void _createViewClassInstances(int number, VeldraController* controller);
    // Rebuilds the view volumes and extents of controllers whose disks may
    // have changed; takes the provider mutex, so call it without holding it.
    void _updateViewClassInstances();
    std::uint32_t _backgroundWorker(CmpiCpp::CmpiContext const& context);
    // The steps of one pass (worker/), in the order the pass calls them.
    PassRoster _rosterOf() const;
    void _handleController(WorkerPass& pass, QLN_VDArrayController* arrayController,
                           std::vector<QLN_VDStoragePool*> const& pools,
                           CmpiCpp::CmpiContext const& context);
    void _scanForController(WorkerPass& pass, QLN_VDArrayController* arrayController);
    void _createNewDevices(WorkerPass& pass, QLN_VDArrayController* arrayController);
    void _addNewDiskPaths(WorkerPass& pass, QLN_VDArrayController* arrayController);
    void _reconcileMembership(WorkerPass& pass, QLN_VDArrayController* arrayController);
    void _releaseOrphanedExtents(WorkerPass& pass);
    void _applyPending(WorkerPass& pass);
    template <typename MethodClass>
    static std::uint32_t _invokeOn(CmpiManagedInstance* instance, CmpiCpp::CmpiName const& method,
                                   CmpiCpp::CmpiArgs const& in);
    std::uint32_t _invokeMethodOnInstance(CmpiCpp::CmpiObjectPath const& path,
                                          CmpiCpp::CmpiName const& method,
                                          CmpiCpp::CmpiArgs const& in);

    Logger _logger;
    CmpiManagedInstanceCollection _managedInstances;
    GraphBuilder _graph{_logger, _managedInstances};
    // What the last walk of the collection found for the worker, valid while
    // the collection's generation stays the one it was made at: a quiet pass
    // on a large graph then walks nothing.
    mutable std::shared_ptr<PassRoster const> _roster;
    mutable std::uint64_t _rosterGeneration = 0;
    std::vector<std::string> _reservedVector;
    ReservedRecord _reservedRecord;
    std::vector<VeldraController*> _controllers;
    // Set and read without the provider mutex (filter calls, the worker's
    // heartbeat), so atomic; relaxed order is enough for a switch.
    std::atomic<bool> _indicationsEnabled;
    std::atomic<bool> _workerEnteredWithIndications;
    bool _heartbeatEnabled;
    InternalVeldraControllerMRA* _internalVDControllerMRA;
    mutable pthread_mutex_t _providerMutex;
};

} // namespace QLN
