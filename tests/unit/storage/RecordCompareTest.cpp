// Change masks of the four record kinds: each fact sets its own bit and no
// other, a record without counterpart gets 0x1 alone, an equal record 0.
#include "VeldraControllerData.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraRecordData.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

std::shared_ptr<VeldraPhysicalDiskInfo> diskInfo(u32 id, std::string serial, int enclosure,
                                                 int bay) {
    auto info = std::make_shared<VeldraPhysicalDiskInfo>();
    info->id = id;
    info->serialNumber = serial;
    info->enclosureBoxNumber = enclosure;
    info->box = enclosure;
    info->bay = bay;
    info->configuration = PD_CONFIG_DATA;
    info->paths = {VeldraPhysicalPath("1I", enclosure, 1)};
    return info;
}

template <class Info> using Edit = std::function<void(Info&)>;

TEST(PhysicalDiskCompare, EachFactSetsItsOwnBitAndFindsTheCounterpart) {
    struct Case {
        char const* what;
        Edit<VeldraPhysicalDiskInfo> edit;
        u32 bit;
    };
    std::vector<Case> const cases = {
        {"box", [](auto& d) { d.box = 9; }, 0x002},
        {"bay", [](auto& d) { d.bay = 9; }, 0x004},
        {"status", [](auto& d) { d.status = PD_STATUS_FAILED; }, 0x010},
        {"configuration", [](auto& d) { d.configuration = PD_CONFIG_SPARE; }, 0x020},
        {"MNP data", [](auto& d) { d.mnpData = true; }, 0x040},
        {"remaining blocks", [](auto& d) { d.remainingBlocks = 77; }, 0x080},
        {"active spare", [](auto& d) { d.activeSpare = true; }, 0x100},
        {"SSD wear", [](auto& d) { d.ssdWearStatus = SSD_WEAR_WORN_OUT; }, 0x400},
        {"unread fact", [](auto& d) { d.totalPowerOnHours = 5; }, 0},
    };
    auto base = diskInfo(7, "SER7", 1, 3);
    std::vector<VeldraPhysicalDisk> previous = {VeldraPhysicalDisk(diskInfo(1, "SER1", 1, 1)),
                                                VeldraPhysicalDisk(base)};
    for (auto const& c : cases) {
        auto changed = std::make_shared<VeldraPhysicalDiskInfo>(*base);
        c.edit(*changed);
        u32 index = 99;
        EXPECT_EQ(VeldraPhysicalDisk(changed).compare(previous, index), c.bit) << c.what;
        EXPECT_EQ(index, 1u) << c.what;
    }
}

TEST(PhysicalDiskCompare, PathBitComparesTheStoredRoutesNotTheCurrentOnes) {
    auto info = diskInfo(1, "SER1", 1, 1);
    VeldraPhysicalDisk old(info), now(info);
    std::vector<VeldraPhysicalPath> one = {VeldraPhysicalPath("1I", 1, 1)};
    std::vector<VeldraPhysicalPath> two = {VeldraPhysicalPath("1I", 1, 1),
                                           VeldraPhysicalPath("2I", 1, 1)};
    old.setLastAllPhysicalPaths(one);
    now.setLastAllPhysicalPaths(two);
    std::vector<VeldraPhysicalDisk> previous = {old};
    u32 index = 0;
    EXPECT_EQ(now.compare(previous, index), 0x200u);
    now.setLastAllPhysicalPaths(one);
    EXPECT_EQ(now.compare(previous, index), 0u);
}

TEST(PhysicalDiskCompare, IdentityIsTheSerialOrForSerialLessDisksThePlace) {
    std::vector<VeldraPhysicalDisk> previous = {VeldraPhysicalDisk(diskInfo(1, "SER1", 1, 1)),
                                                VeldraPhysicalDisk(diskInfo(2, "", 2, 7))};
    u32 index = 42;
    // A different serial at the same place is another disk.
    EXPECT_EQ(VeldraPhysicalDisk(diskInfo(1, "SER9", 1, 1)).compare(previous, index), 0x1u);
    EXPECT_EQ(index, 42u) << "index is left alone without counterpart";
    // A serial-less disk in another bay is another disk; in the same bay it is the same.
    EXPECT_EQ(VeldraPhysicalDisk(diskInfo(2, "", 2, 8)).compare(previous, index), 0x1u);
    EXPECT_EQ(VeldraPhysicalDisk(diskInfo(5, "", 2, 7)).compare(previous, index), 0u);
    EXPECT_EQ(index, 1u);
    // A serial disk that moved keeps its identity and reports the move.
    EXPECT_EQ(VeldraPhysicalDisk(diskInfo(1, "SER1", 1, 4)).compare(previous, index), 0x4u);
    EXPECT_EQ(index, 0u);
}

TEST(EnclosureCompare, EachFactSetsItsOwnBit) {
    struct Case {
        char const* what;
        Edit<VeldraEnclosureInfo> edit;
        u32 bit;
    };
    // A subsystem change also moves the derived overall status (0x2).
    std::vector<Case> const cases = {
        {"fan", [](auto& e) { e.fanStatus = ENCLOSURE_FAN_FAILED; }, 0x004 | 0x002},
        {"power supply", [](auto& e) { e.powerSupplyStatus = ENCLOSURE_PS_DEGRADED; },
         0x008 | 0x002},
        {"temperature", [](auto& e) { e.tempSensorStatus = ENCLOSURE_TEMP_WARNING; },
         0x010 | 0x002},
        {"box number", [](auto& e) { e.boxNumber = 5; }, 0x020},
        {"enclosure box number", [](auto& e) { e.enclosureBoxNumber = 5; }, 0x080},
        {"model", [](auto& e) { e.model = "other"; }, 0},
    };
    auto base = std::make_shared<VeldraEnclosureInfo>();
    base->serialNumber = "ENC1";
    base->enclosureBoxNumber = 2;
    base->boxNumber = 2;
    std::vector<VeldraEnclosure> previous = {VeldraEnclosure(base)};
    for (auto const& c : cases) {
        auto changed = std::make_shared<VeldraEnclosureInfo>(*base);
        c.edit(*changed);
        u32 index = 9;
        EXPECT_EQ(VeldraEnclosure(changed).compare(previous, index), c.bit) << c.what;
        EXPECT_EQ(index, 0u) << c.what;
    }
    auto other = std::make_shared<VeldraEnclosureInfo>(*base);
    other->serialNumber = "ENC2";
    u32 index = 9;
    EXPECT_EQ(VeldraEnclosure(other).compare(previous, index), 0x1u);

    VeldraEnclosure withPaths(base);
    std::vector<VeldraPhysicalPath> paths = {VeldraPhysicalPath("1E", 2, 1)};
    withPaths.setLastAllPhysicalPaths(paths);
    EXPECT_EQ(withPaths.compare(previous, index), 0x100u);
}

TEST(EnclosureCompare, OverallStatusFollowsTheWorstSubsystemUnlessGiven) {
    VeldraEnclosureInfo info;
    EXPECT_EQ(VeldraEnclosure(std::make_shared<VeldraEnclosureInfo>(info)).getOverallStatus(), 2u);
    info.fanStatus = ENCLOSURE_FAN_DEGRADED;
    EXPECT_EQ(VeldraEnclosure(std::make_shared<VeldraEnclosureInfo>(info)).getOverallStatus(), 3u);
    info.powerSupplyStatus = ENCLOSURE_PS_FAILED;
    EXPECT_EQ(VeldraEnclosure(std::make_shared<VeldraEnclosureInfo>(info)).getOverallStatus(), 6u);
    info.overallStatusSet = true;
    info.overallStatus = ENCLOSURE_STATUS_OK;
    EXPECT_EQ(VeldraEnclosure(std::make_shared<VeldraEnclosureInfo>(info)).getOverallStatus(), 2u);
}

TEST(LogicalDiskCompare, EachFactSetsItsOwnBit) {
    struct Case {
        char const* what;
        Edit<VeldraLogicalDiskInfo> edit;
        u32 bit;
    };
    std::vector<Case> const cases = {
        {"total blocks", [](auto& l) { l.totalBlocks = 1; }, 0x02},
        {"label", [](auto& l) { l.driveLabel = "x"; }, 0x04},
        {"tolerance", [](auto& l) { l.tolerance = LD_TOLERANCE_MIRROR; }, 0x08},
        {"status", [](auto& l) { l.status = LD_STATUS_FAILED; }, 0x10},
        {"status and label",
         [](auto& l) {
             l.status = 4;
             l.driveLabel = "y";
         },
         0x14},
        {"members",
         [](auto& l) {
             l.dataDisks = {1, 2};
         },
         0},
    };
    auto base = std::make_shared<VeldraLogicalDiskInfo>();
    base->serialNumber = "LD-A";
    auto other = std::make_shared<VeldraLogicalDiskInfo>();
    other->serialNumber = "LD-B";
    std::vector<VeldraLogicalDisk> previous = {VeldraLogicalDisk(other), VeldraLogicalDisk(base)};
    for (auto const& c : cases) {
        auto changed = std::make_shared<VeldraLogicalDiskInfo>(*base);
        c.edit(*changed);
        u32 index = 9;
        EXPECT_EQ(VeldraLogicalDisk(changed).compare(previous, index), c.bit) << c.what;
        EXPECT_EQ(index, 1u) << c.what;
    }
    auto stranger = std::make_shared<VeldraLogicalDiskInfo>(*base);
    stranger->serialNumber = "LD-C";
    u32 index = 9;
    EXPECT_EQ(VeldraLogicalDisk(stranger).compare(previous, index), 0x1u);
}

TEST(ControllerDataCompare, EachNamedFactSetsItsBitAndTheRestIsUnexpected) {
    struct Case {
        char const* what;
        Edit<VeldraControllerInfo> edit;
        u32 bit;
    };
    std::vector<Case> const cases = {
        {"operational status", [](auto& c) { c.operationalStatus = 3; }, 0x00000020},
        {"firmware", [](auto& c) { c.fwVersion = "9"; }, 0x00000040},
        {"manufacturer", [](auto& c) { c.manufacturer = "x"; }, 0x00000080},
        {"model", [](auto& c) { c.model = "x"; }, 0x00000100},
        {"DPG", [](auto& c) { c.dpgSupportedType = 1; }, 0x00000200},
        {"battery", [](auto& c) { c.batteryStatus = BATTERY_FAILED; }, 0x00000400},
        {"cache board", [](auto& c) { c.cacheBoardPresent = 0; }, 0x00000800},
        {"cache battery", [](auto& c) { c.cacheHasBattery = 0; }, 0x00001000},
        {"cache state", [](auto& c) { c.cacheState = 2; }, 0x00002000},
        {"parity read", [](auto& c) { c.cacheParityReadErrors = 1; }, 0x00004000},
        {"parity write", [](auto& c) { c.cacheParityWriteErrors = 1; }, 0x00008000},
        {"rebuild priority", [](auto& c) { c.rebuildPriority = 3; }, 0x00100000},
        {"expand priority", [](auto& c) { c.expandPriority = 2; }, 0x00200000},
        {"SAS ports", [](auto& c) { c.numberOfSASPorts = 4; }, 0x00400000},
        {"cache status", [](auto& c) { c.cacheStatus = CACHE_STATUS_FAILED; }, 0x00800000},
        {"SCSI buses", [](auto& c) { c.numberOfSCSIBuses = 2; }, 0x00800000},
        {"self test", [](auto& c) { c.encryptionSelfTestStatus = 3; }, 0x02000000},
        {"CSP NVRAM", [](auto& c) { c.encryptionCSPNvramStatus = 3; }, 0x04000000},
        {"temperature", [](auto& c) { c.controllerTemperature = 90; }, 0x00000001},
        {"serial number", [](auto& c) { c.serialNumber = "new"; }, 0x00000001},
        {"battery read fails", [](auto& c) { c.fail.insert("getBatteryStatus"); }, 0x00000400},
        {"slot read fails", [](auto& c) { c.fail.insert("getPCISlotNumber"); }, 0x00000001},
        {"battery and temperature",
         [](auto& c) {
             c.batteryStatus = 2;
             c.controllerTemperature = 1;
         },
         0x00000401},
    };
    auto base = std::make_shared<VeldraControllerInfo>();
    VeldraControllerData previous(base);
    EXPECT_EQ(VeldraControllerData(std::make_shared<VeldraControllerInfo>(*base)).compare(previous),
              0u);
    for (auto const& c : cases) {
        auto changed = std::make_shared<VeldraControllerInfo>(*base);
        c.edit(*changed);
        EXPECT_EQ(VeldraControllerData(changed).compare(previous), c.bit) << c.what;
    }
}

TEST(RecordCopies, StoredStateBelongsToOneCopyOnly) {
    VeldraPhysicalDisk original(diskInfo(1, "SER1", 1, 1));
    VeldraPhysicalDisk copy = original;
    auto paths = copy.getPaths();
    copy.setLastAllPhysicalPaths(paths);
    EXPECT_EQ(copy.getLastAllPhysicalPaths().size(), 1u);
    EXPECT_TRUE(original.getLastAllPhysicalPaths().empty());

    auto ldInfo = std::make_shared<VeldraLogicalDiskInfo>();
    ldInfo->serialNumber = "LD";
    VeldraLogicalDisk volume(ldInfo);
    VeldraLogicalDisk volumeCopy = volume;
    std::vector<VeldraPhysicalDisk> members = {original};
    volumeCopy.setLastAllPhysicalDisks(members);
    members.clear();
    EXPECT_EQ(volumeCopy.getLastAllPhysicalDisks().size(), 1u) << "the record keeps its own vector";
    EXPECT_TRUE(volume.getLastAllPhysicalDisks().empty());
}

TEST(EnumTexts, UnnamedValuesStillGiveAText) {
    VeldraPhysicalDisk disk;
    VeldraLogicalDisk volume;
    VeldraControllerData data;
    EXPECT_STREQ(disk.diskStatusToStr(static_cast<VeldraPhysicalDiskStatusEnum>(0x9999)),
                 "Unknown value");
    EXPECT_STREQ(disk.diskStatusToStr(PD_STATUS_REBUILDING), "Rebuilding");
    EXPECT_STREQ(volume.toleranceToStr(LD_TOLERANCE_PARITY_SINGLE), "RAID 4");
    auto battery = static_cast<batteryStatusEnum>(77);
    EXPECT_STREQ(data.batteryStatusToStr(battery), "Unknown value");
}

} // namespace
