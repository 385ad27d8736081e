// The array system: the status consolidation of a worker pass, its instance,
// and Identify as the simulated controller records it.
#include "ArrayTestSupport.h"
#include "LocatorLog.h"
#include "QLN_VDArraySystem.h"

#include <gtest/gtest.h>

namespace {

// One controller in PCI slot 3 whose devices report the given statuses.
// `controller` is the operational status, or "fail" for a failing read.
std::string scenario(std::string controller, std::vector<std::string> logicals = {},
                     std::vector<std::string> enclosures = {}, std::vector<std::string> disks = {},
                     std::string extra = "") {
    std::ostringstream y;
    y << "  - serialNumber: PSYS0001\n    physloc: [5, 3]\n" << extra;
    if (controller == "fail") {
        y << "    fail: [getControllerOperationalStatus]\n";
    } else {
        y << "    operationalStatus: " << controller << "\n";
    }
    y << "    enclosures: [";
    for (size_t i = 0; i < enclosures.size(); ++i)
        y << (i ? ", " : "") << "{enclosureBoxNumber: " << i + 1
          << ", overallStatus: " << enclosures[i] << "}";
    y << "]\n    physicalDisks: [";
    for (size_t i = 0; i < disks.size(); ++i)
        y << (i ? ", " : "") << "{id: " << i << ", serialNumber: D" << i << ", bay: " << i + 1
          << ", status: " << disks[i] << "}";
    y << "]\n    logicalDisks: [";
    for (size_t i = 0; i < logicals.size(); ++i)
        y << (i ? ", " : "") << "{number: " << i << ", serialNumber: L" << i
          << ", status: " << logicals[i] << "}";
    y << "]\n";
    return y.str();
}

std::string consolidated(std::string const& yaml) {
    ScenarioRig rig(ScenarioRig::controllerList, yaml);
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    system.manageDynamic(false, CmpiCpp::CmpiContext());
    return std::to_string(system.getStatus()) + " " + system.getStatusText();
}

} // namespace

TEST(ArraySystemConsolidation, OrderOfSources) {
    struct Case {
        std::string yaml;
        std::string expected;
    } const cases[] = {
        {scenario("1"), "2 Array is operating properly"},
        {scenario("4", {"2"}, {"2"}, {"1", "0x8005"}), "2 Array is operating properly"},
        {scenario("2"), "3 Controller Non-Failure Problem"},
        {scenario("0"), "6 Controller Failure"},
        {scenario("fail"), "0 Array status is Unknown"},
        // A failure always wins, and the last failure found names it.
        {scenario("3", {"3"}), "6 Logical Drive Failure"},
        {scenario("3", {"3"}, {"6"}), "6 Storage Enclosure Failure"},
        {scenario("1", {"3", "0x8000"}, {"3"}, {"3"}), "6 Logical Drive Failure"},
        // Among problems the first keeps the text.
        {scenario("2", {"0x8000"}, {"3"}, {"2"}), "3 Controller Non-Failure Problem"},
        {scenario("1", {"4"}, {"1"}), "3 Logical Drive Non-Failure Problem"},
        // Unknown is weaker than a problem: it lowers only a clean status,
        // and a later problem raises it.
        {scenario("1", {"0"}), "0 Array status is Unknown"},
        {scenario("1", {"0x8000", "0"}), "3 Logical Drive Non-Failure Problem"},
        {scenario("1", {"1"}, {}, {"2"}), "3 Physical Drive Non-Failure Problem"},
        {scenario("fail", {}, {}, {"2"}), "3 Physical Drive Non-Failure Problem"},
        // A disk never fails the array, however bad it is.
        {scenario("1", {}, {}, {"3", "4"}), "3 Physical Drive Non-Failure Problem"},
    };
    for (auto const& c : cases)
        EXPECT_EQ(consolidated(c.yaml), c.expected) << c.yaml;
}

TEST(ArraySystemConsolidation, TextChangesOnlyWithTheStatus) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario("1", {"3"}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    system.manageDynamic(true, CmpiCpp::CmpiContext());
    // The failure moves from the volume to an enclosure: still 6, old text.
    rig.change(ScenarioRig::controllerList, scenario("1", {"2"}, {"6"}));
    system.manageDynamic(true, CmpiCpp::CmpiContext());
    EXPECT_EQ(system.getStatus(), 6);
    EXPECT_EQ(system.getStatusText(), "Logical Drive Failure");
    rig.change(ScenarioRig::controllerList, scenario("1"));
    system.manageDynamic(false, CmpiCpp::CmpiContext());
    EXPECT_EQ(system.getStatusText(), "Array is operating properly");
}

TEST(ArraySystemInstance, KeysAndPropertiesInOrder) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario("1", {}, {"6"}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    EXPECT_EQ(system.getInstance().getProperty("HealthState").getUint16(), 5)
        << "OK before the first pass";

    system.manageDynamic(false, CmpiCpp::CmpiContext());
    CmpiCpp::CmpiInstance instance = system.getInstance();
    EXPECT_EQ(instance.getPath().str(), system.getPath().str());
    EXPECT_EQ(system.getPath().getKey("Name").getString(), "PSYS0001");
    // The path's keys lead, as an object manager builds an instance from a path.
    EXPECT_EQ(propertyNames(instance),
              "CreationClassName Name ElementName NameFormat OtherIdentifyingInfo "
              "IdentifyingDescriptions HealthState OperationalStatus StatusDescriptions "
              "EnabledDefault EnabledState RequestedState Dedicated");
    EXPECT_EQ(instance.getProperty("ElementName").getString(), "Veldra in PCI Slot 3");
    EXPECT_EQ(instance.getProperty("OtherIdentifyingInfo").getArray().getElementAt(0).getString(),
              "PSYS0001");
    EXPECT_EQ(instance.getProperty("HealthState").getUint16(), 20);
    EXPECT_EQ(instance.getProperty("OperationalStatus").getArray().getElementAt(0).getUint16(), 6);
    EXPECT_EQ(instance.getProperty("StatusDescriptions").getArray().getElementAt(0).getString(),
              "Storage Enclosure Failure");
    CmpiCpp::CmpiArray dedicated = instance.getProperty("Dedicated").getArray();
    ASSERT_EQ(dedicated.size(), 2u);
    EXPECT_EQ(dedicated.getElementAt(1).getUint16(), 15);
}

TEST(ArraySystemIdentify, Uint32DurationReachesTheControllerTimesTen) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario("1", {}, {}, {"1", "1"}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    CmpiCpp::CmpiArgs args;
    args.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(system.invokeMethod("Identify", args), 0u);
    auto lines = LocatorLog::read(rig.path);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("controller 1 all disks duration 50"), std::string::npos) << lines[0];
}

TEST(ArraySystemIdentify, AnythingButAUint32DurationIs17AndLightsNothing) {
    ScenarioRig rig(ScenarioRig::controllerList, scenario("1", {}, {}, {"1"}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    CmpiCpp::CmpiArgs uint16Duration, none, uint32Duration;
    uint16Duration.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned short>(5)));
    uint32Duration.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(system.invokeMethod("Identify", uint16Duration), 17u);
    EXPECT_EQ(system.invokeMethod("Identify", none), 17u);
    EXPECT_EQ(system.invokeMethod("Locate", uint32Duration), 17u);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());

    ScenarioRig refusing(ScenarioRig::controllerList,
                         scenario("1", {}, {}, {}, "    fail: [identifyAllPhysicalDisks]\n"));
    QLN::QLN_VDArraySystem other(refusing.logger, "root/mwq", 1, refusing.controller());
    EXPECT_EQ(other.invokeMethod("Identify", uint32Duration), 2u);
}
