#pragma once
// Builds the instance graph: the first one over every controller at load, and
// the devices a worker pass finds new. It owns the lists it carries from one
// controller to the next and hands finished instances to the collection; it
// takes no lock, so its callers hold the provider's.
#include "CmpiManagedInstanceCollection.h"
#include "GraphEntries.h"
#include "InternalVeldraControllerMRA.h"
#include "Logger.h"
#include "VeldraCFUArray.h"

#include <memory>
#include <vector>

namespace QLN {

class DRSV_VDController;
class QLN_VDArraySystem;
class QLN_VDISASSCSIProtocolEndpoint;
class QLN_VDPhysicalPackage;
class QLN_VDSCSIProtocolController;

class GraphBuilder {
public:
    GraphBuilder(Logger& logger, CmpiManagedInstanceCollection& collection);

    // The first graph, over every controller `root` delivers, which are
    // recorded in `controllers` in that order.
    void buildAll(InternalVeldraControllerMRA* root, std::vector<VeldraController*>& controllers);

    // The device graphs of one controller: they append what they make to
    // newInstances, and the caller hands it to the collection.
    void addEnclosures(int number, VeldraController* controller, QLN_VDArraySystem* arraySystem,
                       QLN_VDPhysicalPackage* physicalPackage,
                       std::vector<VeldraEnclosure> const& enclosures,
                       std::vector<CageEntry>& cages,
                       std::vector<CmpiManagedInstance*>& newInstances);
    void addPhysicalDisks(int number, VeldraController* controller,
                          std::vector<VeldraPhysicalDisk> const& physicals,
                          QLN_VDArraySystem* arraySystem, std::vector<PoolEntry> const& pools,
                          std::vector<VeldraCFUArray> const& arrays,
                          std::vector<CageEntry> const& cages,
                          std::vector<QLN_VDISASSCSIProtocolEndpoint*> const& initiatorEndpoints,
                          std::vector<ExtentEntry>& sparePaths,
                          std::vector<ExtentEntry>& nonSparePaths,
                          std::vector<CmpiManagedInstance*>& newInstances);
    void addLogicalDisks(int number, VeldraController* controller,
                         std::vector<VeldraLogicalDisk> const& logicals,
                         QLN_VDArraySystem* arraySystem,
                         QLN_VDSCSIProtocolController* protocolController,
                         std::vector<PoolEntry> const& pools,
                         std::vector<ExtentEntry> const& sparePaths,
                         std::vector<ExtentEntry> const& nonSparePaths,
                         std::vector<CmpiManagedInstance*>& newInstances);
    // Gives each array its data and spare disks from `physicals`, as the
    // first build and every worker pass do.
    static void stampArrayDisks(std::vector<VeldraCFUArray>& arrays,
                                std::vector<VeldraPhysicalDisk> const& physicals);
    // The host view of one controller in root/cimv2.
    void addViews(int number, VeldraController* controller);
    // New view volumes and extents for these controllers, in place of theirs.
    void rebuildViews(std::vector<DRSV_VDController*> const& rescan);

private:
    void _releaseCarriedLists();

    Logger& _logger;
    CmpiManagedInstanceCollection& _collection;
    // Carried from one controller to the next while the first graph is built.
    std::vector<QLN_VDArraySystem*> _arraySystems;
    std::vector<PoolEntry> _pools;
    std::vector<CageEntry> _cages;
    std::vector<QLN_VDISASSCSIProtocolEndpoint*> _initiatorEndpoints;
    std::vector<ExtentEntry> _sparePaths;
    std::vector<ExtentEntry> _nonSparePaths;
    std::vector<VeldraLogicalDisk> _cachedVolumes;
    std::vector<VeldraLogicalDisk> _cacheVolumes;
    // The volume objects that only lend their paths to cache-pair
    // associations; not in the collection, so the builder frees them.
    std::vector<std::unique_ptr<CmpiManagedInstance>> _cachePairEnds;
};

} // namespace QLN
