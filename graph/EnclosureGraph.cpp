// The enclosures of one controller: enclosure, processor, firmware, drive
// cage and their locations, wired to the controller's package and system.
#include "GraphBuilder.h"

#include "QLN_VDArraySystem.h"
#include "QLN_VDArraySystemStorageEnclosureProcessor.h"
#include "QLN_VDDriveCage.h"
#include "QLN_VDDriveCageDriveCageLocation.h"
#include "QLN_VDDriveCageLocation.h"
#include "QLN_VDEnclosureFirmware.h"
#include "QLN_VDPhysicalPackage.h"
#include "QLN_VDPhysicalPackageStorageEnclosure.h"
#include "QLN_VDStorageEnclosure.h"
#include "QLN_VDStorageEnclosureDriveCage.h"
#include "QLN_VDStorageEnclosureEnclosureLocation.h"
#include "QLN_VDStorageEnclosureLocation.h"
#include "QLN_VDStorageEnclosureProcessor.h"
#include "QLN_VDStorageEnclosureProcessorEnclosureFirmware.h"
#include "QLN_VDStorageEnclosureStorageEnclosureProcessor.h"

namespace QLN {

void GraphBuilder::addEnclosures(int number, VeldraController* controller,
                                 QLN_VDArraySystem* arraySystem,
                                 QLN_VDPhysicalPackage* physicalPackage,
                                 std::vector<VeldraEnclosure> const& enclosures,
                                 std::vector<CageEntry>& cages,
                                 std::vector<CmpiManagedInstance*>& newInstances) {
    std::string const ns = "root/mwq";
    unsigned int const index = static_cast<unsigned int>(number);
    auto add = [&newInstances](auto* instance) {
        newInstances.push_back(instance);
        return instance;
    };
    _logger.info("_createAllEnclosureInstances");
    for (VeldraEnclosure const& enclosure : enclosures) {
        auto* storageEnclosure =
            add(new QLN_VDStorageEnclosure(_logger, ns, index, enclosure, controller));
        add(new QLN_VDPhysicalPackageStorageEnclosure(_logger, ns, physicalPackage,
                                                      storageEnclosure));
        auto* location =
            add(new QLN_VDStorageEnclosureLocation(_logger, ns, index, enclosure, controller));
        add(new QLN_VDStorageEnclosureEnclosureLocation(_logger, ns, storageEnclosure, location));
        auto* processor =
            add(new QLN_VDStorageEnclosureProcessor(_logger, ns, index, enclosure, controller));
        add(new QLN_VDStorageEnclosureStorageEnclosureProcessor(_logger, ns, storageEnclosure,
                                                                processor));
        add(new QLN_VDArraySystemStorageEnclosureProcessor(_logger, ns, arraySystem, processor));
        if (!enclosure.getFWVersion().empty()) {
            auto* firmware =
                add(new QLN_VDEnclosureFirmware(_logger, ns, index, enclosure, controller));
            add(new QLN_VDStorageEnclosureProcessorEnclosureFirmware(_logger, ns, processor,
                                                                     firmware));
        }
        auto* cage = add(new QLN_VDDriveCage(_logger, ns, index, enclosure, controller));
        cages.push_back(CageEntry{cage->getTag(), cage->getBoxNumber(), cage->getPaths(), cage});
        auto* cageLocation =
            add(new QLN_VDDriveCageLocation(_logger, ns, index, enclosure, controller));
        add(new QLN_VDDriveCageDriveCageLocation(_logger, ns, cage, cageLocation));
        add(new QLN_VDStorageEnclosureDriveCage(_logger, ns, storageEnclosure, cage));
    }
    _logger.info("driveCagePaths size %d:", static_cast<int>(cages.size()));
}

} // namespace QLN
