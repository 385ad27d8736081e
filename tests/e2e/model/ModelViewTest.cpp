#include "ModelServer.h"

#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <map>
#include <set>
#include <thread>

// The host view in root/cimv2 through wbemcli: the same provider as root/mwq,
// its counts from the scenario, and a worker pass that rebuilds only the
// controller whose disks changed.
namespace {

std::string const demo = VELDRA_DATA_DIR "/scenarios/demo.yaml";

// One extent per distinct model and serial: disks without a serial and of
// one model share a DeviceID, and one instance stands for them.
std::size_t extentsOf(YAML::Node const& controller) {
    std::set<std::string> ids;
    for (auto const& disk : controller["physicalDisks"]) {
        std::string id =
            disk["model"].as<std::string>("") + "-" + disk["serialNumber"].as<std::string>("");
        id.erase(std::remove(id.begin(), id.end(), ' '), id.end());
        ids.insert(id);
    }
    return ids.size();
}

class ModelView : public ::testing::Test {
protected:
    void SetUp() override {
        server = std::make_unique<ModelServer>(demo);
        view = std::make_unique<WbemcliClient>(server->port(), "root/cimv2");
    }

    void sim(std::string const& command) const {
        std::string const line = std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " +
                                 server->scenario() + " " + command + " > /dev/null";
        ASSERT_EQ(std::system(line.c_str()), 0) << line;
    }

    void pass() const {
        auto const out = server->client().run(
            "cm", "QLN_AutoStartVeldra.ProviderName=\"QLNVeldra\"", "", "PerformWork");
        ASSERT_EQ(out.size(), 1u);
        EXPECT_NE(out.front().find("PerformWork: 0"), std::string::npos) << out.front();
    }

    // Whole answer lines of the extents, by the controller named in them.
    std::map<int, std::set<std::string>> extentLines() const {
        std::map<int, std::set<std::string>> byController;
        for (auto const& line : view->run("ei", "DRSV_VDStorageExtent")) {
            for (int controller : {1, 2}) {
                if (line.find("Caption=\"Disk ") != std::string::npos &&
                    line.find(" on DRVD" + std::to_string(controller) + "\"") !=
                        std::string::npos) {
                    byController[controller].insert(line);
                }
            }
        }
        return byController;
    }

    std::unique_ptr<ModelServer> server;
    std::unique_ptr<WbemcliClient> view;
};

} // namespace

// Catches a class routed to the wrong namespace or not at all, and a view
// made for some controllers or disks only.
TEST_F(ModelView, CountsInRootCimv2FollowTheScenario) {
    YAML::Node const scenario = YAML::LoadFile(demo);
    std::size_t volumes = 0;
    std::size_t extents = 0;
    for (auto const& controller : scenario["controllers"]) {
        volumes += controller["logicalDisks"].size();
        extents += extentsOf(controller);
    }
    std::size_t const controllers = scenario["controllers"].size();
    std::map<std::string, std::size_t> const expected{{"DRSV_VDController", controllers},
                                                      {"DRSV_VDControllerFirmware", controllers},
                                                      {"DRSV_VDBattery", controllers},
                                                      {"DRSV_VDStorageVolume", volumes},
                                                      {"DRSV_VDStorageExtent", extents}};
    std::set<std::string> served;
    for (auto const& line : view->run("ecn", ""))
        served.insert(WbemcliClient::className(line));
    for (auto const& [className, count] : expected) {
        SCOPED_TRACE(className);
        EXPECT_TRUE(served.count(className));
        EXPECT_EQ(view->run("ein", className).size(), count);
    }
    // The two namespaces keep their classes apart.
    for (auto const& line : server->client().run("ecn", "")) {
        EXPECT_EQ(WbemcliClient::className(line).rfind("DRSV_", 0), std::string::npos) << line;
    }

    auto const one = view->run(
        "gi",
        "DRSV_VDController.CreationClassName=\"DRSV_VDController\",Name=\"vmwControllerDRVD2\"");
    ASSERT_EQ(one.size(), 1u);
    EXPECT_NE(one.front().find("ElementName=\"QLNVeldra 8i Controller : Embedded : DRVD2\""),
              std::string::npos)
        << one.front();
}

// Catches a rebuild that misses the changed controller or spills over to
// the other one: after a pulled disk and one pass, controller 1 shows its
// remaining disks and controller 2's answers are the same to the letter.
TEST_F(ModelView, PulledDiskRebuildsThatControllersExtentsOnly) {
    auto const before = extentLines();
    ASSERT_EQ(before.size(), 2u);
    pass();
    ASSERT_EQ(extentLines(), before) << "a quiet pass changes nothing";

    sim("pull-disk NR8K1007");
    pass();
    auto const after = extentLines();
    ASSERT_EQ(after.size(), 2u);
    EXPECT_EQ(after.at(2), before.at(2));
    EXPECT_EQ(after.at(1).size(), before.at(1).size() - 1);
    for (auto const& line : after.at(1)) {
        EXPECT_EQ(line.find("NR8K1007"), std::string::npos) << line;
    }
}

// Clients enumerating the view while passes rebuild it get whole answers
// and no errors. Bounded by the number of passes, not by time.
TEST_F(ModelView, EnumerationsBesidePassesAreWhole) {
    std::size_t const full = view->run("ein", "DRSV_VDStorageExtent").size();
    std::atomic<bool> done{false};
    std::atomic<int> answers{0};
    std::atomic<int> bad{0};
    auto client = [&] {
        while (!done.load()) {
            try {
                auto const names = view->run("ein", "DRSV_VDStorageExtent");
                std::set<std::string> const distinct(names.begin(), names.end());
                if (distinct.size() != names.size() ||
                    (names.size() != full && names.size() != full - 1)) {
                    ++bad;
                }
                view->run("ei", "DRSV_VDStorageVolume");
                ++answers;
            } catch (std::exception const&) {
                ++bad;
            }
        }
    };
    std::vector<std::thread> clients;
    for (int i = 0; i < 3; ++i)
        clients.emplace_back(client);
    for (int round = 0; round < 8; ++round) {
        sim(round % 2 == 0 ? "pull-disk NR8K1007" : "insert-disk NR8K1007");
        pass();
    }
    done = true;
    for (auto& t : clients)
        t.join();
    EXPECT_GT(answers.load(), 0);
    EXPECT_EQ(bad.load(), 0);
}
