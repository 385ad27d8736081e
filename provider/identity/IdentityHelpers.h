#pragma once
// How hardware becomes a CIM identity: controller names and tags, disk
// DeviceIDs, enclosure tags and the paths that change detection builds for
// devices it no longer holds an instance of. Every key of the instance graph
// comes from here, so the texts must not drift.
//
// `index` is the controller's 1-based number in the order the storage-access
// root delivers them. The controller data is taken by value on purpose: the
// callers hand in snapshots they keep using.
#include "CmpiObjectPath.h"
#include "VeldraControllerData.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"
#include "physloc.h"

#include <string>

namespace QLN {

bool isPhyslocNull(physloc_t const& location);

// Drops all whitespace, at the ends and inside: " WD 123 " gives "WD123".
std::string removeWhitespace(std::string text);

// "PCISLOT-", "EXTERNAL-", "EMBEDDED-" or "UNKNOWN-" and the location's unique code.
std::string getControllerTag(VeldraControllerData const& data, int index);
// The serial number when there is one, else the tag.
std::string getControllerName(VeldraControllerData const& data, int index);
// "Veldra in PCI Slot 3", "Veldra External ...": for people, not a key.
std::string getControllerDisplayName(VeldraControllerData const& data);

// "<model>-<serial>", whitespace removed from both, when `serial` is not empty
// as given; otherwise the disk is named by its place, `<placePrefix><box>:<bay>`.
// The disk's classes test the serial as the disk reports it, while
// makeDiskDrivePath tests it after whitespace is removed: that is where a
// serial of only blanks gives "MODEL-" on an instance and the place form on
// the path change detection builds.
std::string diskKeyName(std::string const& serial, std::string const& model,
                        std::string const& placePrefix, int box, int bay);

// "<controller index>-<box>": an enclosure's Tag, its processor's Name and the
// position of its location.
std::string enclosureTag(unsigned int index, u32 box);

// Which key of a device on the array system comes first; the classes differ
// and the wire order of keys is part of what clients see.
enum class DeviceKeyOrder { SystemClassFirst, ClassFirst };

// The four keys of a device hosted by an array system: the two creation class
// names in `order`, SystemName, then `lastKeyName`. On the host of the moment.
CmpiCpp::CmpiObjectPath makeSystemDevicePath(std::string const& nameSpace,
                                             std::string const& className,
                                             std::string const& systemName, DeviceKeyOrder order,
                                             char const* lastKeyName,
                                             std::string const& lastKeyValue);

CmpiCpp::CmpiObjectPath makeArrayControllerPath(VeldraControllerData const& data, int index);
CmpiCpp::CmpiObjectPath makePCIDevicePath(VeldraControllerData const& data);
CmpiCpp::CmpiObjectPath makeStorageVolumePath(VeldraControllerData const& data, int index,
                                              VeldraLogicalDisk const& logicalDisk);
CmpiCpp::CmpiObjectPath makeDiskDrivePath(VeldraControllerData const& data, int index,
                                          VeldraPhysicalDisk const& disk);
CmpiCpp::CmpiObjectPath makeStorageEnclosurePath(int index, VeldraEnclosure const& enclosure);
CmpiCpp::CmpiObjectPath makeEnclosureProcessorPath(int index, VeldraEnclosure const& enclosure);

// The comparison steps of the worker's linear searches. They run for every
// pair of a search, so they look at the records in place.
bool isEnclosureBox(VeldraEnclosure const& enclosure, int box);
bool isSamePhysicalDisk(VeldraPhysicalDisk const& disk, std::string const& serial, int box,
                        int bay);
// The same rule for a disk whose serial number and place were read once:
// a search that meets one disk many times reads them only once.
bool isSamePhysicalDisk(std::string const& own, int ownBox, int ownBay, std::string const& serial,
                        int box, int bay);
bool isPhysicalDiskAtPort(VeldraPhysicalDisk const& disk, std::string const& port, int box,
                          int bay);

} // namespace QLN
