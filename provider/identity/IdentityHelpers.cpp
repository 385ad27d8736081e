#include "IdentityHelpers.h"

#include "CmpiBroker.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>

namespace {

char const* const nameSpace = "root/mwq";
char const* const arrayControllerClass = "QLN_VDArrayController";
char const* const pciDeviceClass = "QLN_PCIDevice";
char const* const storageVolumeClass = "QLN_VDStorageVolume";
char const* const diskDriveClass = "QLN_VDDiskDrive";
char const* const storageEnclosureClass = "QLN_VDStorageEnclosure";
char const* const enclosureProcessorClass = "QLN_VDStorageEnclosureProcessor";
char const* const arraySystemClass = "QLN_VDArraySystem";
char const* const computerSystemClass = "QLN_ComputerSystem";

// The kind of location lives in the low nibble of the first byte; 5 is a PCI slot.
int const pciSlotKind = 5;

int locationKind(physloc_t const& location) {
    return location.bytes[0] & 0x0f;
}

CmpiCpp::CmpiObjectPath makePath(char const* className) {
    CmpiCpp::CmpiBroker broker(QLN::QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, nameSpace, className);
    path.setHost(QLN::QLNUtil::getHostName());
    return path;
}

} // namespace

namespace QLN {

bool isPhyslocNull(physloc_t const& location) {
    return std::memcmp(location.bytes, BMC_physloc_NULL.bytes, sizeof(location.bytes)) == 0;
}

std::string removeWhitespace(std::string text) {
    // Runs for every disk key made; a string stream here cost more than the
    // rest of building the key.
    text.erase(
        std::remove_if(text.begin(), text.end(),
                       [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }),
        text.end());
    return text;
}

std::string getControllerTag(VeldraControllerData const& data, int index) {
    // A failed read leaves the record as it was; start from the null record so
    // that the unique ID below is still defined.
    physloc_t location = BMC_physloc_NULL;
    int status = data.getPhysloc(location);
    std::string prefix;
    if (status != 0) {
        prefix = "UNKNOWN-";
    } else if (locationKind(location) == pciSlotKind) {
        prefix = "PCISLOT-";
    } else if (isPhyslocNull(location)) {
        prefix = "EXTERNAL-";
    } else {
        prefix = "EMBEDDED-";
    }
    // Asked in every case: the unique part tells apart controllers that share a prefix.
    std::string id = QLNPhysloc::physlocToUniqueID("bogus", location, index);
    std::string::size_type colon = id.rfind(':');
    return prefix + (colon == std::string::npos ? id : id.substr(colon + 1));
}

std::string getControllerName(VeldraControllerData const& data, int index) {
    std::string serial;
    if (data.getControllerSerialNumber(serial) == 0 && !serial.empty()) {
        return serial;
    }
    return getControllerTag(data, index);
}

std::string getControllerDisplayName(VeldraControllerData const& data) {
    physloc_t location = BMC_physloc_NULL;
    int status = data.getPhysloc(location);
    std::string prefix;
    if (status != 0) {
        prefix = "Veldra Unknown ";
    } else if (locationKind(location) == pciSlotKind) {
        prefix = "Veldra in ";
    } else if (locationKind(location) != 0) {
        prefix = "Veldra ";
    } else {
        // Here "external" is the kind nibble alone, not the whole null record
        // as in the tag: a display text may be loose, a key may not.
        prefix = "Veldra External ";
    }
    return prefix + QLNPhysloc::physlocToHWLocation(location);
}

std::string diskKeyName(std::string const& serial, std::string const& model,
                        std::string const& placePrefix, int box, int bay) {
    if (serial.empty())
        return placePrefix + std::to_string(box) + ":" + std::to_string(bay);
    return removeWhitespace(model) + "-" + removeWhitespace(serial);
}

std::string enclosureTag(unsigned int index, u32 box) {
    return std::to_string(index) + "-" + std::to_string(box);
}

CmpiCpp::CmpiObjectPath makeSystemDevicePath(std::string const& nameSpace,
                                             std::string const& className,
                                             std::string const& systemName, DeviceKeyOrder order,
                                             char const* lastKeyName,
                                             std::string const& lastKeyValue) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, nameSpace, className);
    path.setHost(QLNUtil::getHostName());
    if (order == DeviceKeyOrder::SystemClassFirst) {
        path.addKey("SystemCreationClassName", arraySystemClass);
        path.addKey("CreationClassName", className);
    } else {
        path.addKey("CreationClassName", className);
        path.addKey("SystemCreationClassName", arraySystemClass);
    }
    path.addKey("SystemName", systemName);
    path.addKey(lastKeyName, lastKeyValue);
    return path;
}

CmpiCpp::CmpiObjectPath makeArrayControllerPath(VeldraControllerData const& data, int index) {
    CmpiCpp::CmpiObjectPath path = makePath(arrayControllerClass);
    path.addKey("CreationClassName", arrayControllerClass);
    path.addKey("Name", getControllerName(data, index));
    return path;
}

CmpiCpp::CmpiObjectPath makePCIDevicePath(VeldraControllerData const& data) {
    CmpiCpp::CmpiObjectPath path = makePath(pciDeviceClass);
    path.addKey("CreationClassName", pciDeviceClass);
    path.addKey("SystemCreationClassName", computerSystemClass);
    path.addKey("SystemName", QLNUtil::getHostName());
    VeldraControllerPCIInfo info;
    std::string address = "NO PCI DATA";
    if (data.getPCIInfo(info) == 0) {
        // The device number is printed in decimal; other tools of the family
        // read the address that way, so it stays.
        char text[64];
        std::snprintf(text, sizeof(text), "%04x:%02x:%02d.%d",
                      static_cast<unsigned int>(info.domain), static_cast<unsigned int>(info.bus),
                      static_cast<int>(info.device), static_cast<int>(info.function));
        address = text;
    }
    path.addKey("DeviceID", "MWQ:QLN_PCIDevice:" + address);
    return path;
}

CmpiCpp::CmpiObjectPath makeStorageVolumePath(VeldraControllerData const& data, int index,
                                              VeldraLogicalDisk const& logicalDisk) {
    return makeSystemDevicePath(nameSpace, storageVolumeClass, getControllerName(data, index),
                                DeviceKeyOrder::SystemClassFirst, "DeviceID",
                                logicalDisk.getSerialNumber());
}

CmpiCpp::CmpiObjectPath makeDiskDrivePath(VeldraControllerData const& data, int index,
                                          VeldraPhysicalDisk const& disk) {
    // Whitespace goes before the test for an empty serial, here only: see diskKeyName.
    std::string const deviceId =
        diskKeyName(removeWhitespace(disk.getSerialNumber()), disk.getModel(),
                    std::to_string(index) + "-", disk.getEnclosureBoxNumber(), disk.getBay());
    return makeSystemDevicePath(nameSpace, diskDriveClass, getControllerName(data, index),
                                DeviceKeyOrder::SystemClassFirst, "DeviceID", deviceId);
}

CmpiCpp::CmpiObjectPath makeStorageEnclosurePath(int index, VeldraEnclosure const& enclosure) {
    CmpiCpp::CmpiObjectPath path = makePath(storageEnclosureClass);
    path.addKey("CreationClassName", storageEnclosureClass);
    path.addKey("Tag", enclosureTag(index, enclosure.getEnclosureBoxNumber()));
    return path;
}

CmpiCpp::CmpiObjectPath makeEnclosureProcessorPath(int index, VeldraEnclosure const& enclosure) {
    CmpiCpp::CmpiObjectPath path = makePath(enclosureProcessorClass);
    path.addKey("CreationClassName", enclosureProcessorClass);
    path.addKey("Name", enclosureTag(index, enclosure.getEnclosureBoxNumber()));
    return path;
}

bool isEnclosureBox(VeldraEnclosure const& enclosure, int box) {
    return enclosure.getEnclosureBoxNumber() == static_cast<u32>(box);
}

bool isSamePhysicalDisk(VeldraPhysicalDisk const& disk, std::string const& serial, int box,
                        int bay) {
    return isSamePhysicalDisk(disk.getSerialNumber(), disk.getEnclosureBoxNumber(), disk.getBay(),
                              serial, box, bay);
}

bool isSamePhysicalDisk(std::string const& own, int ownBox, int ownBay, std::string const& serial,
                        int box, int bay) {
    if (!serial.empty()) {
        return serial == own;
    }
    // Only a disk without a serial number is known by its place.
    return own.empty() && ownBox == box && ownBay == bay;
}

bool isPhysicalDiskAtPort(VeldraPhysicalDisk const& disk, std::string const& port, int box,
                          int bay) {
    return isPortInPaths(port, disk.getLastAllPhysicalPaths()) &&
           disk.getEnclosureBoxNumber() == box && disk.getBay() == bay;
}

} // namespace QLN
