#pragma once
// What one worker pass collects while it walks the controllers, and hands to
// the batch at its end. Nothing here outlives the pass.
#include "CmpiObjectPath.h"
#include "GraphEntries.h"
#include "VeldraCFUArray.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"

#include <vector>

namespace QLN {

class CmpiManagedInstance;
class QLN_VDArraySystem;
class QLN_VDPhysicalPackage;
class QLN_VDSCSIProtocolController;
class QLN_VDISASSCSIProtocolEndpoint;

class DRSV_VDController;
class QLN_VDArrayController;
class QLN_VDStoragePool;
class QLN_VDStorageRedundancySet;
class QLN_VDStorageSpecificCollection;

// The instances a pass works on, in collection order.
struct PassRoster {
    std::vector<QLN_VDArrayController*> controllers;
    std::vector<QLN_VDStoragePool*> pools;
    std::vector<QLN_VDArraySystem*> arraySystems;
    std::vector<QLN_VDStorageSpecificCollection*> groups;
    std::vector<QLN_VDStorageRedundancySet*> redundancySets;
    std::vector<DRSV_VDController*> viewControllers;
};

struct WorkerPass {
    // Across all controllers of the pass.
    std::vector<CmpiCpp::CmpiObjectPath> pendingDeletions;
    std::vector<CmpiCpp::CmpiObjectPath> pendingAssociationDeletions;
    std::vector<CmpiManagedInstance*> pendingAdditions;
    std::vector<CmpiCpp::CmpiObjectPath> removedDataExtents;
    std::vector<CmpiCpp::CmpiObjectPath> removedSpareExtents;
    std::vector<CageEntry> cages;
    // Kept across controllers, so that a spare change on any controller
    // loses its old spare associations, not only one on the last.
    std::vector<ExtentEntry> passiveSpareEntries;

    // Kept from the last scan of the pass; null until a scan found them.
    QLN_VDArraySystem* arraySystem = nullptr;
    QLN_VDPhysicalPackage* physicalPackage = nullptr;
    QLN_VDSCSIProtocolController* protocolController = nullptr;

    // Per controller, cleared at its head.
    std::vector<QLN_VDISASSCSIProtocolEndpoint*> initiatorEndpoints;
    std::vector<PoolEntry> pools;
    // This controller's pools and those of every earlier controller: the
    // first graph links a disk to all of them, and so do the devices a pass makes.
    std::vector<PoolEntry> inheritedPools;
    std::vector<ExtentEntry> spareExtents;
    std::vector<ExtentEntry> dataExtents;
    std::vector<VeldraCFUArray> arrays;

    std::vector<VeldraEnclosure> currentEnclosures;
    std::vector<VeldraEnclosure> removedEnclosures;
    std::vector<VeldraEnclosure> newEnclosures;
    std::vector<VeldraEnclosure> pathChangeEnclosures;
    std::vector<VeldraLogicalDisk> currentLogicals;
    std::vector<VeldraLogicalDisk> removedLogicals;
    std::vector<VeldraLogicalDisk> newLogicals;
    std::vector<VeldraPhysicalDisk> currentPhysicals;
    std::vector<VeldraPhysicalDisk> removedPhysicals;
    std::vector<VeldraPhysicalDisk> newPhysicals;
    std::vector<VeldraPhysicalDisk> configChangedPhysicals;
    std::vector<VeldraPhysicalDisk> spareStateChangePhysicals;
    std::vector<VeldraPhysicalDisk> pathChangePhysicals;

    void clearController() {
        initiatorEndpoints.clear();
        pools.clear();
        inheritedPools.clear();
        spareExtents.clear();
        dataExtents.clear();
        arrays.clear();
        currentEnclosures.clear();
        removedEnclosures.clear();
        newEnclosures.clear();
        pathChangeEnclosures.clear();
        currentLogicals.clear();
        removedLogicals.clear();
        newLogicals.clear();
        currentPhysicals.clear();
        removedPhysicals.clear();
        newPhysicals.clear();
        configChangedPhysicals.clear();
        spareStateChangePhysicals.clear();
        pathChangePhysicals.clear();
    }

    bool structuralChange() const {
        return !newEnclosures.empty() || !newLogicals.empty() || !newPhysicals.empty() ||
               !removedEnclosures.empty() || !removedLogicals.empty() || !removedPhysicals.empty();
    }
};

} // namespace QLN
