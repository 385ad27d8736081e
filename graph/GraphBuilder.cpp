// The first instance graph: every controller the storage root delivers, with
// its system, controller, ports, firmware, pools and devices, wired by
// associations, and the storage group over all array systems.
#include "GraphBuilder.h"

#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "QLN_VDArrayController.h"
#include "QLN_VDArrayControllerLocation.h"
#include "QLN_VDArrayControllerPhysicalPackage.h"
#include "QLN_VDArrayControllerPhysicalPackageArrayController.h"
#include "QLN_VDArrayControllerPhysicalPackageArrayControllerLocation.h"
#include "QLN_VDArraySystem.h"
#include "QLN_VDArraySystemArrayController.h"
#include "QLN_VDArraySystemDAPort.h"
#include "QLN_VDArraySystemFirmware.h"
#include "QLN_VDArraySystemISASPort.h"
#include "QLN_VDArraySystemISASSCSIProtocolEndpoint.h"
#include "QLN_VDArraySystemLocation.h"
#include "QLN_VDArraySystemPortController.h"
#include "QLN_VDArraySystemPrimordialPool.h"
#include "QLN_VDArraySystemSCSIProtocolController.h"
#include "QLN_VDArraySystemSCSIProtocolEndpoint.h"
#include "QLN_VDArraySystemStoragePool.h"
#include "QLN_VDCacheVolumeStorageVolume.h"
#include "QLN_VDComputerSystemArraySystem.h"
#include "QLN_VDComputerSystemPortController.h"
#include "QLN_VDDAPort.h"
#include "QLN_VDDAPortSCSIProtocolEndpoint.h"
#include "QLN_VDElementSoftwareIdentityDriver.h"
#include "QLN_VDFirmware.h"
#include "QLN_VDFirmwareArraySystem.h"
#include "QLN_VDISASPort.h"
#include "QLN_VDISASPortISASSCSIProtocolEndpoint.h"
#include "QLN_VDISASSCSIProtocolEndpoint.h"
#include "QLN_VDInstalledSoftwareIdentityDriver.h"
#include "QLN_VDPhysicalPackage.h"
#include "QLN_VDPhysicalPackageArrayControllerPhysicalPackage.h"
#include "QLN_VDPhysicalPackageArraySystem.h"
#include "QLN_VDPhysicalPackageArraySystemLocation.h"
#include "QLN_VDPhysicalPackagePortController.h"
#include "QLN_VDPortController.h"
#include "QLN_VDPortControllerISASPort.h"
#include "QLN_VDPortControllerPCIDevice.h"
#include "QLN_VDPrimordialPool.h"
#include "QLN_VDPrimordialPoolStorageCapabilities.h"
#include "QLN_VDPrimordialPoolStoragePool.h"
#include "QLN_VDProduct.h"
#include "QLN_VDProductPhysicalPackage.h"
#include "QLN_VDSCSIProtocolController.h"
#include "QLN_VDSCSIProtocolEndpoint.h"
#include "QLN_VDSCSIProtocolEndpointSCSIProtocolController.h"
#include "QLN_VDSoftwareIdentityDriver.h"
#include "QLN_VDStorageCapabilities.h"
#include "QLN_VDStorageGroupHostedCollection.h"
#include "QLN_VDStoragePool.h"
#include "QLN_VDStoragePoolStorageCapabilities.h"
#include "QLN_VDStorageSpecificCollection.h"
#include "QLN_VDStorageSpecificCollectionArraySystem.h"
#include "QLN_VDStorageVolume.h"

namespace QLN {

namespace {
char const* const graphNameSpace = "root/mwq";
}

GraphBuilder::GraphBuilder(Logger& logger, CmpiManagedInstanceCollection& collection)
    : _logger(logger), _collection(collection) {}

void GraphBuilder::buildAll(InternalVeldraControllerMRA* root,
                            std::vector<VeldraController*>& controllers) {
    std::string const ns = graphNameSpace;
    _logger.info("_cmpiManagedInstanceFactory");

    VeldraCFUArray array;
    int number = 1;
    CmpiCpp::CmpiObjectPath const computerSystemPath = QLNUtil::getComputerSystemPath();
    [[maybe_unused]] CmpiCpp::CmpiObjectPath const chassisPath = QLNUtil::getChassisPath();

    // Hands an instance to the collection and keeps its exact type for wiring.
    auto add = [this](auto* instance) {
        _collection.createInstance(instance);
        return instance;
    };

    VeldraController* controller = root->getFirstData();
    if (controller == nullptr) {
        _logger.error("failed to _internalVDControllerMRA::getFirstData()");
    }
    while (controller != nullptr) {
        // The baseline: what the worker's first pass compares against, so
        // that it finds no change.
        controllers.push_back(controller);
        std::vector<VeldraPhysicalDisk> physicals = controller->getAllPhysicalDisks();
        std::vector<VeldraLogicalDisk> logicals = controller->getAllLogicalDisks();
        _logger.info("all logicals right after getFirst: %d", static_cast<int>(logicals.size()));
        _logger.info("all physicals right after getFirst: %d", static_cast<int>(physicals.size()));
        for (std::size_t i = 0; i < physicals.size(); ++i) {
            std::vector<VeldraPhysicalPath> paths = physicals[i].getPaths();
            _logger.info("previous paths for physical right after getFirst %d: %d",
                         static_cast<int>(i), static_cast<int>(paths.size()));
            physicals[i].setLastAllPhysicalPaths(paths);
        }
        controller->setLastAllPhysicalDisks(physicals);
        for (std::size_t i = 0; i < logicals.size(); ++i) {
            _logger.info("previous physicals for logical right after getFirst %d: %d",
                         static_cast<int>(i),
                         static_cast<int>(logicals[i].getLastAllPhysicalDisks().size()));
            std::vector<VeldraPhysicalDisk> members = logicals[i].logicalToAllPhysicals(physicals);
            logicals[i].setLastAllPhysicalDisks(members);
            if (logicals[i].getLogicalVolumeType() == 2) {
                _cachedVolumes.push_back(logicals[i]);
            }
            if (logicals[i].getLogicalVolumeType() == 3) {
                _cacheVolumes.push_back(logicals[i]);
            }
        }
        controller->setLastLogicalDisks(logicals);
        std::vector<VeldraEnclosure> enclosures = controller->getAllEnclosures();
        for (std::size_t i = 0; i < enclosures.size(); ++i) {
            std::vector<VeldraPhysicalPath> paths = enclosures[i].getPaths();
            _logger.info("previous paths for enclosure right after getFirst %d: %d",
                         static_cast<int>(i), static_cast<int>(paths.size()));
            enclosures[i].setLastAllPhysicalPaths(paths);
        }
        controller->setLastAllEnclosures(enclosures);
        controller->setConsumedDiskVectorCount(controller->getDiskVectorCount());
        VeldraControllerData data = controller->getVDData();
        controller->setLastVDData(data);
        controller->setConsumedControllerDataCount(controller->getControllerDataCount());

        unsigned int const index = static_cast<unsigned int>(number);

        // The system and its neighbours.
        auto* arraySystem = add(new QLN_VDArraySystem(_logger, ns, index, controller));
        _arraySystems.push_back(arraySystem);
        add(new QLN_VDComputerSystemArraySystem(_logger, ns, computerSystemPath, arraySystem));
        auto* driver = add(new QLN_VDSoftwareIdentityDriver(_logger, ns, index, data));
        add(new QLN_VDInstalledSoftwareIdentityDriver(_logger, ns, arraySystem, driver));
        add(new QLN_VDElementSoftwareIdentityDriver(_logger, ns, driver, arraySystem));
        auto* physicalPackage = add(new QLN_VDPhysicalPackage(_logger, ns, index, controller));
        add(new QLN_VDPhysicalPackageArraySystem(_logger, ns, physicalPackage, arraySystem));
        auto* firmware = add(new QLN_VDFirmware(_logger, ns, index, controller));
        add(new QLN_VDFirmwareArraySystem(_logger, ns, firmware, arraySystem));
        add(new QLN_VDArraySystemFirmware(_logger, ns, arraySystem, firmware));
        auto* portController = add(new QLN_VDPortController(_logger, ns, index, controller));
        add(new QLN_VDPortControllerPCIDevice(_logger, ns, makePCIDevicePath(data),
                                              portController));
        add(new QLN_VDArraySystemPortController(_logger, ns, arraySystem, portController));
        add(new QLN_VDPhysicalPackagePortController(_logger, ns, physicalPackage, portController));
        add(new QLN_VDComputerSystemPortController(_logger, ns, computerSystemPath,
                                                   portController));
        auto* product = add(new QLN_VDProduct(_logger, ns, index, controller));
        add(new QLN_VDProductPhysicalPackage(_logger, ns, product, physicalPackage));
        auto* systemLocation = add(new QLN_VDArraySystemLocation(_logger, ns, index, controller));
        add(new QLN_VDPhysicalPackageArraySystemLocation(_logger, ns, physicalPackage,
                                                         systemLocation));
        auto* arrayController = add(new QLN_VDArrayController(_logger, ns, index, controller));
        add(new QLN_VDArraySystemArrayController(_logger, ns, arraySystem, arrayController));
        auto* controllerPackage =
            add(new QLN_VDArrayControllerPhysicalPackage(_logger, ns, index, controller));
        add(new QLN_VDArrayControllerPhysicalPackageArrayController(_logger, ns, controllerPackage,
                                                                    arrayController));
        add(new QLN_VDPhysicalPackageArrayControllerPhysicalPackage(_logger, ns, physicalPackage,
                                                                    controllerPackage));
        auto* controllerLocation =
            add(new QLN_VDArrayControllerLocation(_logger, ns, index, controller));
        add(new QLN_VDArrayControllerPhysicalPackageArrayControllerLocation(
            _logger, ns, controllerPackage, controllerLocation));
        _logger.info("internalVDControllerNumber = %d", number);

        auto* daPort = add(new QLN_VDDAPort(_logger, ns, index, controller));
        add(new QLN_VDArraySystemDAPort(_logger, ns, arraySystem, daPort));
        auto* endpoint = add(new QLN_VDSCSIProtocolEndpoint(_logger, ns, index, controller));
        add(new QLN_VDArraySystemSCSIProtocolEndpoint(_logger, ns, arraySystem, endpoint));
        add(new QLN_VDDAPortSCSIProtocolEndpoint(_logger, ns, daPort, endpoint));
        auto* protocolController =
            add(new QLN_VDSCSIProtocolController(_logger, ns, index, controller));
        add(new QLN_VDArraySystemSCSIProtocolController(_logger, ns, arraySystem,
                                                        protocolController));
        add(new QLN_VDSCSIProtocolEndpointSCSIProtocolController(_logger, ns, endpoint,
                                                                 protocolController));
        auto* primordialPool = add(new QLN_VDPrimordialPool(_logger, ns, index, controller));
        array.setArrayID("");
        auto* primordialCapabilities =
            add(new QLN_VDStorageCapabilities(_logger, ns, index, array, controller));
        add(new QLN_VDPrimordialPoolStorageCapabilities(_logger, ns, primordialPool,
                                                        primordialCapabilities));
        add(new QLN_VDArraySystemPrimordialPool(_logger, ns, arraySystem, primordialPool));

        // The one concrete pool: every controller has exactly one, array id "1".
        array.setArrayID("1");
        std::vector<VeldraCFUArray> arrays{array};
        stampArrayDisks(arrays, physicals);
        for (VeldraCFUArray& entry : arrays) {
            auto* pool = add(new QLN_VDStoragePool(_logger, ns, index, entry, controller));
            auto* capabilities =
                add(new QLN_VDStorageCapabilities(_logger, ns, index, entry, controller));
            add(new QLN_VDStoragePoolStorageCapabilities(_logger, ns, pool, capabilities));
            add(new QLN_VDArraySystemStoragePool(_logger, ns, arraySystem, pool));
            add(new QLN_VDPrimordialPoolStoragePool(_logger, ns, primordialPool, pool, controller));
            _pools.push_back(PoolEntry{entry.getArrayID(), pool});
        }

        // The initiator ports; a controller that cannot list them has none.
        std::vector<std::string> ports;
        if (data.getVDPorts(ports) == 0) {
            for (std::string const& port : ports) {
                auto* sasPort = add(new QLN_VDISASPort(_logger, ns, index, controller, port));
                add(new QLN_VDArraySystemISASPort(_logger, ns, arraySystem, sasPort));
                auto* initiator =
                    add(new QLN_VDISASSCSIProtocolEndpoint(_logger, ns, index, controller, port));
                _initiatorEndpoints.push_back(initiator);
                add(new QLN_VDArraySystemISASSCSIProtocolEndpoint(_logger, ns, arraySystem,
                                                                  initiator));
                add(new QLN_VDISASPortISASSCSIProtocolEndpoint(_logger, ns, sasPort, initiator));
                add(new QLN_VDPortControllerISASPort(_logger, ns, portController, sasPort));
            }
        }

        // The device graphs hand back what they made; it joins the collection here.
        std::vector<CmpiManagedInstance*> newInstances;
        auto handOver = [&](bool keep) {
            _logger.info("managedInstances size %d:", static_cast<int>(newInstances.size()));
            for (CmpiManagedInstance* instance : newInstances) {
                _collection.createInstance(instance);
            }
            newInstances.clear();
            if (keep) {
                _logger.info("managedInstances size %d:", static_cast<int>(newInstances.size()));
            }
        };
        auto logPathSizes = [&] {
            _logger.info("spare disk path size: %d", static_cast<int>(_sparePaths.size()));
            _logger.info("non spare disk path size: %d", static_cast<int>(_nonSparePaths.size()));
        };
        _logger.info("managedInstances size %d:", static_cast<int>(newInstances.size()));
        _logger.info("before _createAllEnclosureInstances");
        addEnclosures(number, controller, arraySystem, physicalPackage, enclosures, _cages,
                      newInstances);
        handOver(true);
        _logger.info("before _createAllPhysicalDiskInstances");
        logPathSizes();
        addPhysicalDisks(number, controller, physicals, arraySystem, _pools, arrays, _cages,
                         _initiatorEndpoints, _sparePaths, _nonSparePaths, newInstances);
        _logger.info("after _createAllPhysicalDiskInstances");
        logPathSizes();
        handOver(true);
        _logger.info("before _createAllLogicalDiskInstances");
        logPathSizes();
        addLogicalDisks(number, controller, logicals, arraySystem, protocolController, _pools,
                        _sparePaths, _nonSparePaths, newInstances);
        _logger.info("after _createAllLogicalDiskInstances");
        handOver(false);
        logPathSizes();

        // Cache pairs: a cached volume (type 2) names its cache volume (type 3)
        // in the low 16 bits of its related LUN. The two volume objects only
        // lend their paths to the association; the collection never sees them.
        for (VeldraLogicalDisk const& cached : _cachedVolumes) {
            for (VeldraLogicalDisk const& cache : _cacheVolumes) {
                if ((cached.getRelatedLUN() & 0xffff) != cache.getLogicalVolumeNumber()) {
                    continue;
                }
                auto* cacheEnd = new QLN_VDStorageVolume(_logger, ns, index, cache, controller);
                _cachePairEnds.emplace_back(cacheEnd);
                auto* cachedEnd = new QLN_VDStorageVolume(_logger, ns, index, cached, controller);
                _cachePairEnds.emplace_back(cachedEnd);
                add(new QLN_VDCacheVolumeStorageVolume(_logger, ns, cacheEnd, cachedEnd));
            }
        }

        addViews(number, controller);

        controller = root->getNextData(controller);
        number += 1;
    }

    if (!_arraySystems.empty()) {
        auto* collection = add(new QLN_VDStorageSpecificCollection(_logger, ns));
        add(new QLN_VDStorageGroupHostedCollection(_logger, ns, computerSystemPath, collection));
        for (QLN_VDArraySystem* arraySystem : _arraySystems) {
            add(new QLN_VDStorageSpecificCollectionArraySystem(_logger, ns, collection,
                                                               arraySystem));
        }
    }
    _releaseCarriedLists();
}

void GraphBuilder::stampArrayDisks(std::vector<VeldraCFUArray>& arrays,
                                   std::vector<VeldraPhysicalDisk> const& physicals) {
    // The lists grow across the arrays, so a later array also holds the
    // earlier ones' disks; with the one array of today that is the same.
    std::vector<VeldraPhysicalDisk> dataDisks;
    std::vector<VeldraPhysicalDisk> spareDisks;
    for (VeldraCFUArray& entry : arrays) {
        for (VeldraPhysicalDisk const& disk : physicals) {
            if (disk.getConfiguration() == PD_CONFIG_DATA) {
                dataDisks.push_back(disk);
            }
            if (disk.getConfiguration() == PD_CONFIG_SPARE) {
                spareDisks.push_back(disk);
            }
        }
        entry.setLastDataDisks(dataDisks);
        entry.setLastSpareDisks(spareDisks);
    }
}

void GraphBuilder::_releaseCarriedLists() {
    // Only the first build reads them; on a large system the paths they copy
    // would otherwise stay for the provider's life.
    _arraySystems = {};
    _pools = {};
    _cages = {};
    _initiatorEndpoints = {};
    _sparePaths = {};
    _nonSparePaths = {};
    _cachedVolumes = {};
    _cacheVolumes = {};
}

} // namespace QLN
