// The drive cage and its location on scenarios: keys, "N/A" and left-out
// texts, the duplex tag, the accessors the graph's cage list uses, and a
// cage whose enclosure has left the snapshot.
#include "EnclosureRig.h"
#include "QLN_VDDriveCage.h"
#include "QLN_VDDriveCageLocation.h"

#include <gtest/gtest.h>

namespace {

std::string cage(int enclosureBoxNumber, std::string const& fields) {
    return "{enclosureBoxNumber: " + std::to_string(enclosureBoxNumber) +
           (fields.empty() ? "" : ", " + fields) + "}";
}

TEST(DriveCage, KeysTextsAndWhatTheCageListReads) {
    EnclosureRig rig(cage(3, "boxNumber: 7, serialNumber: SJB01, model: JBOD-12, "
                             "manufacturer: Morvane, driveBays: 12, backplaneSpeed: 12, "
                             "duplexLocation: 1, paths: [{port: 1E, box: 7}, {port: 2E, box: 7}]") +
                     ", " + cage(4, "boxNumber: 1"));
    QLN::QLN_VDDriveCage full(rig.logger, "root/mwq", 2, rig.stored(3), rig.controller());
    QLN::QLN_VDDriveCage empty(rig.logger, "root/mwq", 2, rig.stored(4), rig.controller());

    // The enclosure box number (3), not the box number (7), tells cages apart.
    EXPECT_EQ(full.getPath().getKey("Tag").getString(), "QLN_VDDriveCage-2-3");
    EXPECT_EQ(full.getBoxNumber(), 7);
    ASSERT_EQ(full.getPaths().size(), 2u);
    EXPECT_EQ(full.getPaths()[1].getPort(), "2E");

    CmpiCpp::CmpiInstance const a = full.getInstance();
    EXPECT_EQ(propertyNames(a),
              "CreationClassName Tag SerialNumber Name ElementName Manufacturer Model PartNumber "
              "Version Description RemovalConditions BackplaneSpeed DriveBays DuplexLocation");
    EXPECT_EQ(a.getProperty("Name").getString(), "SJB01");
    EXPECT_EQ(a.getProperty("ElementName").getString(), "Port: 1E,2E");
    EXPECT_EQ(a.getProperty("DriveBays").getUint32(), 12u);
    EXPECT_EQ(a.getProperty("DuplexLocation").getUint16(), 1);

    CmpiCpp::CmpiInstance const b = empty.getInstance();
    EXPECT_EQ(b.getProperty("SerialNumber").getString(), "N/A");
    EXPECT_EQ(b.getProperty("Name").getString(), "N/A");
    // The cage leaves empty maker texts out rather than saying "N/A".
    EXPECT_FALSE(b.hasProperty("Manufacturer"));
    EXPECT_FALSE(b.hasProperty("Model"));
    EXPECT_EQ(b.getProperty("ElementName").getString(), "Port: ");
}

TEST(DriveCageLocation, DuplexTagPositionAndLocationParts) {
    EnclosureRig rig(cage(1, "boxNumber: 5, duplexLocation: 0") + ", " +
                     cage(2, "boxNumber: 6, duplexLocation: 2") + ", " +
                     cage(3, "boxNumber: 7, duplexLocation: 5"));
    std::vector<std::unique_ptr<QLN::QLN_VDDriveCageLocation>> locations;
    for (u32 box : {1u, 2u, 3u})
        locations.push_back(std::make_unique<QLN::QLN_VDDriveCageLocation>(
            rig.logger, "root/mwq", 1, rig.stored(box), rig.controller()));

    CmpiCpp::CmpiInstance const first = locations[0]->getInstance();
    EXPECT_EQ(first.getProperty("ElementLocationTag").getString(), "Non Duplex");
    EXPECT_EQ(first.getProperty("PhysicalPosition").getString(), "1-5");
    EXPECT_EQ(first.getProperty("ElementName").getString(), "Drive Cage");
    EXPECT_EQ(first.getProperty("ElementLocationTagDesc").getUint16(), 22);
    EXPECT_EQ(strings(first, "LocationInfoDesc"), (std::vector<std::string>{"PCI Slot", "Box"}));
    EXPECT_EQ(uint16s(first, "LocationInformation"), (std::vector<unsigned short>{3, 5}));

    EXPECT_EQ(locations[1]->getInstance().getProperty("ElementLocationTag").getString(),
              "Duplex Bottom");
    EXPECT_FALSE(locations[2]->getInstance().hasProperty("ElementLocationTag"));
    EXPECT_EQ(QLN::QLN_VDDriveCageLocation::duplexTagOf(1), "Duplex Top");
    EXPECT_FALSE(locations[0]->getPath() == locations[1]->getPath());
}

TEST(DriveCageRemoval, BothClassesThrow100WithTheirOwnTexts) {
    EnclosureRig rig(cage(3, "boxNumber: 7"));
    QLN::QLN_VDDriveCage driveCage(rig.logger, "root/mwq", 1, rig.stored(3), rig.controller());
    QLN::QLN_VDDriveCageLocation location(rig.logger, "root/mwq", 1, rig.stored(3),
                                          rig.controller());
    rig.replace(cage(4, "boxNumber: 7"));
    EXPECT_EQ(thrownBy(driveCage),
              "100 getInstance, findEnclosureInVector could not find enclosure");
    EXPECT_EQ(thrownBy(location),
              "100 getInstance, findEnclosureInVector could not find drive based on serial #");
    EXPECT_EQ(driveCage.getPath().getKey("Tag").getString(), "QLN_VDDriveCage-1-3");
}

} // namespace
