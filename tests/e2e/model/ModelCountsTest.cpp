#include "ModelServer.h"

#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <set>

// The whole instance graph of the demo scenario as wbemcli sees it: how many
// instances each class has and the identities of the top-level objects.
namespace {

std::string const demo = VELDRA_DATA_DIR "/scenarios/demo.yaml";
using Expect = ScenarioExpectation;

class ModelCounts : public ::testing::Test {
protected:
    static void SetUpTestSuite() { server = std::make_unique<ModelServer>(demo); }
    static void TearDownTestSuite() { server.reset(); }
    static inline std::unique_ptr<ModelServer> server;
};

std::set<std::string> paths(std::vector<std::string> const& lines) {
    std::set<std::string> out;
    for (auto const& line : lines)
        out.insert(WbemcliClient::localPath(line));
    return out;
}

std::string systemKeys(std::string const& className, std::string const& systemName) {
    return className + ".CreationClassName=\"" + className + "\",Name=\"" + systemName + "\"";
}

} // namespace

// Catches a graph step that is skipped, doubled or not registered: every
// class, association or not, against what the scenario implies; and a class
// served without an expectation, so that a new class cannot be forgotten.
TEST_F(ModelCounts, EveryClassHasWhatTheScenarioImplies) {
    WbemcliClient const view(server->port(), "root/cimv2");
    auto const& model = server->client();
    std::set<std::string> served;
    for (WbemcliClient const* c : {&model, &view})
        for (auto const& line : c->run("ecn", ""))
            served.insert(WbemcliClient::className(line));
    for (std::string const& className : ModelServer::servedClasses())
        EXPECT_TRUE(server->expected().counts().count(className))
            << className << " is served but has no expected count";
    for (auto const& [className, count] : server->expected().counts()) {
        SCOPED_TRACE(className);
        WbemcliClient const& c = className.rfind("DRSV_", 0) == 0 ? view : model;
        EXPECT_TRUE(served.count(className)) << "class not served";
        EXPECT_EQ(static_cast<int>(c.run("ein", className).size()), count);
    }
    // The demo is meant to exercise the carried-over lists; guard that intent
    // against a scenario edit that would make the checks above trivial.
    EXPECT_GE(server->expected().controllers().size(), 2u);
    EXPECT_GT(server->expected().counts().at("QLN_VDSpareExtentStorageExtent"), 0);
    EXPECT_GT(server->expected().counts().at("QLN_VDCacheVolumeStorageVolume"), 0);
}

// Catches identity drift: systems, controllers, disks and enclosures keyed
// exactly as the identity rules give them for the scenario's hardware.
TEST_F(ModelCounts, KeysFollowTheIdentityRules) {
    auto const& c = server->client();
    std::set<std::string> systems, controllers, disks, enclosures, processors;
    for (auto const& ctl : server->expected().controllers()) {
        ASSERT_FALSE(ctl.serial.empty()) << "the demo's controllers have serial numbers";
        systems.insert(systemKeys("QLN_VDArraySystem", Expect::systemName(ctl)));
        controllers.insert(systemKeys("QLN_VDArrayController", Expect::systemName(ctl)));
        for (auto const& d : ctl.disks)
            disks.insert(
                "QLN_VDDiskDrive.SystemCreationClassName=\"QLN_VDArraySystem\",CreationClassName="
                "\"QLN_VDDiskDrive\",SystemName=\"" +
                Expect::systemName(ctl) + "\",DeviceID=\"" + Expect::diskDeviceId(ctl, d) + "\"");
        for (auto const& e : ctl.enclosures) {
            enclosures.insert(
                "QLN_VDStorageEnclosure.CreationClassName=\"QLN_VDStorageEnclosure\",Tag=\"" +
                Expect::enclosureTag(ctl, e) + "\"");
            processors.insert("QLN_VDStorageEnclosureProcessor.CreationClassName=\"QLN_"
                              "VDStorageEnclosureProcessor\",Name=\"" +
                              Expect::enclosureTag(ctl, e) + "\"");
        }
    }
    EXPECT_EQ(paths(c.run("ein", "QLN_VDArraySystem")), systems);
    EXPECT_EQ(paths(c.run("ein", "QLN_VDArrayController")), controllers);
    EXPECT_EQ(paths(c.run("ein", "QLN_VDDiskDrive")), disks);
    EXPECT_EQ(paths(c.run("ein", "QLN_VDStorageEnclosure")), enclosures);
    EXPECT_EQ(paths(c.run("ein", "QLN_VDStorageEnclosureProcessor")), processors);
    // A serial-less disk must be among them, or the location-based rule went untested.
    bool locationKeyed = false;
    for (auto const& ctl : server->expected().controllers())
        for (auto const& d : ctl.disks)
            locationKeyed |= d.serial.empty();
    EXPECT_TRUE(locationKeyed);
}

// Catches the fallback name not being used, or used in one class and not in
// another: without serial numbers, a controller is named by its location
// (PCI slot for the first, system board for the second), and the array
// system, the controller and every disk agree on that name.
TEST(ModelKeysWithoutSerial, ControllersAreNamedByLocation) {
    YAML::Node scenario = YAML::LoadFile(demo);
    for (auto c : scenario["controllers"])
        c.remove("serialNumber");
    YAML::Emitter out;
    out << scenario;
    ModelServer server(demo, out.c_str());
    auto const& c = server.client();

    auto keyValue = [](std::string const& line, std::string const& key) {
        std::string path = WbemcliClient::localPath(line);
        size_t at = path.find("," + key + "=\"");
        if (at == std::string::npos)
            at = path.find("." + key + "=\"");
        if (at == std::string::npos)
            return std::string();
        at += key.size() + 3;
        return path.substr(at, path.find('"', at) - at);
    };
    std::set<std::string> names;
    for (auto const& line : c.run("ein", "QLN_VDArraySystem"))
        names.insert(keyValue(line, "Name"));
    ASSERT_EQ(names.size(), 2u);
    for (char const* prefix : {"PCISLOT-", "EMBEDDED-"}) {
        auto found = std::find_if(names.begin(), names.end(), [&](std::string const& n) {
            return n.rfind(prefix, 0) == 0 && n.size() > std::string(prefix).size();
        });
        EXPECT_NE(found, names.end()) << prefix << " missing";
    }
    std::set<std::string> controllerNames, diskSystems;
    for (auto const& line : c.run("ein", "QLN_VDArrayController"))
        controllerNames.insert(keyValue(line, "Name"));
    for (auto const& line : c.run("ein", "QLN_VDDiskDrive"))
        diskSystems.insert(keyValue(line, "SystemName"));
    EXPECT_EQ(controllerNames, names);
    EXPECT_EQ(diskSystems, names);
}

// A base class of the schema names every instance of its subclasses, as in an
// object manager that holds the whole schema: wbemcli asks for
// CIM_LogicalDevice or filters associations by CIM_Component and gets what
// the concrete classes give together.
TEST_F(ModelCounts, SchemaBaseClassesFindTheirSubclassesInstances) {
    auto const& c = server->client();
    std::set<std::string> devices;
    for (auto const& line : c.run("ecn", "CIM_LogicalDevice"))
        devices.insert(WbemcliClient::className(line));
    ASSERT_TRUE(devices.count("QLN_VDDiskDrive"));
    ASSERT_TRUE(devices.count("QLN_VDStorageVolume"));
    ASSERT_FALSE(devices.count("QLN_VDArraySystem"));
    int expected = 0;
    for (auto const& [className, count] : server->expected().counts())
        if (devices.count(className))
            expected += count;
    auto const found = c.run("ein", "CIM_LogicalDevice");
    EXPECT_EQ(static_cast<int>(found.size()), expected);
    for (auto const& line : found)
        EXPECT_TRUE(devices.count(WbemcliClient::className(line))) << line;

    std::string const system = systemKeys(
        "QLN_VDArraySystem", Expect::systemName(server->expected().controllers().front()));
    std::set<std::string> byEach;
    for (auto const& line : c.run("ecn", "CIM_Component"))
        for (auto const& end : c.run("ain", system, "-ac " + WbemcliClient::className(line)))
            byEach.insert(end);
    auto const byBase = c.run("ain", system, "-ac CIM_Component");
    EXPECT_EQ(std::set<std::string>(byBase.begin(), byBase.end()), byEach);
    EXPECT_EQ(byBase.size(), 72u) << "the figure SFCB with the DMTF schema gives for this system";
}
