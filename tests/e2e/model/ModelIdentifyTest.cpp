#include "ModelServer.h"

#include <gtest/gtest.h>

#include <algorithm>

// Identify through wbemcli's cm reaches the simulated controller: the
// locator request names the controller and the disks to blink, and the
// duration in tenths (the client gives seconds).
namespace {

using Expect = ScenarioExpectation;

class ModelIdentify : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        server = std::make_unique<ModelServer>(VELDRA_DATA_DIR "/scenarios/demo.yaml");
    }
    static void TearDownTestSuite() { server.reset(); }
    static inline std::unique_ptr<ModelServer> server;

    // Calls Identify and returns the locator requests it added.
    static std::string identify(std::string const& path, int seconds) {
        std::string before = server->locatorLog();
        auto out =
            server->client().run("cm", path, "", "Identify.Duration=" + std::to_string(seconds));
        EXPECT_EQ(out.size(), 1u);
        if (!out.empty()) {
            EXPECT_NE(out.front().find("Identify: 0"), std::string::npos) << out.front();
        }
        std::string after = server->locatorLog();
        return after.substr(std::min(before.size(), after.size()));
    }
    static std::string devicePath(std::string const& className, Expect::Controller const& c,
                                  std::string const& id) {
        return className + ".SystemCreationClassName=\"QLN_VDArraySystem\",CreationClassName=\"" +
               className + "\",SystemName=\"" + Expect::systemName(c) + "\",DeviceID=\"" + id +
               "\"";
    }
};

// Each added line: "<time> controller N <what> duration D".
void expectRequest(std::string const& added, std::string const& what) {
    EXPECT_EQ(std::count(added.begin(), added.end(), '\n'), 1) << added;
    EXPECT_NE(added.find(what + "\n"), std::string::npos)
        << "expected \"" << what << "\" in: " << added;
}

} // namespace

// Catches Identify landing on the wrong controller or disks, or the
// duration not scaled: an array system blinks all its disks, a volume its
// members (spares included), a disk itself; on both controllers.
TEST_F(ModelIdentify, ArraySystemVolumeAndDiskAreRecorded) {
    int seconds = 3;
    for (auto const& c : server->expected().controllers()) {
        SCOPED_TRACE(Expect::systemName(c));
        std::string const n = std::to_string(c.index);
        expectRequest(identify("QLN_VDArraySystem.CreationClassName=\"QLN_VDArraySystem\",Name=\"" +
                                   Expect::systemName(c) + "\"",
                               seconds),
                      "controller " + n + " all disks duration " + std::to_string(seconds * 10));
        ++seconds;

        ASSERT_FALSE(c.volumes.empty());
        Expect::Volume const& v = c.volumes.front();
        std::string serials;
        for (Expect::Disk const* d : Expect::members(c, v))
            serials += (serials.empty() ? "" : ",") + d->serial;
        expectRequest(identify(devicePath("QLN_VDStorageVolume", c, v.serial), seconds),
                      "controller " + n + " disks " + serials + " duration " +
                          std::to_string(seconds * 10));
        ++seconds;

        Expect::Disk const& d = c.disks.back().serial.empty() ? c.disks.front() : c.disks.back();
        expectRequest(
            identify(devicePath("QLN_VDDiskDrive", c, Expect::diskDeviceId(c, d)), seconds),
            "controller " + n + " disks " + d.serial + " duration " + std::to_string(seconds * 10));
        ++seconds;
    }
    // The repository's own scenario folder is not written to.
    EXPECT_EQ(server->scenario().rfind(VELDRA_DATA_DIR, 0), std::string::npos);
}
