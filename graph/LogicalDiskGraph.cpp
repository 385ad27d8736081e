// The logical disks of one controller: volume and setting, their pool, and
// the ties to the extents of their member disks and spares.
#include "GraphBuilder.h"

#include "IdentityHelpers.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDArraySystemStorageVolume.h"
#include "QLN_VDSCSIProtocolController.h"
#include "QLN_VDSCSIProtocolControllerStorageVolume.h"
#include "QLN_VDSpareExtentStorageExtent.h"
#include "QLN_VDSpareExtentStorageRedundancySet.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStorageExtentStorageVolume.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStoragePoolStorageVolume.h"
#include "QLN_VDStorageRedundancySet.h"
#include "QLN_VDStorageRedundancySetStorageExtent.h"
#include "QLN_VDStorageSetting.h"
#include "QLN_VDStorageVolume.h"
#include "QLN_VDStorageVolumeStorageSetting.h"
#include "VeldraStorageFunctions.h"

namespace QLN {

namespace {
u32 const noReplacedDisk = 0xFFFFFFFF;

// A volume's member disk as the extent searches meet it: the carried extent
// lists grow with every controller, so the member is read once, not at
// every comparison.
struct Member {
    explicit Member(VeldraPhysicalDisk const& disk)
        : serial(disk.getSerialNumber()), box(disk.getEnclosureBoxNumber()), bay(disk.getBay()) {}
    std::string serial;
    int box;
    int bay;
};

bool matches(Member const& member, ExtentEntry const& entry) {
    return isSamePhysicalDisk(member.serial, member.box, member.bay, entry.serialNumber,
                              entry.enclosureBoxNumber, entry.bay);
}
} // namespace

void GraphBuilder::addLogicalDisks(int number, VeldraController* controller,
                                   std::vector<VeldraLogicalDisk> const& logicals,
                                   QLN_VDArraySystem* arraySystem,
                                   QLN_VDSCSIProtocolController* protocolController,
                                   std::vector<PoolEntry> const& pools,
                                   std::vector<ExtentEntry> const& sparePaths,
                                   std::vector<ExtentEntry> const& nonSparePaths,
                                   std::vector<CmpiManagedInstance*>& newInstances) {
    std::string const ns = "root/mwq";
    unsigned int const index = static_cast<unsigned int>(number);
    auto add = [&newInstances](auto* instance) {
        newInstances.push_back(instance);
        return instance;
    };
    auto logSizes = [&] {
        _logger.info("managedInstances size %d:", static_cast<int>(newInstances.size()));
        _logger.info("spare disk path size %d:", static_cast<int>(sparePaths.size()));
        _logger.info("non spare disk path size %d:", static_cast<int>(nonSparePaths.size()));
    };
    _logger.info("_createAllLogicalDiskInstances");
    logSizes();

    for (std::size_t k = 0; k < logicals.size(); ++k) {
        VeldraLogicalDisk const& logical = logicals[k];
        int const logicalIndex = static_cast<int>(k);
        std::vector<VeldraPhysicalDisk> const members = logical.getLastAllPhysicalDisks();
        std::vector<Member> const keys(members.begin(), members.end());
        _logger.info("previous physical disks for logical in create %d size %d:", logicalIndex,
                     static_cast<int>(members.size()));

        auto* volume = add(new QLN_VDStorageVolume(_logger, ns, index, logical, controller));
        add(new QLN_VDArraySystemStorageVolume(_logger, ns, arraySystem, volume));
        add(new QLN_VDSCSIProtocolControllerStorageVolume(_logger, ns, protocolController, volume,
                                                          logical.getLogicalVolumeNumber()));
        auto* setting = add(new QLN_VDStorageSetting(_logger, ns, index, logical, controller));
        add(new QLN_VDStorageVolumeStorageSetting(_logger, ns, volume, setting));
        for (PoolEntry const& entry : pools) {
            if (entry.arrayID == "1") {
                add(new QLN_VDStoragePoolStorageVolume(_logger, ns, entry.pool, volume,
                                                       controller));
            }
        }

        _logger.info("num physical disks %d for logical %d:", static_cast<int>(members.size()),
                     logicalIndex);
        for (std::size_t e = 0; e < nonSparePaths.size(); ++e) {
            ExtentEntry const& entry = nonSparePaths[e];
            for (std::size_t d = 0; d < members.size(); ++d) {
                if (!matches(keys[d], entry)) {
                    continue;
                }
                _logger.info("non spare %d match phys %d:", static_cast<int>(e),
                             static_cast<int>(d));
                _logger.info("non spare serial %s, path %s", entry.serialNumber.c_str(),
                             pathsToUserStr(entry.paths, -1).c_str());
                _logger.info("phys serial %s, path %s", members[d].getSerialNumber().c_str(),
                             pathsToUserStr(members[d].getLastAllPhysicalPaths(), -1).c_str());
                add(new QLN_VDStorageExtentStorageVolume(_logger, ns, entry.extent, volume));
            }
        }

        // One redundancy set at most, made when the first spare member shows up.
        QLN_VDStorageRedundancySet* redundancySet = nullptr;
        for (ExtentEntry const& spare : sparePaths) {
            for (std::size_t d = 0; d < members.size(); ++d) {
                VeldraPhysicalDisk const& member = members[d];
                if (!matches(keys[d], spare)) {
                    continue;
                }
                if (redundancySet == nullptr) {
                    redundancySet = add(
                        new QLN_VDStorageRedundancySet(_logger, ns, index, logical, controller));
                }
                add(new QLN_VDSpareExtentStorageRedundancySet(_logger, ns, spare.extent,
                                                              redundancySet));
                u32 const replaced = logical.getReplacedDiskID(member.getId());
                if (replaced == noReplacedDisk) {
                    continue;
                }
                _logger.info(
                    "spared disk id %d for disk %d for logical %d:", static_cast<int>(replaced),
                    static_cast<int>(member.getId()), logicalIndex);
                for (std::size_t s = 0; s < members.size(); ++s) {
                    if (members[s].getId() != replaced) {
                        continue;
                    }
                    for (ExtentEntry const& data : nonSparePaths) {
                        if (matches(keys[s], data)) {
                            add(new QLN_VDSpareExtentStorageExtent(_logger, ns, spare.extent,
                                                                   data.extent));
                            break;
                        }
                    }
                }
            }
        }
        if (redundancySet != nullptr) {
            for (ExtentEntry const& entry : nonSparePaths) {
                for (Member const& member : keys) {
                    if (matches(member, entry)) {
                        add(new QLN_VDStorageRedundancySetStorageExtent(_logger, ns, redundancySet,
                                                                        entry.extent));
                    }
                }
            }
        }
    }
    logSizes();
    _logger.info("return _createAllLogicalDiskInstances");
}

} // namespace QLN
