// The physical disks of one controller: drive, extent, SAS paths, firmware,
// package, location and statistics, and the extent lists the volumes use.
#include "GraphBuilder.h"

#include "QLN_VDArraySystem.h"
#include "QLN_VDArraySystemDiskDrive.h"
#include "QLN_VDArraySystemStorageExtent.h"
#include "QLN_VDArraySystemTSASPort.h"
#include "QLN_VDArraySystemTSASSCSIProtocolEndpoint.h"
#include "QLN_VDDiskDrive.h"
#include "QLN_VDDiskDriveDiskDriveFirmware.h"
#include "QLN_VDDiskDriveFirmware.h"
#include "QLN_VDDiskDriveLocation.h"
#include "QLN_VDDiskDriveMediaAccessStatData.h"
#include "QLN_VDDiskDriveStorageExtent.h"
#include "QLN_VDDiskDriveTSASSCSIProtocolEndpoint.h"
#include "QLN_VDDiskPhysicalPackage.h"
#include "QLN_VDDiskPhysicalPackageDiskDrive.h"
#include "QLN_VDDiskPhysicalPackageDiskDriveLocation.h"
#include "QLN_VDDriveCage.h"
#include "QLN_VDDriveCageDiskPhysicalPackage.h"
#include "QLN_VDISASSCSIProtocolEndpoint.h"
#include "QLN_VDLumenDriveCarrierAppFirmware.h"
#include "QLN_VDLumenDriveCarrierBootldrFirmware.h"
#include "QLN_VDLumenDrvCarrierAppElementFirmwareIdentity.h"
#include "QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity.h"
#include "QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity.h"
#include "QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity.h"
#include "QLN_VDMediaAccessStatData.h"
#include "QLN_VDSCSIInitiatorTargetLogicalUnitPath.h"
#include "QLN_VDStorageExtent.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStoragePoolStorageExtent.h"
#include "QLN_VDTSASPort.h"
#include "QLN_VDTSASPortTSASSCSIProtocolEndpoint.h"
#include "QLN_VDTSASSCSIProtocolEndpoint.h"

namespace QLN {

namespace {
// The carrier status of a disk whose carrier firmware answered.
u32 const carrierAuthenticated = 2;
} // namespace

void GraphBuilder::addPhysicalDisks(
    int number, VeldraController* controller, std::vector<VeldraPhysicalDisk> const& physicals,
    QLN_VDArraySystem* arraySystem, std::vector<PoolEntry> const& pools,
    std::vector<VeldraCFUArray> const&, std::vector<CageEntry> const& cages,
    std::vector<QLN_VDISASSCSIProtocolEndpoint*> const& initiatorEndpoints,
    std::vector<ExtentEntry>& sparePaths, std::vector<ExtentEntry>& nonSparePaths,
    std::vector<CmpiManagedInstance*>& newInstances) {
    std::string const ns = "root/mwq";
    unsigned int const index = static_cast<unsigned int>(number);
    auto add = [&newInstances](auto* instance) {
        newInstances.push_back(instance);
        return instance;
    };
    auto logListSizes = [&] {
        _logger.info("non spare disk path size %d:", static_cast<int>(nonSparePaths.size()));
        _logger.info("spare disk path size %d:", static_cast<int>(sparePaths.size()));
    };
    _logger.info("_createAllPhysicalDiskInstances");
    _logger.info("managedInstances size %d:", static_cast<int>(newInstances.size()));
    logListSizes();

    for (VeldraPhysicalDisk const& disk : physicals) {
        auto* drive = add(new QLN_VDDiskDrive(_logger, ns, index, disk, controller));
        add(new QLN_VDArraySystemDiskDrive(_logger, ns, arraySystem, drive));
        auto* extent = add(new QLN_VDStorageExtent(_logger, ns, index, disk, controller));
        add(new QLN_VDArraySystemStorageExtent(_logger, ns, arraySystem, extent));
        add(new QLN_VDDiskDriveStorageExtent(_logger, ns, drive, extent));

        std::vector<VeldraPhysicalPath> const paths = disk.getLastAllPhysicalPaths();
        for (std::size_t k = 0; k < paths.size(); ++k) {
            int const pathIndex = static_cast<int>(k);
            auto* port =
                add(new QLN_VDTSASPort(_logger, ns, index, disk, paths[k], pathIndex, controller));
            add(new QLN_VDArraySystemTSASPort(_logger, ns, arraySystem, port));
            auto* target = add(new QLN_VDTSASSCSIProtocolEndpoint(_logger, ns, index, disk,
                                                                  paths[k], pathIndex, controller));
            add(new QLN_VDArraySystemTSASSCSIProtocolEndpoint(_logger, ns, arraySystem, target));
            add(new QLN_VDTSASPortTSASSCSIProtocolEndpoint(_logger, ns, port, target));
            add(new QLN_VDDiskDriveTSASSCSIProtocolEndpoint(_logger, ns, drive, target));
            // The list holds every controller's initiators so far: the port
            // text alone would join another controller's port of that name.
            for (QLN_VDISASSCSIProtocolEndpoint* initiator : initiatorEndpoints) {
                if (initiator->getPort() == target->getPort() &&
                    initiator->getControllerIndex() == target->getControllerIndex()) {
                    add(new QLN_VDSCSIInitiatorTargetLogicalUnitPath(
                        _logger, ns, initiator, target, extent, controller,
                        [target] { return static_cast<std::uint32_t>(target->getPathStatus()); }));
                }
            }
        }

        if (disk.getConfiguration() == PD_CONFIG_DATA) {
            for (PoolEntry const& entry : pools) {
                if (entry.arrayID == "1") {
                    add(new QLN_VDStoragePoolStorageExtent(_logger, ns, entry.pool, extent));
                }
            }
        }
        ExtentEntry const extentEntry{
            disk.getSerialNumber(), paths,        disk.getEnclosureBoxNumber(),
            disk.getBay(),          disk.getId(), extent};
        if (disk.getConfiguration() == PD_CONFIG_SPARE) {
            sparePaths.push_back(extentEntry);
        } else if (disk.getConfiguration() == PD_CONFIG_DATA) {
            nonSparePaths.push_back(extentEntry);
        }

        // Firmware is told apart by the disk's serial number; without one there is none.
        if (!disk.getSerialNumber().empty()) {
            auto* firmware = add(new QLN_VDDiskDriveFirmware(_logger, ns, index, disk, controller));
            add(new QLN_VDDiskDriveDiskDriveFirmware(_logger, ns, drive, firmware));
            if (disk.getLumenCarrierAuthStatus() == carrierAuthenticated) {
                auto* app = add(
                    new QLN_VDLumenDriveCarrierAppFirmware(_logger, ns, index, disk, controller));
                add(new QLN_VDLumenDrvCarrierAppElementFirmwareIdentity(_logger, ns, app, drive));
                add(new QLN_VDLumenDrvCarrierAppInstalledFirmwareIdentity(_logger, ns, drive, app));
                auto* boot = add(new QLN_VDLumenDriveCarrierBootldrFirmware(_logger, ns, index,
                                                                            disk, controller));
                add(new QLN_VDLumenDrvCarrierBootldrElementFirmwareIdentity(_logger, ns, boot,
                                                                            drive));
                add(new QLN_VDLumenDrvCarrierBootldrInstalledFirmwareIdentity(_logger, ns, drive,
                                                                              boot));
            }
        }

        auto* package = add(new QLN_VDDiskPhysicalPackage(_logger, ns, index, disk, controller));
        for (CageEntry const& cage : cages) {
            if (cage.boxNumber == disk.getEnclosureBoxNumber()) {
                add(new QLN_VDDriveCageDiskPhysicalPackage(_logger, ns, cage.cage, package));
            }
        }
        add(new QLN_VDDiskPhysicalPackageDiskDrive(_logger, ns, package, drive));
        auto* location = add(new QLN_VDDiskDriveLocation(_logger, ns, index, disk, controller));
        add(new QLN_VDDiskPhysicalPackageDiskDriveLocation(_logger, ns, package, location));
        if (disk.hasMNPData()) {
            auto* statistics =
                add(new QLN_VDMediaAccessStatData(_logger, ns, index, disk, controller));
            add(new QLN_VDDiskDriveMediaAccessStatData(_logger, ns, drive, statistics));
        }
    }
    _logger.info("exiting _createAllPhysicalDiskInstances");
    logListSizes();
}

} // namespace QLN
