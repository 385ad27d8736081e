// Runs the built veldra-sim against a copy of a scenario while the storage
// library watches the same file: each command changes what it says and moves
// the counters of what it changed; a refused command leaves the file as it was.
#include "ScenarioParser.h"
#include "SimulatedControllerMRA.h"
#include "StorageTestSupport.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

using namespace storagetest;

namespace {

class VeldraSimTest : public ::testing::Test {
protected:
    void SetUp() override {
        _path = _dir.file("scenario.yaml");
        replaceText(_path, readText(scenarioPath("minimal.yaml")));
        _root = std::make_unique<SimulatedControllerMRA>(_path, _logger);
        _controller = _root->getFirstData();
    }

    // Exit status of `veldra-sim --scenario <copy> args`; stderr goes to _errors.
    int sim(std::string const& args) {
        std::string command = std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " + _path +
                              " " + args + " >" + _dir.file("out.txt") + " 2>" +
                              _dir.file("err.txt");
        int status = std::system(command.c_str());
        _errors = readText(_dir.file("err.txt"));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string moved(std::function<void()> const& action) {
        u32 data = _controller->getControllerDataCount(), disks = _controller->getDiskVectorCount(),
            significant = _controller->getPossibleSignificantDiskVectorChangeCount();
        action();
        std::string out;
        if (data != _controller->getControllerDataCount())
            out += "data ";
        if (disks != _controller->getDiskVectorCount())
            out += "disks ";
        if (significant != _controller->getPossibleSignificantDiskVectorChangeCount())
            out += "significant ";
        return out;
    }

    VeldraPhysicalDisk disk(std::string const& serial) {
        for (auto const& d : _controller->getAllPhysicalDisks())
            if (d.getSerialNumber() == serial)
                return d;
        ADD_FAILURE() << "no disk " << serial;
        return {};
    }
    VeldraLogicalDisk volume(size_t index = 0) {
        return _controller->getAllLogicalDisks().at(index);
    }
    VeldraEnclosure enclosure() { return _controller->getAllEnclosures().at(0); }
    VeldraControllerData data() { return _controller->getVDData(); }
    template <class Enum> Enum read(int (VeldraControllerData::*getter)(Enum&) const) {
        Enum value{};
        EXPECT_EQ((data().*getter)(value), 0);
        return value;
    }

    TempDir _dir;
    std::string _path, _errors;
    Logger _logger{"test"};
    std::unique_ptr<SimulatedControllerMRA> _root;
    VeldraController* _controller = nullptr;
};

TEST_F(VeldraSimTest, DiskEventsChangeDisksAndTheirVolume) {
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("fail-disk MD0000"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(disk("MD0000").getStatus(), PD_STATUS_FAILED);
    EXPECT_EQ(volume().getStatus(), LD_STATUS_DEGRADED);

    EXPECT_EQ(moved([&] {
                  EXPECT_EQ(sim("activate-spare 600508B1001CMIN00000000000000001"), 0) << _errors;
              }),
              "disks significant ");
    EXPECT_TRUE(disk("MD0002").getIsActiveSpare());
    EXPECT_EQ(disk("MD0002").getStatus(), PD_STATUS_REBUILDING);
    EXPECT_EQ(volume().getReplacedDiskID(2), 0u);
    EXPECT_EQ(volume().getStatus(), LD_STATUS_REBUILDING);

    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("restore-disk 1:1:1"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(disk("MD0000").getStatus(), PD_STATUS_OK);

    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("degrade-disk MD0001"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(disk("MD0001").getStatus(), PD_STATUS_PREDICTIVE_FAILURE);

    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("pull-disk MD0001"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(_controller->getAllPhysicalDisks().size(), 3u);
    auto remaining = _controller->getAllPhysicalDisks();
    EXPECT_EQ(volume().logicalToAllPhysicals(remaining).size(), 2u) << "the pulled member is gone";
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("insert-disk MD0001"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(_controller->getAllPhysicalDisks().size(), 4u);

    EXPECT_EQ(
        moved([&] {
            EXPECT_EQ(sim("insert-disk --controller 1 --box 1 --bay 5 --serial NEW5 --ssd"), 0)
                << _errors;
        }),
        "disks significant ");
    EXPECT_TRUE(disk("NEW5").getSupportsGasGauge());
    EXPECT_EQ(disk("NEW5").getConfiguration(), PD_CONFIG_UNASSIGNED);
    EXPECT_EQ(disk("NEW5").getPaths().size(), 1u) << "a new disk takes the routes of its enclosure";
}

TEST_F(VeldraSimTest, EnclosureEventsMoveOnlyTheDiskVector) {
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("set-fan 1:1 failed"), 0) << _errors; }), "disks ");
    EXPECT_EQ(enclosure().getFanStatus(), ENCLOSURE_FAN_FAILED);
    EXPECT_EQ(enclosure().getOverallStatus(), ENCLOSURE_STATUS_FAILED);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("set-power-supply 1:1 degraded"), 0) << _errors; }),
              "disks ");
    EXPECT_EQ(enclosure().getPowerSupplyStatus(), ENCLOSURE_PS_DEGRADED);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("set-temperature 1:1 0x800A"), 0) << _errors; }), "disks ");
    EXPECT_EQ(enclosure().getTempSensorStatus(), ENCLOSURE_TEMP_WARNING);

    EXPECT_EQ(moved([&] {
                  EXPECT_EQ(
                      sim("add-enclosure --controller 1 --box 2 --serial E2 --port 1E --port 2E"),
                      0)
                      << _errors;
              }),
              "disks ");
    ASSERT_EQ(_controller->getAllEnclosures().size(), 2u);
    EXPECT_EQ(_controller->getAllEnclosures()[1].getPaths().size(), 2u);
    ASSERT_EQ(sim("insert-disk --controller 1 --box 2 --bay 1 --serial E2D1"), 0) << _errors;
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("remove-enclosure 1:2"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(_controller->getAllEnclosures().size(), 1u);
    EXPECT_EQ(_controller->getAllPhysicalDisks().size(), 4u) << "its disk left with it";
}

TEST_F(VeldraSimTest, ControllerEventsMoveOnlyTheControllerData) {
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("fail-controller 1"), 0) << _errors; }), "data ");
    EXPECT_EQ(read(&VeldraControllerData::getControllerOperationalStatus),
              CONTROLLER_OP_STATUS_FAILED);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("fail-cache 1"), 0) << _errors; }), "data ");
    EXPECT_EQ(read(&VeldraControllerData::getCacheStatus), CACHE_STATUS_FAILED);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("fail-battery 1"), 0) << _errors; }), "data ");
    EXPECT_EQ(read(&VeldraControllerData::getBatteryStatus), BATTERY_FAILED);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("restore-controller 1"), 0) << _errors; }), "data ");
    EXPECT_EQ(read(&VeldraControllerData::getBatteryStatus), BATTERY_OK);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("set controller:1 fail '[getPhysloc]'"), 0) << _errors; }),
              "data ");
    physloc_t location{};
    EXPECT_NE(data().getPhysloc(location), 0);
}

TEST_F(VeldraSimTest, VolumesAndFieldsByName) {
    EXPECT_EQ(
        moved([&] {
            EXPECT_EQ(
                sim("create-volume --controller 1 --serial NEWVOL --disks 1:1:4 --tolerance 0"), 0)
                << _errors;
        }),
        "disks significant ");
    ASSERT_EQ(_controller->getAllLogicalDisks().size(), 2u);
    EXPECT_EQ(volume(1).dataDiskIDs, (std::vector<u32>{3}));
    EXPECT_EQ(_controller->getAllPhysicalDisks()[3].getConfiguration(), PD_CONFIG_DATA);
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("delete-volume NEWVOL"), 0) << _errors; }),
              "disks significant ");
    EXPECT_EQ(_controller->getAllLogicalDisks().size(), 1u);
    EXPECT_EQ(_controller->getAllPhysicalDisks()[3].getConfiguration(), PD_CONFIG_UNASSIGNED);

    EXPECT_EQ(
        moved([&] { EXPECT_EQ(sim("set disk:MD0000 statistics.seekErrors 5"), 0) << _errors; }),
        "disks significant ");
    EXPECT_EQ(disk("MD0000").getDiskStatistics().seekErrors, 5u);
    EXPECT_EQ(
        moved([&] { EXPECT_EQ(sim("set controller:1 controllerTemperature 80"), 0) << _errors; }),
        "data ");
    EXPECT_EQ(moved([&] { EXPECT_EQ(sim("set enclosure:1:1 boxNumber 7"), 0) << _errors; }),
              "disks ");
    EXPECT_EQ(enclosure().getBoxNumber(), 7);
}

TEST_F(VeldraSimTest, RefusedCommandsLeaveTheFileByteForByte) {
    std::string const before = readText(_path);
    std::vector<std::string> const refused = {
        "",                                                        // no command
        "explode-disk MD0000",                                     // unknown command
        "fail-disk NOSUCH",                                        // unknown disk
        "fail-disk 9:1:1",                                         // unknown controller
        "set-fan 1:1 sideways",                                    // bad status word
        "set-fan 1:9 ok",                                          // unknown enclosure
        "set disk:MD0000 status broken",                           // value of the wrong type
        "set disk:MD0000 colour red",                              // unknown field
        "set gadget:1 status 1",                                   // unknown target kind
        "activate-spare 600508B1001CMIN00000000000000001",         // no failed member
        "create-volume --controller 1 --serial X --disks MD0000",  // disk already in a volume
        "add-enclosure --controller 1 --box 1",                    // box number taken
        "insert-disk --controller 1 --box 1 --bay 1 --serial DUP", // bay taken
        "fail-controller 2",
        "fail-controller", // missing argument
    };
    for (auto const& args : refused) {
        EXPECT_NE(sim(args), 0) << args;
        EXPECT_FALSE(_errors.empty()) << "no message for: " << args;
        EXPECT_EQ(readText(_path), before) << args;
    }
    for (auto const& entry :
         std::filesystem::directory_iterator(std::filesystem::path(_path).parent_path())) {
        std::string const name = entry.path().filename().string();
        if (name == "scenario.yaml.lock")
            continue; // the editors' lock stays
        EXPECT_EQ(name.find("scenario.yaml."), std::string::npos)
            << "left a temporary file: " << entry.path();
    }
}

// Before: editors running at once read the same file and the last write won,
// losing the others' changes.
TEST_F(VeldraSimTest, EditorsAtOnceLoseNoChange) {
    std::vector<std::string> const serials = {"MD0000", "MD0001", "MD0002"};
    std::string const sim = std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " + _path;
    std::string commands;
    for (auto const& serial : serials) {
        commands += sim + " fail-disk " + serial + " >/dev/null 2>&1 &\n";
        commands += sim + " set disk:" + serial + " totalPowerOnHours 4321 >/dev/null 2>&1 &\n";
    }
    commands += "wait\n";
    EXPECT_EQ(moved([&] { ASSERT_EQ(std::system(commands.c_str()), 0); }), "disks significant ");
    for (auto const& serial : serials) {
        SCOPED_TRACE(serial);
        EXPECT_EQ(disk(serial).getStatus(), PD_STATUS_FAILED);
    }
    std::string const text = readText(_path);
    int hours = 0;
    for (size_t at = text.find("totalPowerOnHours: 4321"); at != std::string::npos;
         at = text.find("totalPowerOnHours: 4321", at + 1))
        ++hours;
    EXPECT_EQ(hours, 3) << text;
}

// Before: the link was replaced by a plain file and the target kept the old text.
TEST_F(VeldraSimTest, EditsGoThroughASymbolicLink) {
    std::string const link = _dir.file("link.yaml");
    std::filesystem::create_symlink(_path, link);
    std::string command =
        std::string(VELDRA_BIN_DIR) + "/veldra-sim --scenario " + link + " fail-disk MD0001";
    EXPECT_EQ(moved([&] { ASSERT_EQ(std::system(command.c_str()), 0); }), "disks significant ");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(disk("MD0001").getStatus(), PD_STATUS_FAILED);
}

TEST_F(VeldraSimTest, ShowListsHardwareAndLocatorRequests) {
    ASSERT_EQ(_controller->identifyPhysicalDisks(_controller->getAllPhysicalDisks(), 12), 0);
    ASSERT_EQ(sim("show"), 0) << _errors;
    std::string out = readText(_dir.file("out.txt"));
    for (char const* part :
         {"Controller 1: Veldra 8i", "Enclosure box 1", "MD0002", "(no serial)", "Volume 0",
          "spares 2", "Locator requests: 1", "disks MD0000,MD0001,MD0002,box1:bay4 duration 12"})
        EXPECT_NE(out.find(part), std::string::npos) << part << " missing in:\n" << out;
}

TEST_F(VeldraSimTest, GenerateWritesAValidLargeScenario) {
    std::string output = _dir.file("big.yaml");
    ASSERT_EQ(sim("generate --controllers 3 --disks-per-controller 50 --output " + output), 0)
        << _errors;
    VeldraScenario big = ScenarioParser::parseFile(output);
    ASSERT_EQ(big.controllers.size(), 3u);
    EXPECT_EQ(big.controllers[2].physicalDisks.size(), 50u);
    EXPECT_EQ(big.controllers[2].enclosures.size(), 3u);
    EXPECT_EQ(big.controllers[2].logicalDisks.size(), 6u);
    EXPECT_NE(sim("generate --controllers 0 --disks-per-controller 5 --output " + output), 0);
}

} // namespace
