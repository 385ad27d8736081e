// Controller names and tags, disk DeviceIDs, enclosure tags and the PCI
// address: the keys of the whole instance graph, checked to the character.
#include "IdentityHelpers.h"
#include "VeldraRecordData.h"
#include "VeldraStorageFunctions.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

VeldraControllerData controllerData(std::string serial, std::array<uint8_t, 8> physloc,
                                    std::set<std::string> fail = {}) {
    auto info = std::make_shared<VeldraControllerInfo>();
    info->serialNumber = serial;
    info->physloc = physloc;
    info->fail = fail;
    return VeldraControllerData(info);
}

VeldraPhysicalDisk disk(std::string serial, std::string model, int enclosureBox, int bay,
                        std::vector<std::string> ports = {}) {
    auto info = std::make_shared<VeldraPhysicalDiskInfo>();
    info->serialNumber = serial;
    info->model = model;
    info->enclosureBoxNumber = enclosureBox;
    info->bay = bay;
    VeldraPhysicalDisk made(info);
    std::vector<VeldraPhysicalPath> paths;
    for (auto const& port : ports) paths.emplace_back(port, enclosureBox, 0);
    made.setLastAllPhysicalPaths(paths);
    return made;
}

VeldraEnclosure enclosure(u32 box) {
    auto info = std::make_shared<VeldraEnclosureInfo>();
    info->enclosureBoxNumber = box;
    return VeldraEnclosure(info);
}

std::string key(CmpiCpp::CmpiObjectPath const& path, char const* name) { return path.getKey(name).getString(); }

std::vector<std::string> keyNames(CmpiCpp::CmpiObjectPath const& path) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < path.getKeyCount(); ++i) names.push_back(path.getKeyNameAt(i).str());
    return names;
}

} // namespace

TEST(ControllerName, SerialNumberWinsWhateverTheLocation) {
    EXPECT_EQ(QLN::getControllerName(controllerData("ABC", {5, 3}), 1), "ABC");
    EXPECT_EQ(QLN::getControllerName(controllerData("ABC", {}), 2), "ABC");
    EXPECT_EQ(QLN::getControllerName(controllerData("ABC", {}, {"getPhysloc"}), 2), "ABC");
}

TEST(ControllerName, WithoutSerialTheTagNamesTheLocation) {
    // PCI slot 3 on the board, and slot 2 on riser 1.
    EXPECT_EQ(QLN::getControllerName(controllerData("", {5, 3}), 1), "PCISLOT-3");
    EXPECT_EQ(QLN::getControllerName(controllerData("", {5, 2, 1}), 1), "PCISLOT-R1S2");
    // The null record is external; its unique part is the controller's index.
    EXPECT_EQ(QLN::getControllerName(controllerData("", {}), 4), "EXTERNAL-4");
    EXPECT_EQ(QLN::getControllerName(controllerData("", {1, 0}), 1), "EMBEDDED-SB0");
    // A failed location read: prefix UNKNOWN, unique part from the untouched (null) record.
    EXPECT_EQ(QLN::getControllerName(controllerData("", {5, 3}, {"getPhysloc"}), 2), "UNKNOWN-2");
    // A serial that cannot be read counts as missing.
    EXPECT_EQ(QLN::getControllerName(controllerData("ABC", {5, 3}, {"getControllerSerialNumber"}), 1),
              "PCISLOT-3");
}

TEST(ControllerName, ReservedHighBitsOfTheKindByteDoNotMakeALocationExternal) {
    // Kind 0 with a reserved high nibble set is not the null record: the tag
    // calls it embedded while the display text, which looks at the nibble
    // only, calls it external. Both tests are meant to differ.
    VeldraControllerData data = controllerData("", {0x10});
    EXPECT_EQ(QLN::getControllerTag(data, 3).rfind("EMBEDDED-", 0), 0u);
    EXPECT_EQ(QLN::getControllerDisplayName(data).rfind("Veldra External ", 0), 0u);
}

TEST(ControllerDisplayName, PrefixFollowsTheLocationKind) {
    EXPECT_EQ(QLN::getControllerDisplayName(controllerData("S", {5, 3})), "Veldra in PCI Slot 3");
    EXPECT_EQ(QLN::getControllerDisplayName(controllerData("S", {1, 0})), "Veldra System Board");
    EXPECT_EQ(QLN::getControllerDisplayName(controllerData("S", {})).rfind("Veldra External ", 0), 0u);
    EXPECT_EQ(QLN::getControllerDisplayName(controllerData("S", {5, 3}, {"getPhysloc"})).rfind("Veldra Unknown ", 0),
              0u);
}

TEST(RemoveWhitespace, DropsEveryBlankAtTheEndsAndInside) {
    EXPECT_EQ(QLN::removeWhitespace(" WD 123 "), "WD123");
    EXPECT_EQ(QLN::removeWhitespace("\tA\nB  C\r"), "ABC");
    EXPECT_EQ(QLN::removeWhitespace("   "), "");
    EXPECT_EQ(QLN::removeWhitespace(""), "");
}

TEST(DiskDrivePath, DeviceIdIsModelAndSerialOrThePlace) {
    VeldraControllerData data = controllerData("CTRL1", {5, 3});
    auto path = QLN::makeDiskDrivePath(data, 1, disk(" WD 123 ", "AB C", 1, 1));
    EXPECT_EQ(path.getClassName().str(), "QLN_VDDiskDrive");
    EXPECT_EQ(keyNames(path),
              (std::vector<std::string>{"SystemCreationClassName", "CreationClassName", "SystemName", "DeviceID"}));
    EXPECT_EQ(key(path, "DeviceID"), "ABC-WD123");
    EXPECT_EQ(key(path, "SystemName"), "CTRL1");
    EXPECT_EQ(key(path, "SystemCreationClassName"), "QLN_VDArraySystem");

    EXPECT_EQ(key(QLN::makeDiskDrivePath(data, 1, disk("", "AB C", 2, 7)), "DeviceID"), "1-2:7");
    // A serial of blanks only is no serial.
    EXPECT_EQ(key(QLN::makeDiskDrivePath(data, 3, disk("  ", "M", 2, 7)), "DeviceID"), "3-2:7");
}

TEST(StorageVolumePath, DeviceIdIsTheSerialUnchanged) {
    auto info = std::make_shared<VeldraLogicalDiskInfo>();
    info->serialNumber = " 600508B1 ";
    auto path = QLN::makeStorageVolumePath(controllerData("", {5, 3}), 1, VeldraLogicalDisk(info));
    EXPECT_EQ(keyNames(path),
              (std::vector<std::string>{"SystemCreationClassName", "CreationClassName", "SystemName", "DeviceID"}));
    EXPECT_EQ(key(path, "DeviceID"), " 600508B1 ");
    EXPECT_EQ(key(path, "SystemName"), "PCISLOT-3");
}

TEST(EnclosurePaths, TagAndProcessorNameAreIndexDashBox) {
    auto enclosurePath = QLN::makeStorageEnclosurePath(2, enclosure(3));
    EXPECT_EQ(enclosurePath.getClassName().str(), "QLN_VDStorageEnclosure");
    EXPECT_EQ(key(enclosurePath, "CreationClassName"), "QLN_VDStorageEnclosure");
    EXPECT_EQ(key(enclosurePath, "Tag"), "2-3");
    auto processorPath = QLN::makeEnclosureProcessorPath(2, enclosure(3));
    EXPECT_EQ(key(processorPath, "CreationClassName"), "QLN_VDStorageEnclosureProcessor");
    EXPECT_EQ(key(processorPath, "Name"), "2-3");
}

TEST(ArrayControllerPath, KeysAreClassAndControllerName) {
    auto path = QLN::makeArrayControllerPath(controllerData("", {}), 5);
    EXPECT_EQ(path.getNameSpace().str(), "root/mwq");
    EXPECT_FALSE(path.getHost().str().empty());
    EXPECT_EQ(keyNames(path), (std::vector<std::string>{"CreationClassName", "Name"}));
    EXPECT_EQ(key(path, "Name"), "EXTERNAL-5");
}

TEST(PCIDevicePath, AddressKeepsTheDeviceNumberDecimal) {
    auto info = std::make_shared<VeldraControllerInfo>();
    info->pciInfo = {0, 0x1a, 12, 0};
    auto path = QLN::makePCIDevicePath(VeldraControllerData(info));
    EXPECT_EQ(keyNames(path), (std::vector<std::string>{"CreationClassName", "SystemCreationClassName", "SystemName",
                                                        "DeviceID"}));
    EXPECT_EQ(key(path, "DeviceID"), "MWQ:QLN_PCIDevice:0000:1a:12.0");
    EXPECT_EQ(key(path, "SystemCreationClassName"), "QLN_ComputerSystem");

    info->pciInfo = {0x10002, 0xff, 31, 7};
    EXPECT_EQ(key(QLN::makePCIDevicePath(VeldraControllerData(info)), "DeviceID"),
              "MWQ:QLN_PCIDevice:10002:ff:31.7");

    info->fail = {"getPCIInfo"};
    EXPECT_EQ(key(QLN::makePCIDevicePath(VeldraControllerData(info)), "DeviceID"), "MWQ:QLN_PCIDevice:NO PCI DATA");
}

TEST(DiskMatching, SerialDecidesAloneAndPlaceOnlyForSerialLessDisks) {
    EXPECT_TRUE(QLN::isSamePhysicalDisk(disk("S1", "M", 1, 1), "S1", 9, 9));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("S1", "M", 1, 1), "S2", 1, 1));
    EXPECT_TRUE(QLN::isSamePhysicalDisk(disk("", "M", 2, 7), "", 2, 7));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("", "M", 2, 7), "", 2, 8));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("S1", "M", 2, 7), "", 2, 7)) << "a disk with a serial never matches by place";
}

TEST(DiskMatching, AtPortNeedsTheStoredRouteAndThePlace) {
    VeldraPhysicalDisk d = disk("S1", "M", 2, 7, {"1I", "2E"});
    EXPECT_TRUE(QLN::isPhysicalDiskAtPort(d, "2E", 2, 7));
    EXPECT_FALSE(QLN::isPhysicalDiskAtPort(d, "3E", 2, 7));
    EXPECT_FALSE(QLN::isPhysicalDiskAtPort(d, "1I", 2, 8));
    EXPECT_TRUE(QLN::isEnclosureBox(enclosure(4), 4));
    EXPECT_FALSE(QLN::isEnclosureBox(enclosure(4), 5));
}
