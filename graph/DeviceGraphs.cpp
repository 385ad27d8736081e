// The device graphs of one controller: enclosures, physical disks and
// logical disks, and the view classes. Their classes join the model with the
// device issue; until then each says in the log that it made nothing.
#include "QLNVeldraProvider.h"

namespace QLN {

void QLNVeldraProvider::_createAllEnclosureInstances(int, VeldraController*, QLN_VDArraySystem*,
                                                     QLN_VDPhysicalPackage*, std::vector<VeldraEnclosure> const&,
                                                     std::vector<CageEntry>&, std::vector<CmpiManagedInstance*>&) {
    _logger.info("_createAllEnclosureInstances: no enclosure classes yet, nothing created");
}

void QLNVeldraProvider::_createAllPhysicalDiskInstances(
    int, VeldraController*, std::vector<VeldraPhysicalDisk> const&, QLN_VDArraySystem*,
    std::vector<PoolEntry> const&, std::vector<VeldraCFUArray> const&, std::vector<CageEntry> const&,
    std::vector<QLN_VDISASSCSIProtocolEndpoint*> const&, std::vector<ExtentEntry>&, std::vector<ExtentEntry>&,
    std::vector<CmpiManagedInstance*>&) {
    _logger.info("_createAllPhysicalDiskInstances: no disk classes yet, nothing created");
}

void QLNVeldraProvider::_createAllLogicalDiskInstances(int, VeldraController*,
                                                       std::vector<VeldraLogicalDisk> const&, QLN_VDArraySystem*,
                                                       QLN_VDSCSIProtocolController*, std::vector<PoolEntry> const&,
                                                       std::vector<ExtentEntry> const&,
                                                       std::vector<ExtentEntry> const&,
                                                       std::vector<CmpiManagedInstance*>&) {
    _logger.info("_createAllLogicalDiskInstances: no volume classes yet, nothing created");
}

void QLNVeldraProvider::_createViewClassInstances(int, VeldraController*) {
    _logger.info("_createViewClassInstances: no view classes yet, nothing created");
}

} // namespace QLN
