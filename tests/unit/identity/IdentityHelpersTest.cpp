// Controller names and tags, disk DeviceIDs, enclosure tags and the PCI
// address: the keys of the whole instance graph, checked to the character.
#include "IdentityHelpers.h"
#include "VeldraRecordData.h"

#include <gtest/gtest.h>

namespace {

VeldraControllerData controller(std::string serial, std::array<uint8_t, 8> physloc,
                                std::set<std::string> fail = {}) {
    auto info = std::make_shared<VeldraControllerInfo>();
    info->serialNumber = serial;
    info->physloc = physloc;
    info->fail = fail;
    return VeldraControllerData(info);
}

VeldraPhysicalDisk disk(std::string serial, std::string model, int box, int bay,
                        std::vector<std::string> ports = {}) {
    auto info = std::make_shared<VeldraPhysicalDiskInfo>();
    info->serialNumber = serial;
    info->model = model;
    info->enclosureBoxNumber = box;
    info->bay = bay;
    VeldraPhysicalDisk made(info);
    std::vector<VeldraPhysicalPath> paths;
    for (auto const& port : ports)
        paths.emplace_back(port, box, 0);
    made.setLastAllPhysicalPaths(paths);
    return made;
}

VeldraEnclosure enclosure(u32 box) {
    auto info = std::make_shared<VeldraEnclosureInfo>();
    info->enclosureBoxNumber = box;
    return VeldraEnclosure(info);
}

// "Key=value ..." in the path's own key order.
std::string keys(CmpiCpp::CmpiObjectPath const& path) {
    std::string text;
    for (unsigned int i = 0; i < path.getKeyCount(); ++i)
        text += (i ? " " : "") + path.getKeyNameAt(i).str() + "=" + path.getKeyAt(i).getString();
    return text;
}

} // namespace

TEST(ControllerName, SerialWinsElseTheLocationTag) {
    EXPECT_EQ(QLN::getControllerName(controller("ABC", {5, 3}), 1), "ABC");
    EXPECT_EQ(QLN::getControllerName(controller("ABC", {}, {"getPhysloc"}), 2), "ABC");
    EXPECT_EQ(QLN::getControllerName(controller("", {5, 3}), 1), "PCISLOT-3");
    EXPECT_EQ(QLN::getControllerName(controller("", {5, 2, 1}), 1), "PCISLOT-R1S2");
    EXPECT_EQ(QLN::getControllerName(controller("", {}), 4), "EXTERNAL-4")
        << "the null record names the index";
    EXPECT_EQ(QLN::getControllerName(controller("", {1, 0}), 1), "EMBEDDED-SB0");
    EXPECT_EQ(QLN::getControllerName(controller("", {5, 3}, {"getPhysloc"}), 2), "UNKNOWN-2");
    EXPECT_EQ(QLN::getControllerName(controller("ABC", {5, 3}, {"getControllerSerialNumber"}), 1),
              "PCISLOT-3");
}

TEST(ControllerName, TagAndDisplayNameTellExternalDifferently) {
    // Kind 0 with a reserved high bit is not the null record: the tag calls
    // it embedded, the display text (which reads the kind only) external.
    VeldraControllerData odd = controller("", {0x10});
    EXPECT_EQ(QLN::getControllerTag(odd, 3).rfind("EMBEDDED-", 0), 0u);
    EXPECT_EQ(QLN::getControllerDisplayName(odd), "Veldra External Unknown Location");
    EXPECT_EQ(QLN::getControllerDisplayName(controller("S", {5, 3})), "Veldra in PCI Slot 3");
    EXPECT_EQ(QLN::getControllerDisplayName(controller("S", {1, 0})), "Veldra System Board");
    EXPECT_EQ(QLN::getControllerDisplayName(controller("S", {5, 3}, {"getPhysloc"})),
              "Veldra Unknown Unknown Location");
}

TEST(DevicePaths, DiskDeviceIdIsModelAndSerialWithoutBlanksOrThePlace) {
    VeldraControllerData data = controller("CTRL1", {5, 3});
    auto path = QLN::makeDiskDrivePath(data, 1, disk(" WD 123 ", "AB C", 1, 1));
    EXPECT_EQ(path.getClassName().str(), "QLN_VDDiskDrive");
    EXPECT_EQ(keys(path),
              "SystemCreationClassName=QLN_VDArraySystem CreationClassName=QLN_VDDiskDrive "
              "SystemName=CTRL1 DeviceID=ABC-WD123");
    EXPECT_EQ(
        QLN::makeDiskDrivePath(data, 1, disk("", "AB C", 2, 7)).getKey("DeviceID").getString(),
        "1-2:7");
    EXPECT_EQ(
        QLN::makeDiskDrivePath(data, 3, disk("\t \n", "M", 2, 7)).getKey("DeviceID").getString(),
        "3-2:7")
        << "a serial of blanks is no serial";
    EXPECT_EQ(QLN::removeWhitespace(""), "");
    // The disk's own classes name it from the serial as reported, so there the
    // same blanks count as a serial: the one place the two forms part.
    EXPECT_EQ(QLN::diskKeyName("\t \n", "M", "3-", 2, 7), "M-");
    EXPECT_EQ(QLN::diskKeyName("", "M", "3-", 2, 7), "3-2:7");
}

TEST(DevicePaths, VolumeEnclosureProcessorAndController) {
    auto volume = std::make_shared<VeldraLogicalDiskInfo>();
    volume->serialNumber = " 600508B1 ";
    EXPECT_EQ(
        keys(QLN::makeStorageVolumePath(controller("", {5, 3}), 1, VeldraLogicalDisk(volume))),
        "SystemCreationClassName=QLN_VDArraySystem CreationClassName=QLN_VDStorageVolume "
        "SystemName=PCISLOT-3 DeviceID= 600508B1 ");
    EXPECT_EQ(keys(QLN::makeStorageEnclosurePath(2, enclosure(3))),
              "CreationClassName=QLN_VDStorageEnclosure Tag=2-3");
    EXPECT_EQ(keys(QLN::makeEnclosureProcessorPath(2, enclosure(3))),
              "CreationClassName=QLN_VDStorageEnclosureProcessor Name=2-3");
    auto path = QLN::makeArrayControllerPath(controller("", {}), 5);
    EXPECT_EQ(keys(path), "CreationClassName=QLN_VDArrayController Name=EXTERNAL-5");
    EXPECT_EQ(path.getNameSpace().str(), "root/mwq");
    EXPECT_FALSE(path.getHost().str().empty());
}

TEST(DevicePaths, PCIAddressKeepsTheDeviceNumberDecimal) {
    auto info = std::make_shared<VeldraControllerInfo>();
    info->pciInfo = {0, 0x1a, 12, 0};
    auto path = QLN::makePCIDevicePath(VeldraControllerData(info));
    EXPECT_EQ(
        keys(path),
        "CreationClassName=QLN_PCIDevice SystemCreationClassName=QLN_ComputerSystem SystemName=" +
            path.getHost().str() + " DeviceID=MWQ:QLN_PCIDevice:0000:1a:12.0");
    info->pciInfo = {0x10002, 0xff, 31, 7};
    EXPECT_EQ(QLN::makePCIDevicePath(VeldraControllerData(info)).getKey("DeviceID").getString(),
              "MWQ:QLN_PCIDevice:10002:ff:31.7");
    info->fail = {"getPCIInfo"};
    EXPECT_EQ(QLN::makePCIDevicePath(VeldraControllerData(info)).getKey("DeviceID").getString(),
              "MWQ:QLN_PCIDevice:NO PCI DATA");
}

TEST(DiskMatching, SerialDecidesAlonePlaceOnlyWithoutOne) {
    EXPECT_TRUE(QLN::isSamePhysicalDisk(disk("S1", "M", 1, 1), "S1", 9, 9));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("S1", "M", 1, 1), "S2", 1, 1));
    EXPECT_TRUE(QLN::isSamePhysicalDisk(disk("", "M", 2, 7), "", 2, 7));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("", "M", 2, 7), "", 2, 8));
    EXPECT_FALSE(QLN::isSamePhysicalDisk(disk("S1", "M", 2, 7), "", 2, 7));

    VeldraPhysicalDisk routed = disk("S1", "M", 2, 7, {"1I", "2E"});
    EXPECT_TRUE(QLN::isPhysicalDiskAtPort(routed, "2E", 2, 7));
    EXPECT_FALSE(QLN::isPhysicalDiskAtPort(routed, "3E", 2, 7));
    EXPECT_FALSE(QLN::isPhysicalDiskAtPort(routed, "1I", 2, 8));
    EXPECT_TRUE(QLN::isEnclosureBox(enclosure(4), 4));
    EXPECT_FALSE(QLN::isEnclosureBox(enclosure(4), 5));
}
