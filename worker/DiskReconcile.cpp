// The two steps that run for every controller on every pass, structural
// change or not: new routes of a disk, and the membership of each logical
// disk (which extents belong to its volume, pool and redundancy set).
#include "QLNVeldraProvider.h"

#include "QLN_VDArrayController.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDArraySystemTSASPort.h"
#include "QLN_VDArraySystemTSASSCSIProtocolEndpoint.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDDiskDriveTSASSCSIProtocolEndpoint.h"
#include "QLN_VDISASSCSIProtocolEndpoint.h"
#include "QLN_VDSpareExtentStorageExtent.h"
#include "QLN_VDSpareExtentStorageRedundancySet.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStorageExtentStorageVolume.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStoragePoolStorageExtent.h"
#include "QLN_VDStorageRedundancySet.h"
#include "QLN_VDStorageRedundancySetStorageExtent.h"
#include "QLN_VDStorageVolume.h"
#include "QLN_VDTSASPort.h"
#include "QLN_VDTSASPortTSASSCSIProtocolEndpoint.h"
#include "QLN_VDTSASSCSIProtocolEndpoint.h"
#include "VeldraStorageFunctions.h"
#include "WorkerPass.h"

#include <algorithm>

namespace QLN {

namespace {

char const* const workerNameSpace = "root/mwq";

bool sameDisk(DiskCompanion const& instance, VeldraPhysicalDisk const& record) {
    if (!instance.getSerialNumber().empty()) {
        return record.getSerialNumber() == instance.getSerialNumber();
    }
    return record.getSerialNumber().empty() &&
           record.getEnclosureBoxNumber() == instance.getBoxNumber() &&
           record.getBay() == instance.getBay();
}

int findDisk(VeldraPhysicalDisk const& disk, std::vector<VeldraPhysicalDisk> const& in) {
    return findPhysicalDiskInVector(disk.getSerialNumber(), disk.getEnclosureBoxNumber(),
                                    disk.getBay(), in);
}

} // namespace

void QLNVeldraProvider::_addNewDiskPaths(WorkerPass& pass, QLN_VDArrayController* arrayController) {
    VeldraController* controller = arrayController->getController();
    unsigned int const index = arrayController->getControllerIndex();
    std::string const ns = workerNameSpace;
    for (std::size_t d = 0; d < pass.pathChangePhysicals.size(); ++d) {
        VeldraPhysicalDisk const& disk = pass.pathChangePhysicals[d];
        int const at = static_cast<int>(d);
        std::vector<VeldraPhysicalPath> const previous = disk.getLastAllPhysicalPaths();
        _logger.info("previous paths for physical %d: %d", at, static_cast<int>(previous.size()));
        std::vector<VeldraPhysicalPath> const current = disk.getPaths();
        _logger.info("current paths for physical %d: %d", at, static_cast<int>(current.size()));
        std::vector<VeldraPhysicalPath> added;
        findNewVDPhysicalPaths(previous, current, added);
        _logger.info("new paths for physical %d: %d", at, static_cast<int>(added.size()));
        if (added.empty()) {
            continue;
        }
        // Without this controller's system (no scan ran) a port would hang
        // on the wrong system or none; the route waits for a pass with a scan.
        if (pass.arraySystem == nullptr || pass.arraySystem->getController() != controller) {
            continue;
        }
        auto* port = new QLN_VDTSASPort(_logger, ns, index, disk, added.front(), 1, controller);
        pass.pendingAdditions.push_back(port);
        pass.pendingAdditions.push_back(
            new QLN_VDArraySystemTSASPort(_logger, ns, pass.arraySystem, port));
        auto* endpoint = new QLN_VDTSASSCSIProtocolEndpoint(_logger, ns, index, disk, added.front(),
                                                            1, controller);
        pass.pendingAdditions.push_back(endpoint);
        pass.pendingAdditions.push_back(
            new QLN_VDArraySystemTSASSCSIProtocolEndpoint(_logger, ns, pass.arraySystem, endpoint));
        pass.pendingAdditions.push_back(
            new QLN_VDTSASPortTSASSCSIProtocolEndpoint(_logger, ns, port, endpoint));

        // The initiator side stays unlinked: nothing sets its flag, so its
        // test never runs and the walk always goes to the end. The branch is
        // kept where it stands in the walk, guarded by the flag, on purpose.
        bool foundInitiator = false;
        bool foundExtent = false;
        QLN_VDDiskDrive* drive = nullptr;
        for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
            CmpiManagedInstance* candidate = _managedInstances.getManagedInstance(i);
            if (foundInitiator) {
                auto* initiator = dynamic_cast<QLN_VDISASSCSIProtocolEndpoint*>(candidate);
                if (initiator != nullptr && isPortInPaths(initiator->getPort(), added)) {
                    _logger.info("found IPE to associate");
                    foundInitiator = true;
                    break;
                }
            }
            if (auto* extent = dynamic_cast<QLN_VDStorageExtent*>(candidate);
                !foundExtent && extent && sameDisk(*extent, disk)) {
                _logger.info("found SE to associate");
                foundExtent = true;
            }
            if (auto* candidateDrive = dynamic_cast<QLN_VDDiskDrive*>(candidate);
                drive == nullptr && candidateDrive && sameDisk(*candidateDrive, disk)) {
                _logger.info("found disk drive to associate");
                drive = candidateDrive;
            }
            if (foundInitiator && foundExtent && drive != nullptr) {
                break;
            }
        }
        if (drive != nullptr) {
            pass.pendingAdditions.push_back(
                new QLN_VDDiskDriveTSASSCSIProtocolEndpoint(_logger, ns, drive, endpoint));
        }
    }
}

void QLNVeldraProvider::_reconcileMembership(WorkerPass& pass,
                                             QLN_VDArrayController* arrayController) {
    VeldraController* controller = arrayController->getController();
    unsigned int const index = arrayController->getControllerIndex();
    std::string const ns = workerNameSpace;
    for (std::size_t l = 0; l < pass.currentLogicals.size(); ++l) {
        VeldraLogicalDisk const& logical = pass.currentLogicals[l];
        int const at = static_cast<int>(l);
        std::vector<VeldraPhysicalDisk> previous = logical.getLastAllPhysicalDisks();
        _logger.info("previous physicals for logical %d: %d", at,
                     static_cast<int>(previous.size()));
        std::vector<VeldraPhysicalDisk> current =
            logical.logicalToAllPhysicals(pass.currentPhysicals);
        _logger.info("current physicals for logical %d: %d", at, static_cast<int>(current.size()));
        std::vector<VeldraPhysicalDisk> added;
        std::vector<VeldraPhysicalDisk> removed;
        findNewVDPhysicalDisks(previous, current, added);
        findRemovedVDPhysicalDisks(previous, current, removed);
        _logger.info("new physicals for logical %d: %d", at, static_cast<int>(added.size()));
        _logger.info("removed physicals for logical %d: %d", at, static_cast<int>(removed.size()));

        // A disk put back into a logical disk it belonged to is a member
        // before and after, yet its extent is new and needs its associations.
        if (findLogicalDiskInVector(logical.getSerialNumber(), pass.newLogicals) == -1) {
            for (VeldraPhysicalDisk const& disk : pass.newPhysicals) {
                int const now = findDisk(disk, current);
                if (now != -1 && findDisk(disk, added) == -1) {
                    added.push_back(current[static_cast<std::size_t>(now)]);
                }
            }
        }
        // A role change inside one logical disk is told as a disk that left
        // and came back, so that its old associations go and new ones come.
        for (VeldraPhysicalDisk const& disk : pass.configChangedPhysicals) {
            int const now = findDisk(disk, current);
            int const before = findDisk(disk, previous);
            if (now != -1 && before != -1) {
                _logger.info("config change physical for logical %d: %s", at,
                             disk.getSerialNumber().c_str());
                added.push_back(current[static_cast<std::size_t>(now)]);
                removed.push_back(previous[static_cast<std::size_t>(before)]);
            }
        }
        std::vector<VeldraPhysicalDisk> activeSpares;
        std::vector<VeldraPhysicalDisk> passiveSpares;
        for (VeldraPhysicalDisk const& disk : pass.spareStateChangePhysicals) {
            if (findDisk(disk, current) != -1 && findDisk(disk, previous) != -1) {
                _logger.info("spare state change physical for logical %d: %s", at,
                             disk.getSerialNumber().c_str());
                if (logical.getReplacedDiskID(disk.getId()) == VeldraLogicalDisk::noReplacedDisk) {
                    passiveSpares.push_back(disk);
                } else {
                    activeSpares.push_back(disk);
                }
            }
        }
        // A member that left the system is in neither list (the poll gave
        // the logical disk its members of this pass), yet it may have been
        // the last spare: such a pass looks at the redundancy set too.
        if (added.empty() && removed.empty() && activeSpares.empty() && passiveSpares.empty() &&
            pass.removedPhysicals.empty()) {
            continue;
        }

        std::vector<QLN_VDStorageRedundancySet*> redundancySets;
        std::vector<QLN_VDStorageVolume*> volumes;
        std::vector<ExtentEntry> members;
        std::vector<ExtentEntry> newData;
        std::vector<ExtentEntry> newSpares;
        auto collectOwners = [&](CmpiManagedInstance* candidate) {
            if (auto* set = dynamic_cast<QLN_VDStorageRedundancySet*>(candidate);
                set && set->getSerialNumber() == logical.getSerialNumber()) {
                _logger.info("found redundancy set to modify ");
                redundancySets.push_back(set);
            }
            if (auto* volume = dynamic_cast<QLN_VDStorageVolume*>(candidate);
                volume && volume->getSerialNumber() == logical.getSerialNumber()) {
                _logger.info("found logical disk to modify ");
                volumes.push_back(volume);
            }
        };
        auto sortExtent = [&](QLN_VDStorageExtent* extent) {
            for (VeldraPhysicalDisk const& disk : current) {
                if (sameDisk(*extent, disk)) {
                    members.push_back(
                        ExtentEntry{extent->getSerialNumber(), {}, 0, 0, disk.getId(), extent});
                }
            }
            for (VeldraPhysicalDisk const& disk : added) {
                if (!sameDisk(*extent, disk)) {
                    continue;
                }
                if (disk.getConfiguration() == PD_CONFIG_DATA) {
                    newData.push_back(ExtentEntry{extent->getSerialNumber(), {}, 0, 0, 0, extent});
                }
                if (disk.getConfiguration() == PD_CONFIG_SPARE) {
                    newSpares.push_back(
                        ExtentEntry{extent->getSerialNumber(), {}, 0, 0, disk.getId(), extent});
                }
            }
            for (VeldraPhysicalDisk const& disk : removed) {
                // A disk that left the system goes with its extent; only one
                // that left this logical disk and stays loses its associations here.
                if (!sameDisk(*extent, disk) || findDisk(disk, pass.removedPhysicals) != -1) {
                    continue;
                }
                if (disk.getConfiguration() == PD_CONFIG_DATA) {
                    pass.removedDataExtents.push_back(extent->getPath());
                }
                if (disk.getConfiguration() == PD_CONFIG_SPARE) {
                    pass.removedSpareExtents.push_back(extent->getPath());
                }
            }
        };
        for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
            CmpiManagedInstance* candidate = _managedInstances.getManagedInstance(i);
            collectOwners(candidate);
            if (auto* extent = dynamic_cast<QLN_VDStorageExtent*>(candidate)) {
                sortExtent(extent);
            }
        }
        // Extents of disks that arrived in this pass are not in the graph yet.
        for (CmpiManagedInstance* pending : pass.pendingAdditions) {
            if (auto* extent = dynamic_cast<QLN_VDStorageExtent*>(pending)) {
                sortExtent(extent);
            }
        }
        // The logical disk may be new in this very pass.
        if (redundancySets.empty() || volumes.empty()) {
            for (CmpiManagedInstance* pending : pass.pendingAdditions) {
                collectOwners(pending);
            }
        }
        for (VeldraPhysicalDisk const& spare : passiveSpares) {
            for (ExtentEntry const& member : members) {
                if (member.diskID == spare.getId()) {
                    _logger.info("found passive spare path");
                    pass.passiveSpareEntries.push_back(member);
                }
            }
        }
        // A volume always exists for a logical disk; a missing one is skipped
        // rather than guessed.
        if (!volumes.empty()) {
            for (ExtentEntry const& entry : newData) {
                pass.pendingAdditions.push_back(new QLN_VDStorageExtentStorageVolume(
                    _logger, ns, entry.extent, volumes.front()));
                for (PoolEntry const& pool : pass.inheritedPools) {
                    if (pool.arrayID == "1") {
                        pass.pendingAdditions.push_back(new QLN_VDStoragePoolStorageExtent(
                            _logger, ns, pool.pool, entry.extent));
                    }
                }
            }
        }
        std::vector<ExtentEntry> setMembers = newData;
        if (!newSpares.empty() && redundancySets.empty()) {
            auto* set = new QLN_VDStorageRedundancySet(_logger, ns, index, logical, controller);
            pass.pendingAdditions.push_back(set);
            _logger.info("create new redundancy set ");
            redundancySets.push_back(set);
            // A new set gathers every data member, not only those new in this pass.
            setMembers.clear();
            for (VeldraPhysicalDisk const& disk : current) {
                for (ExtentEntry const& member : members) {
                    if (disk.getConfiguration() == PD_CONFIG_DATA &&
                        member.diskID == disk.getId()) {
                        setMembers.push_back(member);
                    }
                }
            }
        }
        if (!redundancySets.empty()) {
            for (ExtentEntry const& entry : setMembers) {
                _logger.info("create new redundancy set data storage extent");
                pass.pendingAdditions.push_back(new QLN_VDStorageRedundancySetStorageExtent(
                    _logger, ns, redundancySets.front(), entry.extent));
            }
        }
        auto spareFor = [&](QLN_VDStorageExtent* spareExtent, u32 diskId) {
            u32 const replaced = logical.getReplacedDiskID(diskId);
            if (replaced == VeldraLogicalDisk::noReplacedDisk) {
                return;
            }
            for (ExtentEntry const& member : members) {
                if (member.diskID == replaced) {
                    pass.pendingAdditions.push_back(new QLN_VDSpareExtentStorageExtent(
                        _logger, ns, spareExtent, member.extent));
                }
            }
        };
        for (ExtentEntry const& spare : newSpares) {
            pass.pendingAdditions.push_back(new QLN_VDSpareExtentStorageRedundancySet(
                _logger, ns, spare.extent, redundancySets.front()));
            spareFor(spare.extent, spare.diskID);
        }
        for (VeldraPhysicalDisk const& spare : activeSpares) {
            for (ExtentEntry const& member : members) {
                if (member.diskID != spare.getId()) {
                    continue;
                }
                _logger.info("found active path");
                if (logical.getReplacedDiskID(spare.getId()) != VeldraLogicalDisk::noReplacedDisk) {
                    _logger.info("got spared disk id");
                    _logger.info("found spared disk path, create instance");
                    spareFor(member.extent, spare.getId());
                }
            }
        }
        // The last spare gone: the set goes, and its associations with it. A
        // spare that the volume still lists but that was pulled is gone too.
        bool const spareLeft =
            std::any_of(current.begin(), current.end(), [](VeldraPhysicalDisk const& disk) {
                return disk.getConfiguration() == PD_CONFIG_SPARE;
            });
        if (!redundancySets.empty() && (logical.spareDiskIDs.empty() || !spareLeft)) {
            pass.pendingDeletions.push_back(redundancySets.front()->getPath());
        }
    }
    _releaseOrphanedExtents(pass);
}

// A disk whose logical disk was deleted changes its role but belongs to no
// current logical disk, so no membership step sees it: its extent drops the
// volume, pool, redundancy set and spare associations of its old role here.
void QLNVeldraProvider::_releaseOrphanedExtents(WorkerPass& pass) {
    std::vector<VeldraPhysicalDisk const*> orphans;
    for (VeldraPhysicalDisk const& disk : pass.configChangedPhysicals) {
        bool const member =
            std::any_of(pass.currentLogicals.begin(), pass.currentLogicals.end(),
                        [&](VeldraLogicalDisk const& logical) {
                            return findDisk(disk, logical.getLastAllPhysicalDisks()) != -1;
                        });
        if (!member) {
            orphans.push_back(&disk);
        }
    }
    if (orphans.empty()) {
        return;
    }
    for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
        auto* extent = dynamic_cast<QLN_VDStorageExtent*>(_managedInstances.getManagedInstance(i));
        if (extent == nullptr) {
            continue;
        }
        for (VeldraPhysicalDisk const* disk : orphans) {
            if (sameDisk(*extent, *disk)) {
                pass.removedDataExtents.push_back(extent->getPath());
                pass.removedSpareExtents.push_back(extent->getPath());
                pass.passiveSpareEntries.push_back(
                    ExtentEntry{extent->getSerialNumber(), {}, 0, 0, disk->getId(), extent});
            }
        }
    }
}

} // namespace QLN
