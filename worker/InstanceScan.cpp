// The scan of a controller with a structural change, and the batch at the end
// of a pass. The graph is never edited while it is walked: the scan only
// collects paths and pointers, and the batch removes associations before the
// instances at their ends, and adds last.
#include "QLNVeldraProvider.h"

#include "CmpiManagedInstanceAssociation.h"
#include "CmpiObjectPathResult.h"
#include "QLN_VDArrayController.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDDiskDriveFirmware.h"
#include "QLN_VDDiskDriveLocation.h"
#include "QLN_VDDiskPhysicalPackage.h"
#include "QLN_VDDriveCage.h"
#include "QLN_VDDriveCageLocation.h"
#include "QLN_VDEnclosureFirmware.h"
#include "QLN_VDISASSCSIProtocolEndpoint.h"
#include "QLN_VDLumenDriveCarrierAppFirmware.h"
#include "QLN_VDLumenDriveCarrierBootldrFirmware.h"
#include "QLN_VDMediaAccessStatData.h"
#include "QLN_VDPhysicalPackage.h"
#include "QLN_VDSCSIProtocolController.h"
#include "QLN_VDSpareExtentStorageExtent.h"
#include "QLN_VDSpareExtentStorageRedundancySet.h"
#include "QLN_VDStorageEnclosure.h"
#include "QLN_VDStorageEnclosureLocation.h"
#include "QLN_VDStorageEnclosureProcessor.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStorageExtentStorageVolume.h"
#include "QLN_VDStoragePoolStorageExtent.h"
#include "QLN_VDStorageRedundancySet.h"
#include "QLN_VDStorageRedundancySetStorageExtent.h"
#include "QLN_VDStorageSetting.h"
#include "QLN_VDStorageVolume.h"
#include "QLN_VDTSASPort.h"
#include "QLN_VDTSASSCSIProtocolEndpoint.h"
#include "VeldraStorageFunctions.h"
#include "WorkerPass.h"

#include <algorithm>

namespace QLN {

namespace {

// None of the matches looks at the controller: serial numbers and box
// numbers are what tie an instance to a record.
template <typename Instance>
bool enclosureMatch(Instance const& instance, VeldraEnclosure const& record) {
    return record.getEnclosureBoxNumber() == static_cast<u32>(instance.getEnclosureBoxNumber());
}

// A disk without a serial number is known only by where it sits.
bool diskMatch(std::string const& serial, int box, int bay, VeldraPhysicalDisk const& record) {
    if (!serial.empty()) {
        return record.getSerialNumber() == serial;
    }
    return record.getSerialNumber().empty() && record.getEnclosureBoxNumber() == box &&
           record.getBay() == bay;
}

bool diskMatch(DiskCompanion const& instance, VeldraPhysicalDisk const& record) {
    return diskMatch(instance.getSerialNumber(), instance.getBoxNumber(), instance.getBay(),
                     record);
}

bool portMatch(DiskPathDevice const& instance, VeldraPhysicalDisk const& record) {
    return isPortInPaths(instance.getPort(), record.getLastAllPhysicalPaths()) &&
           record.getEnclosureBoxNumber() == instance.getBoxNumber() &&
           record.getBay() == instance.getBay();
}

template <typename Instance, typename Records, typename Match>
void deleteMatching(Logger& logger, CmpiManagedInstance* candidate, Records const& records,
                    Match match, char const* line,
                    std::vector<CmpiCpp::CmpiObjectPath>& deletions) {
    auto* instance = dynamic_cast<Instance*>(candidate);
    if (instance == nullptr) {
        return;
    }
    for (auto const& record : records) {
        if (match(*instance, record)) {
            logger.info("%s", line);
            deletions.push_back(instance->getPath());
        }
    }
}

} // namespace

void QLNVeldraProvider::_scanForController(WorkerPass& pass,
                                           QLN_VDArrayController* arrayController) {
    VeldraController* controller = arrayController->getController();
    auto& deletions = pass.pendingDeletions;
    auto const& removedEnclosures = pass.removedEnclosures;
    auto const& removedDisks = pass.removedPhysicals;
    auto const& removedLogicals = pass.removedLogicals;
    auto sameSerial = [](auto const& instance, auto const& record) {
        return instance.getSerialNumber() == record.getSerialNumber();
    };
    auto disk = [](DiskCompanion const& instance, VeldraPhysicalDisk const& record) {
        return diskMatch(instance, record);
    };
    // Routes are told apart by port, box and bay only, and a second
    // controller often has a disk at the same place: without this test,
    // pulling a disk from one controller would drop the other's route.
    auto port = [controller](DiskPathDevice const& instance, VeldraPhysicalDisk const& record) {
        return instance.getController() == controller && portMatch(instance, record);
    };
    auto enclosure = [](auto const& instance, VeldraEnclosure const& record) {
        return enclosureMatch(instance, record);
    };

    for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
        CmpiManagedInstance* candidate = _managedInstances.getManagedInstance(i);
        if (auto* system = dynamic_cast<QLN_VDArraySystem*>(candidate);
            system && system->getController() == controller) {
            _logger.info("found vdArraySystem");
            pass.arraySystem = system;
        }
        if (auto* endpoint = dynamic_cast<QLN_VDISASSCSIProtocolEndpoint*>(candidate);
            endpoint && endpoint->getController() == controller) {
            _logger.info("found initiator protocol endpoint");
            pass.initiatorEndpoints.push_back(endpoint);
        }
        if (auto* package = dynamic_cast<QLN_VDPhysicalPackage*>(candidate);
            package && package->getController() == controller) {
            _logger.info("found vdPhysicalPackage");
            pass.physicalPackage = package;
        }
        if (auto* cage = dynamic_cast<QLN_VDDriveCage*>(candidate)) {
            for (VeldraEnclosure const& current : pass.currentEnclosures) {
                // Box numbers repeat across controllers; a new disk hangs
                // only in a cage of its own controller.
                if (cage->getController() == controller && enclosureMatch(*cage, current)) {
                    _logger.info("found current vdDriveCage");
                    pass.cages.push_back(
                        CageEntry{cage->getTag(), cage->getBoxNumber(), cage->getPaths(), cage});
                }
            }
            for (VeldraEnclosure const& removed : removedEnclosures) {
                if (enclosureMatch(*cage, removed)) {
                    _logger.info("found drive cage to remove");
                    deletions.push_back(cage->getPath());
                }
            }
        }
        deleteMatching<QLN_VDDriveCageLocation>(_logger, candidate, removedEnclosures, enclosure,
                                                "found drive cage location to remove", deletions);
        deleteMatching<QLN_VDStorageEnclosure>(_logger, candidate, removedEnclosures, enclosure,
                                               "found enclosure to remove", deletions);
        deleteMatching<QLN_VDStorageEnclosureLocation>(
            _logger, candidate, removedEnclosures, enclosure, "found enclosure location to remove",
            deletions);
        deleteMatching<QLN_VDStorageEnclosureProcessor>(
            _logger, candidate, removedEnclosures, enclosure, "found enclosure processor to remove",
            deletions);
        deleteMatching<QLN_VDEnclosureFirmware>(_logger, candidate, removedEnclosures, enclosure,
                                                "found enclosure processor firmware to remove",
                                                deletions);
        deleteMatching<QLN_VDDiskDrive>(_logger, candidate, removedDisks, disk,
                                        "found disk to remove", deletions);
        deleteMatching<QLN_VDDiskDriveFirmware>(_logger, candidate, removedDisks, sameSerial,
                                                "found disk firmware to remove", deletions);
        deleteMatching<QLN_VDDiskDriveLocation>(_logger, candidate, removedDisks, disk,
                                                "found disk location to remove", deletions);
        deleteMatching<QLN_VDDiskPhysicalPackage>(_logger, candidate, removedDisks, disk,
                                                  "found disk package to remove", deletions);
        deleteMatching<QLN_VDMediaAccessStatData>(_logger, candidate, removedDisks, disk,
                                                  "found disk statistics to remove", deletions);
        deleteMatching<QLN_VDTSASPort>(_logger, candidate, removedDisks, port,
                                       "found disk TSASPort to remove", deletions);
        deleteMatching<QLN_VDTSASSCSIProtocolEndpoint>(
            _logger, candidate, removedDisks, port, "found disk TSASSCSIProtocolEndpoint to remove",
            deletions);
        deleteMatching<QLN_VDLumenDriveCarrierAppFirmware>(
            _logger, candidate, removedDisks, sameSerial,
            "found LumenDriveCarrierApp Firmware to remove", deletions);
        deleteMatching<QLN_VDLumenDriveCarrierBootldrFirmware>(
            _logger, candidate, removedDisks, sameSerial,
            "found LumenDriveCarrierBootldr Firmware to remove", deletions);
        if (auto* extent = dynamic_cast<QLN_VDStorageExtent*>(candidate)) {
            for (VeldraPhysicalDisk const& removed : removedDisks) {
                if (diskMatch(*extent, removed)) {
                    _logger.info("found extent to remove");
                    deletions.push_back(extent->getPath());
                }
            }
            for (VeldraPhysicalDisk const& current : pass.currentPhysicals) {
                if (!diskMatch(*extent, current)) {
                    continue;
                }
                _logger.info("found current disk path");
                ExtentEntry const entry{current.getSerialNumber(),
                                        current.getLastAllPhysicalPaths(),
                                        current.getEnclosureBoxNumber(),
                                        current.getBay(),
                                        current.getId(),
                                        extent};
                if (current.getConfiguration() == PD_CONFIG_SPARE) {
                    pass.spareExtents.push_back(entry);
                } else if (current.getConfiguration() == PD_CONFIG_DATA) {
                    pass.dataExtents.push_back(entry);
                }
            }
        }
        if (auto* protocol = dynamic_cast<QLN_VDSCSIProtocolController*>(candidate);
            protocol && protocol->getController() == controller) {
            _logger.info("found SCSI protocol controller");
            pass.protocolController = protocol;
        }
        deleteMatching<QLN_VDStorageVolume>(_logger, candidate, removedLogicals, sameSerial,
                                            "found volume to remove", deletions);
        deleteMatching<QLN_VDStorageSetting>(_logger, candidate, removedLogicals, sameSerial,
                                             "found setting to remove", deletions);
        deleteMatching<QLN_VDStorageRedundancySet>(_logger, candidate, removedLogicals, sameSerial,
                                                   "found redundancy set to remove", deletions);
    }
}

void QLNVeldraProvider::_createNewDevices(WorkerPass& pass,
                                          QLN_VDArrayController* arrayController) {
    VeldraController* controller = arrayController->getController();
    int const number = static_cast<int>(arrayController->getControllerIndex());
    std::vector<CmpiManagedInstance*> made;
    auto keep = [&] {
        pass.pendingAdditions.insert(pass.pendingAdditions.end(), made.begin(), made.end());
        made.clear();
    };
    // A controller whose system the scan did not find has nothing to hang
    // devices on; its records wait for a later pass.
    if (pass.arraySystem == nullptr || pass.arraySystem->getController() != controller) {
        _logger.error("no array system for the controller; devices not created");
        return;
    }

    // The first graph hands its cage and pool lists on from one controller to
    // the next, so a disk also hangs in the cages and pools of the same box
    // and array on every earlier controller. Devices made here follow the
    // same rule, or a pass would build a graph that a restart would not.
    std::vector<CageEntry> cages;
    for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
        auto* cage = dynamic_cast<QLN_VDDriveCage*>(_managedInstances.getManagedInstance(i));
        if (cage == nullptr || cage->getControllerIndex() > arrayController->getControllerIndex()) {
            continue;
        }
        CmpiCpp::CmpiObjectPath const path = cage->getPath();
        // A cage on its way out must not gain a disk that would point at it.
        if (std::none_of(
                pass.pendingDeletions.begin(), pass.pendingDeletions.end(),
                [&](CmpiCpp::CmpiObjectPath const& gone) { return gone.str() == path.str(); })) {
            cages.push_back(
                CageEntry{cage->getTag(), cage->getBoxNumber(), cage->getPaths(), cage});
        }
    }
    std::vector<PoolEntry> const& pools = pass.inheritedPools;

    // Enclosures first: new disks hang in their cages, new volumes on extents.
    std::vector<CageEntry> newCages;
    _logger.info("calling createEnclosure");
    _createAllEnclosureInstances(number, controller, pass.arraySystem, pass.physicalPackage,
                                 pass.newEnclosures, newCages, made);
    _logger.info("return from create enclosures");
    keep();
    pass.cages.insert(pass.cages.end(), newCages.begin(), newCages.end());
    cages.insert(cages.end(), newCages.begin(), newCages.end());

    _logger.info("calling createPhysical");
    _createAllPhysicalDiskInstances(number, controller, pass.newPhysicals, pass.arraySystem, pools,
                                    pass.arrays, cages, pass.initiatorEndpoints, pass.spareExtents,
                                    pass.dataExtents, made);
    _logger.info("return from create physical");
    keep();

    _logger.info("calling createLogical");
    _createAllLogicalDiskInstances(number, controller, pass.newLogicals, pass.arraySystem,
                                   pass.protocolController, pools, pass.spareExtents,
                                   pass.dataExtents, made);
    _logger.info("return from create logical");
    keep();
}

void QLNVeldraProvider::_applyPending(WorkerPass& pass) {
    auto& associationDeletions = pass.pendingAssociationDeletions;
    auto searchTwoEnded = [&](std::vector<CmpiCpp::CmpiObjectPath> const& ends, auto accepts) {
        for (unsigned int i = 0; i < _managedInstances.size(); ++i) {
            CmpiManagedInstance* candidate = _managedInstances.getManagedInstance(i);
            auto* association = dynamic_cast<CmpiManagedInstanceAssociation*>(candidate);
            if (association == nullptr || !accepts(candidate)) {
                continue;
            }
            for (CmpiCpp::CmpiObjectPath const& end : ends) {
                if (!association->otherEnd(end).empty()) {
                    associationDeletions.push_back(association->getPath());
                }
            }
        }
    };

    // Every association that names a deleted instance as an end, found
    // through the collection's index of ends rather than by asking each
    // association about each path: removing a whole controller's disks would
    // otherwise cost associations times deletions.
    struct Named : CmpiCpp::CmpiObjectPathResult {
        explicit Named(std::vector<CmpiCpp::CmpiObjectPath>& into) : paths(into) {}
        void returnObjectPath(CmpiCpp::CmpiObjectPath const& path) override {
            paths.push_back(path);
        }
        std::vector<CmpiCpp::CmpiObjectPath>& paths;
    } named(associationDeletions);
    for (CmpiCpp::CmpiObjectPath const& end : pass.pendingDeletions) {
        _managedInstances.referenceNames(named, CmpiCpp::CmpiContext(), end, CmpiCpp::CmpiName(),
                                         CmpiCpp::CmpiName());
    }
    if (!pass.passiveSpareEntries.empty()) {
        std::vector<CmpiCpp::CmpiObjectPath> extents;
        for (ExtentEntry const& entry : pass.passiveSpareEntries) {
            extents.push_back(entry.extent->getPath());
        }
        searchTwoEnded(extents, [](CmpiManagedInstance* c) {
            return dynamic_cast<QLN_VDSpareExtentStorageExtent*>(c);
        });
    }
    if (!pass.removedDataExtents.empty()) {
        searchTwoEnded(pass.removedDataExtents, [](CmpiManagedInstance* c) {
            return dynamic_cast<QLN_VDStorageExtentStorageVolume*>(c) ||
                   dynamic_cast<QLN_VDStoragePoolStorageExtent*>(c) ||
                   dynamic_cast<QLN_VDStorageRedundancySetStorageExtent*>(c);
        });
    }
    if (!pass.removedSpareExtents.empty()) {
        searchTwoEnded(pass.removedSpareExtents, [](CmpiManagedInstance* c) {
            return dynamic_cast<QLN_VDSpareExtentStorageRedundancySet*>(c);
        });
    }

    auto remove = [this](std::vector<CmpiCpp::CmpiObjectPath> const& paths) {
        for (std::size_t i = 0; i < paths.size(); ++i) {
            _logger.info("removing instance %d:", static_cast<int>(i));
            // An association listed twice is simply not there the second time.
            _managedInstances.deleteInstance(paths[i]);
            _logger.info("removed instance %d:", static_cast<int>(i));
        }
    };
    _logger.info("removing association instances %d:",
                 static_cast<int>(associationDeletions.size()));
    remove(associationDeletions);
    _logger.info("removing instances %d:", static_cast<int>(pass.pendingDeletions.size()));
    remove(pass.pendingDeletions);
    _logger.info("adding instances %d:", static_cast<int>(pass.pendingAdditions.size()));
    // Handed over one by one: once the collection holds one, it is no longer
    // ours to free if a later one throws.
    for (CmpiManagedInstance*& instance : pass.pendingAdditions) {
        CmpiManagedInstance* const handed = instance;
        instance = nullptr;
        _managedInstances.createInstance(handed);
    }
    pass.pendingAdditions.clear();
}

} // namespace QLN
