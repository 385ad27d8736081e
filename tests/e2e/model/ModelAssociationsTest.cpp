#include "ModelServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

// Walks of the demo graph with wbemcli's association operations, from an
// array system, a disk, a volume and an enclosure.
namespace {

using Expect = ScenarioExpectation;
using Histogram = std::map<std::string, int>;

class ModelAssociations : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        server = std::make_unique<ModelServer>(VELDRA_DATA_DIR "/scenarios/demo.yaml");
    }
    static void TearDownTestSuite() { server.reset(); }
    static inline std::unique_ptr<ModelServer> server;

    static WbemcliClient const& wbem() { return server->client(); }
    static std::string systemPath(Expect::Controller const& c) {
        return "QLN_VDArraySystem.CreationClassName=\"QLN_VDArraySystem\",Name=\"" +
               Expect::systemName(c) + "\"";
    }
    static std::string devicePath(std::string const& className, Expect::Controller const& c,
                                  std::string const& id) {
        return className + ".SystemCreationClassName=\"QLN_VDArraySystem\",CreationClassName=\"" +
               className + "\",SystemName=\"" + Expect::systemName(c) + "\",DeviceID=\"" + id +
               "\"";
    }
    static std::vector<std::string> ain(std::string const& path, std::string const& options = "") {
        std::vector<std::string> out;
        for (auto const& line : wbem().run("ain", path, options))
            out.push_back(WbemcliClient::localPath(line));
        return out;
    }
    // The one associator through `assoc`; fails the test unless there is exactly one.
    static std::string only(std::string const& path, std::string const& assoc) {
        auto found = ain(path, "-ac " + assoc);
        EXPECT_EQ(found.size(), 1u) << path << " via " << assoc;
        return found.empty() ? std::string() : found.front();
    }
};

std::string classOf(std::string const& localPath) {
    return localPath.substr(0, localPath.find('.'));
}

struct RoleRow {
    char const* assoc;
    char const* role;       // the array system's end
    char const* resultRole; // the far end
    char const* resultClass;
};

} // namespace

// Catches a missing or extra link around the array system, counted per
// class of neighbour from the scenario's controller.
TEST_F(ModelAssociations, ArraySystemReachesItsNeighbours) {
    for (auto const& c : server->expected().controllers()) {
        SCOPED_TRACE(Expect::systemName(c));
        int paths = 0;
        for (auto const& d : c.disks)
            paths += static_cast<int>(d.paths.size());
        int ports = static_cast<int>(c.ports.size()), disks = static_cast<int>(c.disks.size());
        Histogram expected = {
            {"QLN_ComputerSystem", 1},
            {"QLN_VDArrayController", 1},
            {"QLN_VDDAPort", 1},
            {"QLN_VDDiskDrive", disks},
            {"QLN_VDFirmware", 1},
            {"QLN_VDISASPort", ports},
            {"QLN_VDISASSCSIProtocolEndpoint", ports},
            {"QLN_VDPhysicalPackage", 1},
            {"QLN_VDPortController", 1},
            {"QLN_VDPrimordialPool", 1},
            {"QLN_VDSCSIProtocolController", 1},
            {"QLN_VDSCSIProtocolEndpoint", 1},
            {"QLN_VDSoftwareIdentityDriver", 1},
            {"QLN_VDStorageEnclosureProcessor", static_cast<int>(c.enclosures.size())},
            {"QLN_VDStorageExtent", disks},
            {"QLN_VDStoragePool", 1},
            {"QLN_VDStorageSpecificCollection", 1},
            {"QLN_VDStorageVolume", static_cast<int>(c.volumes.size())},
            {"QLN_VDTSASPort", paths},
            {"QLN_VDTSASSCSIProtocolEndpoint", paths}};
        // Names and instances agree, the host provider's computer system included.
        EXPECT_EQ(WbemcliClient::histogram(wbem().run("ain", systemPath(c))), expected);
        EXPECT_EQ(WbemcliClient::histogram(wbem().run("ai", systemPath(c))), expected);
    }
}

// Catches an association end served by the host provider being dropped from
// Associators: its name is listed and GetInstance finds it, so the instance
// must come back too: the port controller's PCI function and computer system.
TEST_F(ModelAssociations, AssociatorsIncludeTheHostProvidersEnds) {
    auto const& c = server->expected().controllers().front();
    std::string const portController =
        "QLN_VDPortController.CreationClassName=\"QLN_VDPortController\","
        "SystemCreationClassName=\"QLN_VDArraySystem\",SystemName=\"" +
        Expect::systemName(c) + "\",DeviceID=\"" + Expect::systemName(c) + "\"";
    auto instances = WbemcliClient::histogram(wbem().run("ai", portController));
    EXPECT_EQ(instances["QLN_PCIDevice"], 1);
    EXPECT_EQ(instances["QLN_ComputerSystem"], 1);
    EXPECT_EQ(instances, WbemcliClient::histogram(wbem().run("ain", portController)));
}

// Catches swapped or misspelt roles: each filter (-ac, -ar, -arr, -arc)
// finds the neighbour with the right roles and nothing with the wrong ones,
// in all four operations.
TEST_F(ModelAssociations, ArraySystemRolesFilterBothWays) {
    auto const& c = server->expected().controllers().front();
    RoleRow const rows[] = {
        {"QLN_VDArraySystemArrayController", "GroupComponent", "PartComponent",
         "QLN_VDArrayController"},
        {"QLN_VDArraySystemPortController", "SameElement", "SystemElement", "QLN_VDPortController"},
        {"QLN_VDArraySystemISASPort", "GroupComponent", "PartComponent", "QLN_VDISASPort"},
        {"QLN_VDArraySystemDAPort", "GroupComponent", "PartComponent", "QLN_VDDAPort"},
        {"QLN_VDArraySystemFirmware", "System", "InstalledSoftware", "QLN_VDFirmware"},
        {"QLN_VDFirmwareArraySystem", "Dependent", "Antecedent", "QLN_VDFirmware"},
        {"QLN_VDArraySystemStoragePool", "GroupComponent", "PartComponent", "QLN_VDStoragePool"},
        {"QLN_VDArraySystemPrimordialPool", "GroupComponent", "PartComponent",
         "QLN_VDPrimordialPool"},
        {"QLN_VDStorageSpecificCollectionArraySystem", "Member", "Collection",
         "QLN_VDStorageSpecificCollection"},
    };
    std::string const system = systemPath(c);
    for (RoleRow const& row : rows) {
        SCOPED_TRACE(row.assoc);
        size_t n = std::string(row.assoc) == "QLN_VDArraySystemISASPort" ? c.ports.size() : 1;
        std::string right = std::string("-ac ") + row.assoc + " -ar " + row.role + " -arr " +
                            row.resultRole + " -arc " + row.resultClass;
        auto names = wbem().run("ain", system, right);
        EXPECT_EQ(names.size(), n);
        for (auto const& line : names)
            EXPECT_EQ(WbemcliClient::className(line), row.resultClass);
        EXPECT_EQ(wbem().run("ai", system, right).size(), n);
        EXPECT_TRUE(
            wbem()
                .run("ain", system, std::string("-ac ") + row.assoc + " -ar " + row.resultRole)
                .empty());
        EXPECT_TRUE(wbem()
                        .run("ai", system, std::string("-ac ") + row.assoc + " -arr " + row.role)
                        .empty());

        auto refs =
            wbem().run("rin", system, std::string("-arc ") + row.assoc + " -ar " + row.role);
        EXPECT_EQ(refs.size(), n);
        for (auto const& line : refs) {
            EXPECT_EQ(WbemcliClient::className(line), row.assoc);
            // Both ends are named by their roles, the system by its own.
            EXPECT_NE(line.find(std::string(row.role) + "="), std::string::npos) << line;
            EXPECT_NE(line.find(std::string(row.resultRole) + "="), std::string::npos) << line;
            EXPECT_NE(line.find(std::string(row.role) + "=root/mwq:" + system), std::string::npos)
                << line;
        }
        EXPECT_EQ(
            wbem().run("ri", system, std::string("-arc ") + row.assoc + " -ar " + row.role).size(),
            n);
        EXPECT_TRUE(
            wbem()
                .run("rin", system, std::string("-arc ") + row.assoc + " -ar " + row.resultRole)
                .empty());
    }
}

// Catches a disk cut off from its companions: extent, package and through it
// the location, firmware, statistics, one target endpoint per path and the
// array system, with the keys the disk's identity gives.
TEST_F(ModelAssociations, DiskReachesItsCompanions) {
    Expect::Controller const* ctl = nullptr;
    Expect::Disk const* disk = nullptr;
    for (auto const& c : server->expected().controllers())
        for (auto const& d : c.disks)
            if (!disk && !d.serial.empty() && d.mnpData && d.paths.size() > 1)
                ctl = &c, disk = &d;
    ASSERT_NE(disk, nullptr)
        << "the scenario needs a disk with serial number, statistics and two paths";
    std::string const id = Expect::diskDeviceId(*ctl, *disk);
    std::string const drive = devicePath("QLN_VDDiskDrive", *ctl, id);

    Histogram expected = {{"QLN_VDArraySystem", 1},
                          {"QLN_VDStorageExtent", 1},
                          {"QLN_VDDiskPhysicalPackage", 1},
                          {"QLN_VDDiskDriveFirmware", 1},
                          {"QLN_VDMediaAccessStatData", 1},
                          {"QLN_VDTSASSCSIProtocolEndpoint", static_cast<int>(disk->paths.size())}};
    EXPECT_EQ(WbemcliClient::histogram(wbem().run("ain", drive)), expected);

    EXPECT_EQ(only(drive, "QLN_VDDiskDriveStorageExtent"),
              devicePath("QLN_VDStorageExtent", *ctl, id));
    EXPECT_EQ(ain(drive, "-ac QLN_VDDiskDriveStorageExtent -ar Antecedent -arr Dependent").size(),
              1u);
    EXPECT_EQ(only(drive, "QLN_VDArraySystemDiskDrive"), systemPath(*ctl));
    std::string package = only(drive, "QLN_VDDiskPhysicalPackageDiskDrive");
    EXPECT_NE(package.find(id), std::string::npos) << package;
    std::string location = only(package, "QLN_VDDiskPhysicalPackageDiskDriveLocation");
    EXPECT_EQ(classOf(location), "QLN_VDDiskDriveLocation");
    EXPECT_EQ(classOf(only(drive, "QLN_VDDiskDriveDiskDriveFirmware")), "QLN_VDDiskDriveFirmware");
    EXPECT_EQ(classOf(only(drive, "QLN_VDDiskDriveMediaAccessStatData")),
              "QLN_VDMediaAccessStatData");

    // Each target endpoint is the disk's, numbered by path, and leads back
    // to the disk's extent through the initiator-target path.
    std::set<std::string> endpoints;
    for (auto const& e :
         ain(drive,
             "-ac QLN_VDDiskDriveTSASSCSIProtocolEndpoint -ar ManagedElement -arr AvailableSAP"))
        endpoints.insert(e);
    std::set<std::string> expectedEndpoints;
    for (size_t k = 0; k < disk->paths.size(); ++k)
        expectedEndpoints.insert(
            "QLN_VDTSASSCSIProtocolEndpoint.CreationClassName=\"QLN_VDTSASSCSIProtocolEndpoint\","
            "SystemCreationClassName=\"QLN_VDArraySystem\",SystemName=\"" +
            Expect::systemName(*ctl) + "\",Name=\"" + id + ":" + std::to_string(k) + "\"");
    EXPECT_EQ(endpoints, expectedEndpoints);
    for (auto const& endpoint : endpoints) {
        auto far = WbemcliClient::histogram(
            wbem().run("ain", endpoint, "-ac QLN_VDSCSIInitiatorTargetLogicalUnitPath -ar Target"));
        EXPECT_EQ(far,
                  (Histogram{{"QLN_VDISASSCSIProtocolEndpoint", 1}, {"QLN_VDStorageExtent", 1}}))
            << endpoint;
    }
}

// Catches class filters that take only the very class named: a client asks
// for the CIM class and must get our subclass's instances.
TEST_F(ModelAssociations, ClassFiltersTakeSubclasses) {
    auto const& ctl = server->expected().controllers().front();
    ASSERT_FALSE(ctl.disks.empty());
    std::string const id = Expect::diskDeviceId(ctl, ctl.disks.front());
    std::string const drive = devicePath("QLN_VDDiskDrive", ctl, id);
    std::vector<std::string> const extent = {devicePath("QLN_VDStorageExtent", ctl, id)};
    EXPECT_EQ(ain(drive, "-arc CIM_StorageExtent"), extent);
    EXPECT_EQ(ain(drive, "-ac CIM_MediaPresent -arc CIM_StorageExtent"), extent);
    EXPECT_EQ(ain(drive, "-arc QLN_VDStorageExtent"), extent);
}

// Catches a volume tied to the wrong extents or missing its setting, pool
// or redundancy set: the members come from the scenario, the spare's extent
// joins the set and stands in for the replaced disk's extent.
TEST_F(ModelAssociations, VolumeReachesPoolExtentsSettingAndRedundancySet) {
    Expect::Controller const& ctl = server->expected().controllers().front();
    auto withSpare =
        std::find_if(ctl.volumes.begin(), ctl.volumes.end(), [](Expect::Volume const& v) {
            return !v.spareDisks.empty() && !v.replaced.empty();
        });
    ASSERT_NE(withSpare, ctl.volumes.end()) << "the scenario needs a volume whose spare stands in";
    Expect::Volume const& v = *withSpare;
    std::string const volume = devicePath("QLN_VDStorageVolume", ctl, v.serial);

    std::set<std::string> dataExtents;
    std::string spareExtent, replacedExtent;
    for (Expect::Disk const* d : Expect::members(ctl, v)) {
        std::string extent = devicePath("QLN_VDStorageExtent", ctl, Expect::diskDeviceId(ctl, *d));
        if (d->configuration == 2)
            dataExtents.insert(extent);
        if (d->configuration == 3 && v.replaced.count(d->id))
            spareExtent = extent;
        if (d->id == v.replaced.begin()->second)
            replacedExtent = extent;
    }
    ASSERT_FALSE(spareExtent.empty());

    Histogram expected = {{"QLN_VDArraySystem", 1},
                          {"QLN_VDSCSIProtocolController", 1},
                          {"QLN_VDStoragePool", 1},
                          {"QLN_VDStorageSetting", 1},
                          {"QLN_VDStorageExtent", static_cast<int>(dataExtents.size())}};
    EXPECT_EQ(WbemcliClient::histogram(wbem().run("ain", volume)), expected);
    auto extents =
        ain(volume, "-ac QLN_VDStorageExtentStorageVolume -ar Dependent -arr Antecedent");
    EXPECT_EQ(std::set<std::string>(extents.begin(), extents.end()), dataExtents);
    EXPECT_EQ(classOf(only(volume, "QLN_VDStoragePoolStorageVolume")), "QLN_VDStoragePool");
    EXPECT_EQ(
        ain(volume, "-ac QLN_VDStorageVolumeStorageSetting -ar ManagedElement -arr SettingData")
            .size(),
        1u);

    // One redundancy set, reached from every data extent and from the spare.
    std::string set = only(spareExtent, "QLN_VDSpareExtentStorageRedundancySet");
    EXPECT_EQ(classOf(set), "QLN_VDStorageRedundancySet");
    auto setMembers =
        ain(set, "-ac QLN_VDStorageRedundancySetStorageExtent -ar Collection -arr Member");
    EXPECT_EQ(std::set<std::string>(setMembers.begin(), setMembers.end()), dataExtents);
    EXPECT_EQ(only(spareExtent, "QLN_VDSpareExtentStorageExtent"), replacedExtent);
}

// Catches an enclosure missing its processor, cage or location, or a cage
// that holds the wrong disks: a cage lists the package of every disk in its
// box, and (the builder's lists carrying over) the box's disks of any later
// controller too.
TEST_F(ModelAssociations, EnclosureReachesProcessorCageAndDiskPackages) {
    auto const& all = server->expected().controllers();
    for (auto const& ctl : all)
        for (auto const& e : ctl.enclosures) {
            std::string const tag = Expect::enclosureTag(ctl, e);
            SCOPED_TRACE(tag);
            std::string const enclosure =
                "QLN_VDStorageEnclosure.CreationClassName=\"QLN_VDStorageEnclosure\",Tag=\"" + tag +
                "\"";
            EXPECT_EQ(WbemcliClient::histogram(wbem().run("ain", enclosure)),
                      (Histogram{{"QLN_VDDriveCage", 1},
                                 {"QLN_VDPhysicalPackage", 1},
                                 {"QLN_VDStorageEnclosureLocation", 1},
                                 {"QLN_VDStorageEnclosureProcessor", 1}}));
            std::string processor =
                only(enclosure, "QLN_VDStorageEnclosureStorageEnclosureProcessor");
            EXPECT_EQ(processor, "QLN_VDStorageEnclosureProcessor.CreationClassName=\"QLN_"
                                 "VDStorageEnclosureProcessor\","
                                 "Name=\"" +
                                     tag + "\"");
            EXPECT_EQ(ain(processor, "-ac QLN_VDStorageEnclosureProcessorEnclosureFirmware").size(),
                      e.fwVersion.empty() ? 0u : 1u);
            EXPECT_EQ(only(processor, "QLN_VDArraySystemStorageEnclosureProcessor"),
                      systemPath(ctl));
            std::string cage = only(enclosure, "QLN_VDStorageEnclosureDriveCage");
            EXPECT_EQ(ain(cage, "-ac QLN_VDDriveCageDriveCageLocation").size(), 1u);

            std::set<std::string> packages;
            for (auto const& later : all) {
                if (later.index < ctl.index)
                    continue;
                for (auto const& d : later.disks)
                    if (d.box == e.box)
                        packages.insert(only(
                            devicePath("QLN_VDDiskDrive", later, Expect::diskDeviceId(later, d)),
                            "QLN_VDDiskPhysicalPackageDiskDrive"));
            }
            auto found =
                ain(cage,
                    "-ac QLN_VDDriveCageDiskPhysicalPackage -ar GroupComponent -arr PartComponent");
            EXPECT_EQ(found.size(), packages.size());
            EXPECT_EQ(std::set<std::string>(found.begin(), found.end()), packages);
        }
}
