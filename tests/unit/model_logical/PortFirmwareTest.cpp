// The controller's port, protocol and software classes on simulated
// controllers: property order and types, key fallbacks, the two ElementName
// families, and version parsing.
#include "ModelTestSupport.h"
#include "QLN_VDDAPort.h"
#include "QLN_VDFirmware.h"
#include "QLN_VDISASPort.h"
#include "QLN_VDISASSCSIProtocolEndpoint.h"
#include "QLN_VDPortController.h"
#include "QLN_VDSCSIProtocolController.h"
#include "QLN_VDSCSIProtocolEndpoint.h"
#include "QLN_VDSoftwareIdentityDriver.h"

#include <gtest/gtest.h>

#include <optional>

using namespace modeltest;

namespace {

std::string const ns = "root/mwq";

std::optional<unsigned short> optionalU16(CmpiCpp::CmpiInstance const& instance, char const* name) {
    if (!instance.hasProperty(name))
        return std::nullopt;
    return uint16Of(instance, name);
}

} // namespace

// Catches a property dropped, renamed, moved or given another CIM type; a
// client's query and the MOF both depend on them.
TEST(PortController, PropertyOrderAndTypes) {
    ScenarioRig rig(
        "controllers:\n  - {serialNumber: PORD01, physloc: [5, 2], controllerType: 2}\n");
    QLN::QLN_VDPortController portController(rig.logger, ns, 1, rig.controllers.at(0));
    CmpiCpp::CmpiInstance const instance = portController.getInstance();

    struct Expected {
        char const* name;
        CMPIType type;
    };
    std::vector<Expected> const expected = {
        {"CreationClassName", CMPI_string},  {"SystemCreationClassName", CMPI_string},
        {"SystemName", CMPI_string},         {"DeviceID", CMPI_string},
        {"ElementName", CMPI_string},        {"HealthState", CMPI_uint16},
        {"OperationalStatus", CMPI_uint16A}, {"StatusDescriptions", CMPI_stringA},
        {"EnabledDefault", CMPI_uint16},     {"EnabledState", CMPI_uint16},
        {"RequestedState", CMPI_uint16},     {"ControllerType", CMPI_uint16},
        {"OtherControllerType", CMPI_string}};
    ASSERT_EQ(instance.getPropertyCount(), expected.size());
    for (unsigned int i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(instance.getPropertyNameAt(i).str(), expected[i].name);
        EXPECT_EQ(instance.getPropertyAt(i).getType(), expected[i].type) << expected[i].name;
    }
    EXPECT_EQ(text(instance, "SystemName"), "PORD01");
    EXPECT_EQ(text(instance, "DeviceID"), "PORD01");
    EXPECT_EQ(text(instance, "ElementName"), "Veldra in PCI Slot 2");
    EXPECT_EQ(text(instance, "OtherControllerType"), "SAS/SATA");
    EXPECT_EQ(firstText(instance, "StatusDescriptions"), "Port controller is operating properly");
    EXPECT_EQ(portController.getPath(), instance.getPath());
}

// Catches operational status 4 read as OK here (it is unknown for this class)
// and OtherControllerType invented when the type cannot be read.
TEST(PortController, StatusMapAndUnreadType) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: A, operationalStatus: 2, controllerType: 1}
  - {serialNumber: B, operationalStatus: 4, fail: [getControllerType]}
  - {serialNumber: C, fail: [getControllerOperationalStatus]}
)");
    CmpiCpp::CmpiInstance const degraded =
        QLN::QLN_VDPortController(rig.logger, ns, 1, rig.controllers[0]).getInstance();
    EXPECT_EQ(uint16Of(degraded, "HealthState"), 10);
    EXPECT_EQ(firstU16(degraded, "OperationalStatus"), 3);
    EXPECT_EQ(firstText(degraded, "StatusDescriptions"), "Port controller Degraded");
    EXPECT_EQ(text(degraded, "OtherControllerType"), "SCSI");

    for (unsigned int index : {2u, 3u}) {
        CmpiCpp::CmpiInstance const unknown =
            QLN::QLN_VDPortController(rig.logger, ns, index, rig.controllers[index - 1])
                .getInstance();
        EXPECT_EQ(uint16Of(unknown, "HealthState"), 0);
        EXPECT_EQ(firstU16(unknown, "OperationalStatus"), 0);
        EXPECT_EQ(firstText(unknown, "StatusDescriptions"), "Port controller Unknown");
    }
    CmpiCpp::CmpiInstance const untyped =
        QLN::QLN_VDPortController(rig.logger, ns, 2, rig.controllers[1]).getInstance();
    EXPECT_FALSE(untyped.hasProperty("OtherControllerType"));
    EXPECT_EQ(uint16Of(untyped, "ControllerType"), 1);
}

// Catches a fallback key used for an empty serial number that was read, the
// wrong separator in the fallbacks, and the per-port tail missing.
TEST(ControllerKeys, SerialOrFallbackPerClass) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: "", physloc: [5, 4]}
  - {serialNumber: PIGNORED, physloc: [5, 5], fail: [getControllerSerialNumber]}
)");
    VeldraController* blank = rig.controllers[0];
    VeldraController* unread = rig.controllers[1];

    EXPECT_EQ(QLN::QLN_VDDAPort(rig.logger, ns, 1, blank).getPath().getKey("DeviceID").getString(),
              "");
    EXPECT_EQ(QLN::QLN_VDISASPort(rig.logger, ns, 1, blank, "1I")
                  .getPath()
                  .getKey("DeviceID")
                  .getString(),
              ":1I");

    CmpiCpp::CmpiObjectPath const port = QLN::QLN_VDDAPort(rig.logger, ns, 2, unread).getPath();
    EXPECT_EQ(port.getKey("DeviceID").getString(), "QLN_VDDAPort-2");
    EXPECT_EQ(port.getKey("SystemCreationClassName").getString(), "QLN_VDArraySystem");
    EXPECT_EQ(port.getKey("SystemName").getString(), "PCISLOT-5");
    EXPECT_EQ(QLN::QLN_VDPortController(rig.logger, ns, 2, unread)
                  .getPath()
                  .getKey("DeviceID")
                  .getString(),
              "QLN_VDPortController-2");
    EXPECT_EQ(QLN::QLN_VDSCSIProtocolController(rig.logger, ns, 2, unread)
                  .getPath()
                  .getKey("DeviceID")
                  .getString(),
              "QLN_VDSCSIProtocolController-2");
    CmpiCpp::CmpiObjectPath const endpoint =
        QLN::QLN_VDSCSIProtocolEndpoint(rig.logger, ns, 2, unread).getPath();
    EXPECT_FALSE(endpoint.hasKey("DeviceID"));
    EXPECT_EQ(endpoint.getKey("Name").getString(), "QLN_VDSCSIProtocolEndpoint-2");

    QLN::QLN_VDISASPort sasPort(rig.logger, ns, 2, unread, "2E");
    QLN::QLN_VDISASSCSIProtocolEndpoint initiator(rig.logger, ns, 2, unread, "2E");
    EXPECT_EQ(sasPort.getPath().getKey("DeviceID").getString(), "QLN_VDISASPort:2:2E");
    EXPECT_EQ(initiator.getPath().getKey("Name").getString(),
              "QLN_VDISASSCSIProtocolEndpoint:2:2E");
    CmpiCpp::CmpiInstance const initiatorInstance = initiator.getInstance();
    EXPECT_EQ(text(initiatorInstance, "ElementName"), "Protocol Endpoint for Port:2E");
    EXPECT_EQ(uint16Of(initiatorInstance, "Role"), 2);
    EXPECT_EQ(text(sasPort.getInstance(), "Caption"), "Port:2E");
    EXPECT_EQ(uint16Of(sasPort.getInstance(), "UsageRestriction"), 4);
}

// Catches the two ElementName families mixed up: only the DA port and the
// protocol controller call a controller without a location "External".
TEST(ControllerKeys, ElementNameFamilies) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: EXT, physloc: [0]}
  - {serialNumber: BOARD, physloc: [1]}
  - {serialNumber: LOST, fail: [getPhysloc]}
)");
    auto starts = [](std::string const& text, std::string const& prefix) {
        return text.rfind(prefix, 0) == 0;
    };
    VeldraController* external = rig.controllers[0];
    EXPECT_TRUE(
        starts(text(QLN::QLN_VDDAPort(rig.logger, ns, 1, external).getInstance(), "ElementName"),
               "Veldra External "));
    EXPECT_TRUE(
        starts(text(QLN::QLN_VDSCSIProtocolController(rig.logger, ns, 1, external).getInstance(),
                    "ElementName"),
               "Veldra External "));
    std::string const plain =
        text(QLN::QLN_VDPortController(rig.logger, ns, 1, external).getInstance(), "ElementName");
    EXPECT_TRUE(starts(plain, "Veldra ") && !starts(plain, "Veldra External ")) << plain;
    std::string const endpoint = text(
        QLN::QLN_VDSCSIProtocolEndpoint(rig.logger, ns, 1, external).getInstance(), "ElementName");
    EXPECT_TRUE(starts(endpoint, "Veldra ") && !starts(endpoint, "Veldra External ")) << endpoint;

    EXPECT_EQ(
        text(QLN::QLN_VDDAPort(rig.logger, ns, 2, rig.controllers[1]).getInstance(), "ElementName"),
        "Veldra System Board");
    EXPECT_TRUE(starts(
        text(QLN::QLN_VDSCSIProtocolEndpoint(rig.logger, ns, 3, rig.controllers[2]).getInstance(),
             "ElementName"),
        "Veldra Unknown "));
}

// Catches the slot cases of PortType swapped and the port's status taken from
// the operational status instead of the controller status.
TEST(DAPort, PortTypeBySlotAndStatusByControllerStatus) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: S1, pciSlotNumber: 3, controllerStatus: 3, operationalStatus: 1}
  - {serialNumber: S2, pciSlotNumber: 0, controllerStatus: 1}
  - {serialNumber: S3, pciSlotNumber: -2}
  - {serialNumber: S4, fail: [getPCISlotNumber, getControllerStatus]}
)");
    std::vector<CmpiCpp::CmpiInstance> ports;
    for (unsigned int i = 0; i < 4; ++i)
        ports.push_back(QLN::QLN_VDDAPort(rig.logger, ns, i + 1, rig.controllers[i]).getInstance());
    EXPECT_EQ(uint16Of(ports[0], "PortType"), 82);
    EXPECT_EQ(uint16Of(ports[1], "PortType"), 81);
    EXPECT_EQ(uint16Of(ports[2], "PortType"), 1);
    EXPECT_EQ(uint16Of(ports[3], "PortType"), 1);

    EXPECT_EQ(firstU16(ports[0], "OperationalStatus"), 6);
    EXPECT_EQ(uint16Of(ports[0], "HealthState"), 20);
    EXPECT_EQ(firstText(ports[0], "StatusDescriptions"), "Array port Failed");
    EXPECT_EQ(firstText(ports[1], "StatusDescriptions"), "Array port Unknown");
    EXPECT_EQ(firstText(ports[2], "StatusDescriptions"), "Array port is operating properly");
    EXPECT_EQ(uint16Of(ports[3], "HealthState"), 0);
}

// Catches version numbers published for a version the parser refuses, and the
// properties of a failed getter left in.
TEST(Firmware, VersionPartsAndFailedReads) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: F1, fwVersion: "5.2.0-1234", model: Veldra 16e, manufacturer: QLN}
  - {serialNumber: F2, fwVersion: "build 7", model: Veldra 8i}
  - {serialNumber: F3, fail: [getFWVersion, getModel, getManufacturer]}
)");
    CmpiCpp::CmpiInstance const good =
        QLN::QLN_VDFirmware(rig.logger, ns, 1, rig.controllers[0]).getInstance();
    EXPECT_EQ(text(good, "InstanceID"), "MWQ:QLN_VDFirmware-1");
    EXPECT_EQ(text(good, "VersionString"), "5.2.0-1234");
    EXPECT_EQ(optionalU16(good, "MajorVersion"), 5);
    EXPECT_EQ(optionalU16(good, "MinorVersion"), 2);
    EXPECT_EQ(text(good, "Manufacturer"), "QLN");
    EXPECT_EQ(text(good, "ElementName"), "Veldra 16e");
    CmpiCpp::CmpiArray const values = good.getProperty("IdentityInfoValue").getArray();
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values.getElementAt(0).getString(), "MWQ:Veldra 16e");
    EXPECT_EQ(values.getElementAt(1).getString(), "Storage Controller");
    EXPECT_EQ(firstU16(good, "Classifications"), 10);

    CmpiCpp::CmpiInstance const odd =
        QLN::QLN_VDFirmware(rig.logger, ns, 2, rig.controllers[1]).getInstance();
    EXPECT_EQ(text(odd, "VersionString"), "build 7");
    EXPECT_FALSE(odd.hasProperty("MajorVersion"));
    EXPECT_FALSE(odd.hasProperty("MinorVersion"));

    CmpiCpp::CmpiInstance const bare =
        QLN::QLN_VDFirmware(rig.logger, ns, 3, rig.controllers[2]).getInstance();
    for (char const* name : {"VersionString", "MajorVersion", "Manufacturer", "ElementName",
                             "TargetTypes", "IdentityInfoType", "IdentityInfoValue"})
        EXPECT_FALSE(bare.hasProperty(name)) << name;
    EXPECT_EQ(firstText(bare, "StatusDescriptions"), "Array Firmware Status: OK");
}

// Catches the revision left out of a three-part driver version, or made up
// for a two-part one, and the family text losing its parts.
TEST(Driver, VersionPartsAndFamily) {
    ScenarioRig rig(R"(
controllers:
  - {serialNumber: D1, driverName: vldr, driverVersion: "3.4.7", model: Veldra 8i, manufacturer: QLN}
  - {serialNumber: D2, driverName: vldr, driverVersion: "2.10"}
  - {serialNumber: D3, driverVersion: "n/a", fail: [getDriverName]}
)");
    auto instanceOf = [&](unsigned int index) {
        VeldraControllerData data;
        rig.controllers[index - 1]->getLastVDData(data);
        return QLN::QLN_VDSoftwareIdentityDriver(rig.logger, ns, index, data).getInstance();
    };
    CmpiCpp::CmpiInstance const full = instanceOf(1);
    EXPECT_EQ(text(full, "InstanceID"), "MWQ:QLN_VDSoftwareIdentityDriver:1");
    EXPECT_EQ(text(full, "Caption"), "Veldra Controller Driver vldr");
    EXPECT_EQ(text(full, "Manufacturer"), "Morvane Systems Company");
    EXPECT_EQ(optionalU16(full, "MajorVersion"), 3);
    EXPECT_EQ(optionalU16(full, "MinorVersion"), 4);
    EXPECT_EQ(optionalU16(full, "RevisionNumber"), 7);
    EXPECT_EQ(firstText(full, "IdentityInfoValue"),
              "MWQ:Veldra Controller Driver.vldr-Veldra 8i-QLN");

    CmpiCpp::CmpiInstance const twoParts = instanceOf(2);
    EXPECT_EQ(optionalU16(twoParts, "MajorVersion"), 2);
    EXPECT_EQ(optionalU16(twoParts, "MinorVersion"), 10);
    EXPECT_FALSE(twoParts.hasProperty("RevisionNumber"));
    EXPECT_EQ(firstText(twoParts, "IdentityInfoValue"), "MWQ:Veldra Controller Driver.vldr");

    CmpiCpp::CmpiInstance const unnamed = instanceOf(3);
    EXPECT_EQ(text(unnamed, "ElementName"), "Veldra Controller Driver ");
    EXPECT_EQ(text(unnamed, "VersionString"), "n/a");
    EXPECT_FALSE(unnamed.hasProperty("MajorVersion"));
}
