// The disk's statistics record and the target side of its SAS paths.
#include "PhysicalTestSupport.h"
#include "QLN_VDMediaAccessStatData.h"
#include "QLN_VDTSASPort.h"
#include "QLN_VDTSASSCSIProtocolEndpoint.h"

#include <gtest/gtest.h>

using namespace physicaltest;

namespace {

std::string const ns = "root/mwq";

std::string const disks = R"(controllers:
  - serialNumber: PCTL01
    physicalDisks:
      - {id: 0, serialNumber: S 1, model: NR 4000, enclosureBoxNumber: 1, bay: 4, mnpData: true,
         paths: [{port: 1I, box: 1}, {port: 2I, box: 1, status: 3}],
         statistics: {abortedCommands: 0, hardReadErrors: 5, seekCount: 0xFFFFFFFFFFFFFFFE,
                      serviceHours: 0xFFFFFFFFFFFFFFFF, badTargetErrors: 2}}
      - {id: 1, model: NR 4000, enclosureBoxNumber: 2, bay: 9, paths: [{port: 1E, box: 2}]}
)";

} // namespace

// Catches a counter of all ones published as a number, a counter of 0 left
// out, the record's order lost, and the serial-less InstanceID given the
// controller number (it has none here).
TEST(MediaAccessStatData, CountersOfAllOnesLeftOut) {
    ScenarioRig rig(disks);
    CmpiCpp::CmpiInstance const stats =
        QLN::QLN_VDMediaAccessStatData(rig.logger, ns, 1, rig.disk(0, 0), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(names(stats), "InstanceID SampleInterval ElementName AbortedCommands "
                            "BadTargetErrors HardReadErrors SeekCount");
    EXPECT_EQ(text(stats, "InstanceID"), "QLN_VDMediaAccessStatData-NR4000-S1");
    EXPECT_EQ(stats.getProperty("SampleInterval").getDateTime(), CmpiCpp::CmpiDateTime(0, true));
    EXPECT_EQ(uint64Of(stats, "AbortedCommands"), 0u);
    EXPECT_EQ(uint64Of(stats, "HardReadErrors"), 5u);
    EXPECT_EQ(uint64Of(stats, "SeekCount"), 0xFFFFFFFFFFFFFFFEULL);

    CmpiCpp::CmpiInstance const bare =
        QLN::QLN_VDMediaAccessStatData(rig.logger, ns, 1, rig.disk(0, 1), rig.controllers[0])
            .getInstance();
    EXPECT_EQ(text(bare, "InstanceID"), "QLN_VDMediaAccessStatData-2:9");
    EXPECT_EQ(names(bare), "InstanceID SampleInterval ElementName");
}

// Catches keys of two paths colliding, the serial-less key missing the port,
// and the port and endpoint tables mixed up (order, Role, texts, Path).
TEST(TargetPortAndEndpoint, KeysPropertiesAndPathStatus) {
    ScenarioRig rig(disks);
    VeldraPhysicalDisk const disk = rig.disk(0, 0);
    std::vector<VeldraPhysicalPath> const paths = disk.getLastAllPhysicalPaths();
    ASSERT_EQ(paths.size(), 2u);
    QLN::QLN_VDTSASPort port0(rig.logger, ns, 1, disk, paths[0], 0, rig.controllers[0]);
    QLN::QLN_VDTSASPort port1(rig.logger, ns, 1, disk, paths[1], 1, rig.controllers[0]);
    QLN::QLN_VDTSASSCSIProtocolEndpoint end1(rig.logger, ns, 1, disk, paths[1], 1,
                                             rig.controllers[0]);

    CmpiCpp::CmpiInstance const port = port1.getInstance();
    EXPECT_EQ(names(port), "CreationClassName SystemCreationClassName SystemName DeviceID "
                           "PortType ElementName Caption HealthState OperationalStatus "
                           "StatusDescriptions EnabledDefault EnabledState RequestedState "
                           "UsageRestriction");
    EXPECT_EQ(text(port, "DeviceID"), "NR4000-S1:1");
    EXPECT_EQ(text(port0.getInstance(), "DeviceID"), "NR4000-S1:0");
    EXPECT_EQ(text(port, "ElementName"), "Port 1");
    // A failed path still shows a working port.
    EXPECT_EQ(elements(port, "OperationalStatus"), "2");
    EXPECT_EQ(elements(port, "StatusDescriptions"), "Target port is operating properly");

    CmpiCpp::CmpiInstance const endpoint = end1.getInstance();
    EXPECT_EQ(names(endpoint), "CreationClassName SystemCreationClassName SystemName Name "
                               "ElementName Caption ProtocolIFType OtherTypeDescription Role "
                               "HealthState OperationalStatus StatusDescriptions EnabledDefault "
                               "EnabledState RequestedState Path");
    EXPECT_EQ(text(endpoint, "Name"), "NR4000-S1:1");
    EXPECT_EQ(text(endpoint, "ElementName"), "Protocol Endpoint for 1");
    EXPECT_EQ(uint16Of(endpoint, "Role"), 3);
    EXPECT_EQ(uint16Of(endpoint, "Path"), 3);
    EXPECT_EQ(end1.getPort(), "2I");

    VeldraPhysicalDisk const bare = rig.disk(0, 1);
    QLN::QLN_VDTSASSCSIProtocolEndpoint bareEnd(
        rig.logger, ns, 1, bare, bare.getLastAllPhysicalPaths().at(0), 0, rig.controllers[0]);
    EXPECT_EQ(text(bareEnd.getInstance(), "Name"), "1E:2:9:0");
}
