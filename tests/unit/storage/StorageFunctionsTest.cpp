// The set differences, look-ups and route texts, and a volume's membership.
#include "VeldraRecordData.h"
#include "VeldraStorageFunctions.h"

#include <gtest/gtest.h>

namespace {

VeldraPhysicalDisk disk(u32 id, std::string serial, int enclosure, int bay) {
    auto info = std::make_shared<VeldraPhysicalDiskInfo>();
    info->id = id;
    info->serialNumber = serial;
    info->enclosureBoxNumber = enclosure;
    info->bay = bay;
    return VeldraPhysicalDisk(info);
}

VeldraEnclosure enclosure(u32 boxNumber, std::string serial) {
    auto info = std::make_shared<VeldraEnclosureInfo>();
    info->enclosureBoxNumber = boxNumber;
    info->serialNumber = serial;
    return VeldraEnclosure(info);
}

VeldraLogicalDisk volume(std::string serial, std::vector<u32> data = {},
                         std::vector<u32> spares = {}, std::map<u32, u32> replaced = {}) {
    auto info = std::make_shared<VeldraLogicalDiskInfo>();
    info->serialNumber = serial;
    info->dataDisks = data;
    info->spareDisks = spares;
    info->replaced = replaced;
    return VeldraLogicalDisk(info);
}

std::vector<std::string> serials(std::vector<VeldraPhysicalDisk> const& disks) {
    std::vector<std::string> out;
    for (auto const& d : disks)
        out.push_back(d.getSerialNumber().empty() ? "@" + std::to_string(d.getBay())
                                                  : d.getSerialNumber());
    return out;
}

TEST(FindNewAndRemoved, PhysicalDisksUseSerialOrPlace) {
    std::vector<VeldraPhysicalDisk> previous = {disk(0, "A", 1, 1), disk(1, "B", 1, 2),
                                                disk(2, "", 1, 3)};
    // B moved bays (same disk), the serial-less disk moved (a different disk), C is new.
    std::vector<VeldraPhysicalDisk> current = {disk(0, "A", 1, 1), disk(1, "B", 1, 5),
                                               disk(2, "", 1, 4), disk(3, "C", 1, 6)};
    std::vector<VeldraPhysicalDisk> added{disk(9, "stale", 0, 0)}, removed;
    findNewVDPhysicalDisks(previous, current, added);
    findRemovedVDPhysicalDisks(previous, current, removed);
    EXPECT_EQ(serials(added), (std::vector<std::string>{"@4", "C"}))
        << "the out vector is replaced, not appended";
    EXPECT_EQ(serials(removed), (std::vector<std::string>{"@3"}));
}

TEST(FindNewAndRemoved, EnclosuresAndLogicalDisks) {
    std::vector<VeldraEnclosure> oldEnclosures = {enclosure(1, "E1"), enclosure(2, "E2")};
    std::vector<VeldraEnclosure> newEnclosures = {enclosure(1, "E1"), enclosure(3, "E3")};
    auto addedEnclosures = findNewVDEnclosures(oldEnclosures, newEnclosures);
    auto removedEnclosures = findRemovedVDEnclosures(oldEnclosures, newEnclosures);
    ASSERT_EQ(addedEnclosures.size(), 1u);
    EXPECT_EQ(addedEnclosures[0].getEnclosureBoxNumber(), 3u);
    ASSERT_EQ(removedEnclosures.size(), 1u);
    EXPECT_EQ(removedEnclosures[0].getEnclosureBoxNumber(), 2u);

    std::vector<VeldraLogicalDisk> oldVolumes = {volume("V1"), volume("V2")};
    std::vector<VeldraLogicalDisk> newVolumes = {volume("V2"), volume("V3")};
    auto addedVolumes = findNewVDLogicalDisks(oldVolumes, newVolumes);
    auto removedVolumes = findRemovedVDLogicalDisks(oldVolumes, newVolumes);
    ASSERT_EQ(addedVolumes.size(), 1u);
    EXPECT_EQ(addedVolumes[0].getSerialNumber(), "V3");
    ASSERT_EQ(removedVolumes.size(), 1u);
    EXPECT_EQ(removedVolumes[0].getSerialNumber(), "V1");
    EXPECT_TRUE(findNewVDLogicalDisks(newVolumes, newVolumes).empty());
}

TEST(FindInVector, MatchesByIdentityAndAnswersMinusOneOtherwise) {
    std::vector<VeldraPhysicalDisk> disks = {disk(0, "A", 1, 1), disk(1, "", 2, 7),
                                             disk(2, "", 2, 8)};
    EXPECT_EQ(findPhysicalDiskInVector("A", 9, 9, disks), 0) << "a serial decides alone";
    EXPECT_EQ(findPhysicalDiskInVector("", 2, 8, disks), 2);
    EXPECT_EQ(findPhysicalDiskInVector("", 1, 1, disks), -1)
        << "the place counts only for serial-less disks";
    EXPECT_EQ(findPhysicalDiskInVector("Z", 2, 7, disks), -1);

    std::vector<VeldraEnclosure> enclosures = {enclosure(1, "E1"), enclosure(4, "E4")};
    EXPECT_EQ(findEnclosureInVector(4, enclosures), 1);
    EXPECT_EQ(findEnclosureInVector(2, enclosures), -1);

    std::vector<VeldraLogicalDisk> volumes = {volume("V1"), volume("V2")};
    EXPECT_EQ(findLogicalDiskInVector("V2", volumes), 1);
    EXPECT_EQ(findLogicalDiskInVector("", volumes), -1);
}

TEST(RouteTexts, PortListUserTextAndPortTest) {
    std::vector<VeldraPhysicalPath> paths = {VeldraPhysicalPath("1E", 2, 1),
                                             VeldraPhysicalPath("2E", 2, 0)};
    EXPECT_EQ(pathsToPortStr(paths), "1E,2E");
    EXPECT_EQ(pathsToPortStr({}), "");
    EXPECT_EQ(pathsToUserStr(paths, 5), "Port 1E Box 2 Bay 5, Port 2E Box 2 Bay 5");
    EXPECT_EQ(pathsToUserStr(paths, -1), "Port 1E Box 2, Port 2E Box 2");
    EXPECT_TRUE(isPortInPaths("2E", paths));
    EXPECT_FALSE(isPortInPaths("2", paths));

    std::vector<VeldraPhysicalPath> later = {VeldraPhysicalPath("2E", 2, 1),
                                             VeldraPhysicalPath("3E", 2, 1)};
    std::vector<VeldraPhysicalPath> added;
    findNewVDPhysicalPaths(paths, later, added);
    ASSERT_EQ(added.size(), 1u) << "a route whose status changed is not new";
    EXPECT_EQ(added[0].getPort(), "3E");
}

TEST(LogicalDiskMembers, MembersSparesAndStandIns) {
    VeldraLogicalDisk raid = volume("V", {0, 1, 2}, {4}, {{4, 2}});
    std::vector<VeldraPhysicalDisk> all = {disk(4, "S4", 1, 5), disk(0, "D0", 1, 1),
                                           disk(3, "X3", 1, 4), disk(1, "D1", 1, 2),
                                           disk(2, "D2", 1, 3)};
    EXPECT_EQ(serials(raid.logicalToAllPhysicals(all)),
              (std::vector<std::string>{"S4", "D0", "D1", "D2"}))
        << "members in the order of the given disks, spare included, outsider left out";
    EXPECT_EQ(raid.getReplacedDiskID(4), 2u);
    EXPECT_EQ(raid.getReplacedDiskID(0), 0xFFFFFFFFu);
    EXPECT_EQ(raid.dataDiskIDs, (std::vector<u32>{0, 1, 2}));
    EXPECT_EQ(raid.spareDiskIDs, (std::vector<u32>{4}));
    EXPECT_TRUE(raid.getAtLeastOneSpareAvailable());
    VeldraLogicalDisk plain = volume("P", {0, 1});
    EXPECT_TRUE(plain.spareDiskIDs.empty());
    EXPECT_FALSE(plain.getAtLeastOneSpareAvailable());
}

} // namespace
