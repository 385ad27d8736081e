// One worker pass: heartbeat, then each controller reports what changed and
// the graph is reconciled under the provider lock; deletions and additions
// reach the collection only at the end, in one batch.
#include "QLNVeldraProvider.h"

#include "DRSV_VDController.h"
#include "GraphBuilder.h"
#include "QLNUtil.h"
#include "QLN_VDArrayController.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStorageRedundancySet.h"
#include "QLN_VDStorageSpecificCollection.h"
#include "QLN_VeldraIndication.h"
#include "WorkerPass.h"

namespace QLN {

namespace {
char const* const heartbeatNameSpace = "root/mwq";
int const heartbeatEvent = 100;
} // namespace

std::uint32_t QLNVeldraProvider::_backgroundWorker(CmpiCpp::CmpiContext const& context) {
    _logger.info("::_backgroundWorker");
    if (_indicationsEnabled) {
        _workerEnteredWithIndications = true;
        // Before the lock and before any controller: a subscriber hears from
        // a running system even when no hardware changes.
        if (_heartbeatEnabled) {
            _logger.info("Send heartbeat indication");
            QLN_VeldraIndication heartbeat(_logger, heartbeatNameSpace);
            heartbeat.sendIndication(heartbeatEvent, 0, 0, "", "", "", "", "", "", 0, "", "",
                                     context);
        }
    }

    WorkerPass pass;
    bool locked = false;
    pthread_mutex_lock(&_providerMutex);
    locked = true;
    // The one handler of the pass: whatever throws, the lock is given back and
    // the caller of PerformWork hears of it. Nothing pending reaches the graph.
    try {
        // The graph changes only in the batch, so only a pass with a batch
        // walks the collection again after it.
        PassRoster roster = _rosterOf();
        for (QLN_VDArrayController* arrayController : roster.controllers) {
            _logger.info("handling controller");
            _handleController(pass, arrayController, roster.pools, context);
        }
        bool const graphChanges = !pass.pendingDeletions.empty() || !pass.pendingAdditions.empty();
        _applyPending(pass);
        if (graphChanges) {
            roster = _rosterOf();
        }

        _logger.info("starting array system manage dynamic");
        for (QLN_VDArraySystem* system : roster.arraySystems) {
            system->manageDynamic(_indicationsEnabled, context);
        }
        // The group's status is made from the systems', so they go first.
        for (QLN_VDStorageSpecificCollection* group : roster.groups) {
            group->manageDynamic(_indicationsEnabled, context, roster.arraySystems);
        }
        for (QLN_VDStorageRedundancySet* set : roster.redundancySets) {
            set->manageDynamic(_indicationsEnabled, context);
        }
        locked = false;
        pthread_mutex_unlock(&_providerMutex);

        // Takes the provider lock itself, so only after the unlock.
        _updateViewClassInstances();

        // Posted on every pass, changed or not. The groups are never deleted
        // by a pass, so the pointers of the roster are still good here.
        for (QLN_VDStorageSpecificCollection* group : roster.groups) {
            QLNUtil::postStatus(_logger, context, group->getInstance());
        }
    } catch (...) {
        _logger.info("caught exception in manageDynamic");
        // Instances made for the graph but never handed over belong to nobody.
        for (CmpiManagedInstance* instance : pass.pendingAdditions) {
            delete instance;
        }
        pass.pendingAdditions.clear();
        if (locked) {
            pthread_mutex_unlock(&_providerMutex);
        }
        throw;
    }
    return 0;
}

// The controllers, pools, systems, groups, redundancy sets and view
// controllers in collection order, as a walk by index with a cast would find
// them. The walk is kept until the collection changes, so a quiet pass on a
// large graph looks at none of its other instances.
PassRoster QLNVeldraProvider::_rosterOf() const {
    std::uint64_t const generation = _managedInstances.generation();
    if (_roster != nullptr && generation == _rosterGeneration) {
        return *_roster;
    }
    PassRoster roster;
    for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
        CmpiManagedInstance* instance = _managedInstances.getManagedInstance(i);
        if (auto* controller = dynamic_cast<QLN_VDArrayController*>(instance)) {
            roster.controllers.push_back(controller);
        } else if (auto* pool = dynamic_cast<QLN_VDStoragePool*>(instance)) {
            roster.pools.push_back(pool);
        } else if (auto* system = dynamic_cast<QLN_VDArraySystem*>(instance)) {
            roster.arraySystems.push_back(system);
        } else if (auto* group = dynamic_cast<QLN_VDStorageSpecificCollection*>(instance)) {
            roster.groups.push_back(group);
        } else if (auto* set = dynamic_cast<QLN_VDStorageRedundancySet*>(instance)) {
            roster.redundancySets.push_back(set);
        } else if (auto* view = dynamic_cast<DRSV_VDController*>(instance)) {
            roster.viewControllers.push_back(view);
        }
    }
    _roster = std::make_shared<PassRoster const>(roster);
    _rosterGeneration = generation;
    return roster;
}

void QLNVeldraProvider::_handleController(WorkerPass& pass, QLN_VDArrayController* arrayController,
                                          std::vector<QLN_VDStoragePool*> const& pools,
                                          CmpiCpp::CmpiContext const& context) {
    pass.clearController();
    VeldraController* controller = arrayController->getController();
    for (QLN_VDStoragePool* pool : pools) {
        if (pool->getController() == controller) {
            _logger.info("found storage pool");
            pass.pools.push_back(PoolEntry{pool->getArrayId(), pool});
        }
        if (pool->getControllerIndex() <= arrayController->getControllerIndex()) {
            pass.inheritedPools.push_back(PoolEntry{pool->getArrayId(), pool});
        }
    }

    arrayController->manageDynamic(
        _indicationsEnabled, context, pass.currentEnclosures, pass.newEnclosures,
        pass.removedEnclosures, pass.pathChangeEnclosures, pass.currentLogicals, pass.newLogicals,
        pass.removedLogicals, pass.currentPhysicals, pass.newPhysicals, pass.removedPhysicals,
        pass.configChangedPhysicals, pass.spareStateChangePhysicals, pass.pathChangePhysicals);
    _logger.info("returned from manage dynamic");
    auto logSize = [this](char const* format, std::size_t size) {
        _logger.info(format, static_cast<int>(size));
    };
    logSize("number of current enclosures %d:", pass.currentEnclosures.size());
    logSize("number of new enclosures %d:", pass.newEnclosures.size());
    logSize("number of removed enclosures %d:", pass.removedEnclosures.size());
    logSize("number of path change enclosures %d:", pass.pathChangeEnclosures.size());
    logSize("number of current logical disks %d:", pass.currentLogicals.size());
    logSize("number of new logical disks %d:", pass.newLogicals.size());
    logSize("number of removed logical disks %d:", pass.removedLogicals.size());
    logSize("number of current physical disks %d:", pass.currentPhysicals.size());
    logSize("number of new physical disks %d:", pass.newPhysicals.size());
    logSize("number of removed physical disks %d:", pass.removedPhysicals.size());
    logSize("number of config changed physical disks %d:", pass.configChangedPhysicals.size());
    logSize("number of spare state change physical disks %d:",
            pass.spareStateChangePhysicals.size());
    logSize("number of path change physical disks %d:", pass.pathChangePhysicals.size());

    // Every controller has one concrete pool, array "1".
    VeldraCFUArray array;
    array.setArrayID("1");
    pass.arrays.push_back(array);
    GraphBuilder::stampArrayDisks(pass.arrays, pass.currentPhysicals);

    // Config, spare and path changes alone never need the scan: they only
    // move associations, which the two steps after it handle.
    if (pass.structuralChange()) {
        _scanForController(pass, arrayController);
        _createNewDevices(pass, arrayController);
    }
    _addNewDiskPaths(pass, arrayController);
    _reconcileMembership(pass, arrayController);
}

} // namespace QLN
