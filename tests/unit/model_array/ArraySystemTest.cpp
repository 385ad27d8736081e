// The array system: its keys and instance, the status consolidation of a
// worker pass, and Identify as the simulated controller records it.
#include "ArrayTestRig.h"
#include "CmpiArgs.h"
#include "CmpiContext.h"
#include "LocatorLog.h"
#include "QLN_VDArraySystem.h"

#include <gtest/gtest.h>

// The cases name only the fields they set; the rest keep their defaults.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace {

struct Devices {
    std::string operationalStatus = "1";
    std::vector<std::string> logicals;   // status of each logical disk
    std::vector<std::string> enclosures; // overall status of each enclosure
    std::vector<std::string> disks;      // status of each physical disk
    std::string extra;                   // further controller lines
};

std::string controllerYaml(Devices const& d) {
    std::ostringstream y;
    y << "  - serialNumber: PSYS0001\n    physloc: [5, 3]\n    operationalStatus: " << d.operationalStatus << "\n"
      << d.extra;
    y << "    enclosures:\n";
    for (size_t i = 0; i < d.enclosures.size(); ++i)
        y << "      - {enclosureBoxNumber: " << i + 1 << ", overallStatus: " << d.enclosures[i] << "}\n";
    if (d.enclosures.empty()) y << "      []\n";
    y << "    physicalDisks:\n";
    for (size_t i = 0; i < d.disks.size(); ++i)
        y << "      - {id: " << i << ", serialNumber: D" << i << ", bay: " << i + 1 << ", status: " << d.disks[i]
          << "}\n";
    if (d.disks.empty()) y << "      []\n";
    y << "    logicalDisks:\n";
    for (size_t i = 0; i < d.logicals.size(); ++i)
        y << "      - {number: " << i << ", serialNumber: L" << i << ", status: " << d.logicals[i] << "}\n";
    if (d.logicals.empty()) y << "      []\n";
    return y.str();
}

struct Outcome {
    int status;
    std::string text;
};

Outcome consolidate(Devices const& devices) {
    ArrayTestRig rig(controllerYaml(devices));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    system.manageDynamic(false, CmpiCpp::CmpiContext());
    return {system.getStatus(), system.getStatusText()};
}

void expectOutcome(Devices const& devices, int status, std::string const& text) {
    Outcome got = consolidate(devices);
    EXPECT_EQ(got.status, status);
    EXPECT_EQ(got.text, text);
}

std::vector<std::string> propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) names.push_back(instance.getPropertyNameAt(i).str());
    return names;
}

} // namespace

TEST(ArraySystemConsolidation, HealthyOrUnreportedControllerStaysOk) {
    expectOutcome({}, 2, "Array is operating properly");
    expectOutcome({.operationalStatus = "4"}, 2, "Array is operating properly");
    expectOutcome({.logicals = {"2"}, .enclosures = {"2"}, .disks = {"1", "0x8005"}}, 2,
                  "Array is operating properly");
}

TEST(ArraySystemConsolidation, ControllerStatusAlone) {
    expectOutcome({.operationalStatus = "2"}, 3, "Controller Non-Failure Problem");
    expectOutcome({.operationalStatus = "3"}, 6, "Controller Failure");
    expectOutcome({.operationalStatus = "0"}, 6, "Controller Failure");
    expectOutcome({.extra = "    fail: [getControllerOperationalStatus]\n"}, 0, "Array status is Unknown");
}

TEST(ArraySystemConsolidation, FailureWinsAndTheLastFailureNamesIt) {
    expectOutcome({.operationalStatus = "3", .logicals = {"3"}}, 6, "Logical Drive Failure");
    expectOutcome({.operationalStatus = "3", .logicals = {"3"}, .enclosures = {"6"}}, 6, "Storage Enclosure Failure");
    // A problem found after a failure never lowers it.
    expectOutcome({.logicals = {"3", "0x8000"}, .enclosures = {"3"}, .disks = {"3"}}, 6, "Logical Drive Failure");
}

TEST(ArraySystemConsolidation, FirstProblemKeepsTheText) {
    expectOutcome({.operationalStatus = "2", .logicals = {"0x8000"}, .enclosures = {"3"}, .disks = {"2"}}, 3,
                  "Controller Non-Failure Problem");
    expectOutcome({.enclosures = {"3"}, .disks = {"2"}}, 3, "Storage Enclosure Non-Failure Problem");
    // Status 4 of a volume already counts as a problem, not a failure.
    expectOutcome({.logicals = {"4"}}, 3, "Logical Drive Non-Failure Problem");
}

TEST(ArraySystemConsolidation, UnknownIsWeakerThanAProblem) {
    // An unknown volume lowers only the clean status...
    expectOutcome({.logicals = {"0"}}, 0, "Array status is Unknown");
    expectOutcome({.logicals = {"0x8000", "0"}}, 3, "Logical Drive Non-Failure Problem");
    // ...and a later problem raises unknown to degraded.
    expectOutcome({.logicals = {"1"}, .disks = {"2"}}, 3, "Physical Drive Non-Failure Problem");
    expectOutcome({.disks = {"2"}, .extra = "    fail: [getControllerOperationalStatus]\n"}, 3,
                  "Physical Drive Non-Failure Problem");
    expectOutcome({.logicals = {"0"}, .enclosures = {"1"}}, 3, "Storage Enclosure Non-Failure Problem");
}

TEST(ArraySystemConsolidation, ADiskNeverFailsTheArray) {
    expectOutcome({.disks = {"3"}}, 3, "Physical Drive Non-Failure Problem");
    expectOutcome({.disks = {"4", "0x8007"}}, 3, "Physical Drive Non-Failure Problem");
}

TEST(ArraySystemConsolidation, TextChangesOnlyWithTheStatus) {
    ArrayTestRig rig(controllerYaml({.logicals = {"3"}}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    system.manageDynamic(true, CmpiCpp::CmpiContext());
    ASSERT_EQ(system.getStatusText(), "Logical Drive Failure");

    // The failure moves from the volume to an enclosure: still 6, old text.
    rig.rewrite(controllerYaml({.logicals = {"2"}, .enclosures = {"6"}}));
    system.manageDynamic(true, CmpiCpp::CmpiContext());
    EXPECT_EQ(system.getStatus(), 6);
    EXPECT_EQ(system.getStatusText(), "Logical Drive Failure");

    // Healthy again: the status and its own text come back together.
    rig.rewrite(controllerYaml({}));
    system.manageDynamic(false, CmpiCpp::CmpiContext());
    EXPECT_EQ(system.getStatus(), 2);
    EXPECT_EQ(system.getStatusText(), "Array is operating properly");
}

TEST(ArraySystemInstance, KeysAndPropertiesInOrder) {
    ArrayTestRig rig(controllerYaml({.enclosures = {"6"}}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());

    CmpiCpp::CmpiObjectPath path = system.getPath();
    EXPECT_EQ(path.getClassName().str(), "QLN_VDArraySystem");
    EXPECT_EQ(path.getNameSpace().str(), "root/mwq");
    EXPECT_EQ(path.getKey("CreationClassName").getString(), "QLN_VDArraySystem");
    EXPECT_EQ(path.getKey("Name").getString(), "PSYS0001");

    // Before any pass the array reads as fine.
    CmpiCpp::CmpiInstance before = system.getInstance();
    EXPECT_EQ(before.getProperty("HealthState").getUint16(), 5);

    system.manageDynamic(false, CmpiCpp::CmpiContext());
    CmpiCpp::CmpiInstance instance = system.getInstance();
    // The path's keys lead, as an object manager builds an instance from a path.
    EXPECT_EQ(propertyNames(instance),
              (std::vector<std::string>{"CreationClassName", "Name", "ElementName", "NameFormat",
                                        "OtherIdentifyingInfo", "IdentifyingDescriptions", "HealthState",
                                        "OperationalStatus", "StatusDescriptions", "EnabledDefault", "EnabledState",
                                        "RequestedState", "Dedicated"}));
    EXPECT_EQ(instance.getProperty("ElementName").getString(), "Veldra in PCI Slot 3");
    EXPECT_EQ(instance.getProperty("OtherIdentifyingInfo").getArray().getElementAt(0).getString(), "PSYS0001");
    EXPECT_EQ(instance.getProperty("HealthState").getUint16(), 20);
    EXPECT_EQ(instance.getProperty("OperationalStatus").getArray().getElementAt(0).getUint16(), 6);
    EXPECT_EQ(instance.getProperty("StatusDescriptions").getArray().getElementAt(0).getString(),
              "Storage Enclosure Failure");
    CmpiCpp::CmpiArray dedicated = instance.getProperty("Dedicated").getArray();
    ASSERT_EQ(dedicated.size(), 2u);
    EXPECT_EQ(dedicated.getElementAt(0).getUint16(), 3);
    EXPECT_EQ(dedicated.getElementAt(1).getUint16(), 15);
    EXPECT_EQ(instance.getProperty("RequestedState").getType(), CMPI_uint16);
}

TEST(ArraySystemInstance, ElementNameSaysExternalForANullLocationAndUnknownWhenUnread) {
    ArrayTestRig rig("  - {serialNumber: A}\n  - {serialNumber: B, fail: [getPhysloc]}\n"
                     "  - {physloc: [1, 2]}\n");
    auto elementName = [&](int number) {
        QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", number, rig.controller(number));
        return system.getInstance().getProperty("ElementName").getString();
    };
    EXPECT_EQ(elementName(1).rfind("Veldra External ", 0), 0u);
    EXPECT_EQ(elementName(2).rfind("Veldra Unknown ", 0), 0u);
    EXPECT_EQ(elementName(3), "Veldra System Board Device 2");
    QLN::QLN_VDArraySystem third(rig.logger, "root/mwq", 3, rig.controller(3));
    EXPECT_EQ(third.getPath().getKey("Name").getString(), "EMBEDDED-SB2");
}

TEST(ArraySystemIdentify, Uint32DurationReachesTheControllerTimesTen) {
    ArrayTestRig rig(controllerYaml({.disks = {"1", "1"}}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    CmpiCpp::CmpiArgs args;
    args.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(system.invokeMethod("Identify", args), 0u);
    auto lines = LocatorLog::read(rig.path);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("controller 1 all disks duration 50"), std::string::npos) << lines[0];
}

TEST(ArraySystemIdentify, OtherTypesMissingArgumentsAndOtherMethodsAre17AndLightNothing) {
    ArrayTestRig rig(controllerYaml({.disks = {"1"}}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    CmpiCpp::CmpiArgs uint16Duration;
    uint16Duration.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned short>(5)));
    EXPECT_EQ(system.invokeMethod("Identify", uint16Duration), 17u);
    CmpiCpp::CmpiArgs none;
    EXPECT_EQ(system.invokeMethod("Identify", none), 17u);
    CmpiCpp::CmpiArgs uint32Duration;
    uint32Duration.setArg("Duration", CmpiCpp::CmpiData(5u));
    EXPECT_EQ(system.invokeMethod("Locate", uint32Duration), 17u);
    EXPECT_TRUE(LocatorLog::read(rig.path).empty());
}

TEST(ArraySystemIdentify, AFailedLocateReturns2) {
    ArrayTestRig rig(controllerYaml({.extra = "    fail: [identifyAllPhysicalDisks]\n"}));
    QLN::QLN_VDArraySystem system(rig.logger, "root/mwq", 1, rig.controller());
    CmpiCpp::CmpiArgs args;
    args.setArg("Duration", CmpiCpp::CmpiData(1u));
    EXPECT_EQ(system.invokeMethod("Identify", args), 2u);
}
