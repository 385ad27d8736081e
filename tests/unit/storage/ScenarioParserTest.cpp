// Scenario files: the shipped ones read as described, bad ones are refused
// with the field and the line, and fail lists make exactly those getters fail.
#include "LocatorLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ScenarioParser.h"
#include "SimulatedControllerMRA.h"
#include "StorageTestSupport.h"
#include <chrono>
#include <filesystem>
#include <future>

#include <gtest/gtest.h>

#include <stdexcept>

#include <algorithm>

using namespace storagetest;

namespace {

TEST(ShippedScenarios, DemoHasTheHardwareItPromises) {
    VeldraScenario demo = ScenarioParser::parseFile(scenarioPath("demo.yaml"));
    ASSERT_EQ(demo.controllers.size(), 2u);
    auto const& c1 = demo.controllers[0];
    EXPECT_EQ(c1.enclosures.size(), 2u);
    EXPECT_EQ(c1.physicalDisks.size() + demo.controllers[1].physicalDisks.size(), 24u);

    int ssdsWithGauge = 0, serialLess = 0, degraded = 0, spares = 0;
    for (auto const& c : demo.controllers)
        for (auto const& d : c.physicalDisks) {
            ssdsWithGauge += d->gasGauge && d->rotationalSpeed == 0;
            serialLess += d->serialNumber.empty();
            degraded += d->status == PD_STATUS_PREDICTIVE_FAILURE;
            spares += d->configuration == PD_CONFIG_SPARE;
        }
    EXPECT_GE(ssdsWithGauge, 2);
    EXPECT_GE(serialLess, 1);
    EXPECT_EQ(degraded, 1);
    EXPECT_GE(spares, 2);

    // A spare stands in for a failed member.
    VeldraLogicalDisk raid(c1.logicalDisks[0]);
    u32 standIn = raid.spareDiskIDs.at(0);
    u32 failed = raid.getReplacedDiskID(standIn);
    ASSERT_NE(failed, 0xFFFFFFFFu);
    auto failedDisk = std::find_if(c1.physicalDisks.begin(), c1.physicalDisks.end(),
                                   [&](auto const& d) { return d->id == failed; });
    ASSERT_NE(failedDisk, c1.physicalDisks.end());
    EXPECT_EQ((*failedDisk)->status, PD_STATUS_FAILED);

    // A cached volume (type 2) points at its cache volume (type 3) in the low 16 bits.
    std::vector<VeldraLogicalDisk> volumes(c1.logicalDisks.begin(), c1.logicalDisks.end());
    int pairs = 0;
    for (auto& cached : volumes)
        for (auto& cache : volumes)
            if (cached.getLogicalVolumeType() == 2 && cache.getLogicalVolumeType() == 3 &&
                (cached.getRelatedLUN() & 0xffff) == cache.getLogicalVolumeNumber())
                ++pairs;
    EXPECT_EQ(pairs, 1);

    int fanProblems = 0;
    for (auto const& e : c1.enclosures)
        fanProblems += e->fanStatus != ENCLOSURE_FAN_OK;
    EXPECT_EQ(fanProblems, 1);
}

TEST(ShippedScenarios, SmallOnesLoad) {
    EXPECT_EQ(ScenarioParser::parseFile(scenarioPath("minimal.yaml")).controllers.size(), 1u);
    EXPECT_TRUE(ScenarioParser::parseFile(scenarioPath("empty.yaml"))
                    .controllers.at(0)
                    .physicalDisks.empty());
    EXPECT_TRUE(ScenarioParser::parseFile(scenarioPath("none.yaml")).controllers.empty());
}

TEST(BadScenarios, AreRefusedNamingTheFieldAndTheLine) {
    struct Case {
        char const* text;
        std::vector<char const*> expected;
    };
    std::vector<Case> const cases = {
        {"controllers:\n  - serialNumber: A\n    colour: red\n",
         {"t.yaml:3:", "controllers[0]", "'colour'", "unknown field"}},
        {"controllers:\n  - physicalDisks:\n      - id: 1\n        status: broken\n",
         {"t.yaml:4:", "physicalDisks[0]", "'status'", "'broken'"}},
        {"controllers:\n  - pciSlotNumber: 99999999999\n", {":2:", "'pciSlotNumber'", "integer"}},
        {"controllers:\n  - numberOfSASPorts: -1\n", {":2:", "'numberOfSASPorts'"}},
        {"controllers:\n  - physicalDisks:\n      - {id: 1}\n      - {id: 1}\n",
         {":4:", "'id'", "used twice"}},
        {"controllers:\n  - logicalDisks:\n      - {serialNumber: V, dataDisks: [7]}\n",
         {":3:", "'dataDisks'", "no physical disk has id 7"}},
        {"controllers:\n  - fail: [getPhysloc, getColour]\n", {":2:", "'fail'", "getColour"}},
        {"controllers:\n  - logicalDisks:\n      - {number: 1}\n",
         {"'serialNumber'", "needs a serial"}},
        {"name: x\n", {"'controllers'", "missing"}},
        {"controllers: [\n", {"t.yaml:", "not valid YAML"}},
        {"controllers:\n  - enclosures:\n      - {enclosureBoxNumber: 1, paths: [{box: 1}]}\n",
         {"'port'"}},
        {"", {"empty"}},
        // Before: accepted, and one of the two array systems disappeared.
        {"controllers:\n  - serialNumber: A\n  - serialNumber: A\n",
         {"t.yaml:3:", "controllers[1]", "used twice"}},
        // An alias would let a few lines multiply into thousands of disks.
        {"controllers:\n  - physicalDisks: &d [{id: 1}]\n  - physicalDisks: *d\n",
         {"t.yaml:3:", "aliases"}},
    };
    for (auto const& c : cases) {
        try {
            ScenarioParser::parseText(c.text, "t.yaml");
            ADD_FAILURE() << "accepted:\n" << c.text;
        } catch (ScenarioError const& e) {
            std::string message = e.what();
            for (char const* part : c.expected)
                EXPECT_NE(message.find(part), std::string::npos)
                    << "'" << part << "' missing in: " << message;
        }
    }
}

TEST(GetterFailures, FailListMakesExactlyThoseGettersFail) {
    VeldraScenario s =
        ScenarioParser::parseText("controllers:\n"
                                  "  - {serialNumber: A, pciSlotNumber: 4, fail: [getPhysloc, "
                                  "getPCISlotNumber, getEncryptionStatus]}\n"
                                  "  - {serialNumber: B, pciSlotNumber: 5}\n",
                                  "t.yaml");
    VeldraControllerData failing(s.controllers[0].data), fine(s.controllers[1].data);
    int slot = -7;
    physloc_t location{};
    EXPECT_NE(failing.getPCISlotNumber(slot), 0);
    EXPECT_EQ(slot, -7) << "a failed getter leaves its argument alone";
    EXPECT_NE(failing.getPhysloc(location), 0);
    EncryptionStatusEnum encryption = ENCRYPTION_ENABLED;
    EXPECT_NE(failing.getEncryptionStatus(&encryption), 0);
    std::string serial;
    EXPECT_EQ(failing.getControllerSerialNumber(serial), 0);
    EXPECT_EQ(serial, "A");
    EXPECT_EQ(fine.getPCISlotNumber(slot), 0);
    EXPECT_EQ(slot, 5);
    EXPECT_NE(fine.getEncryptionStatus(nullptr), 0);
    EXPECT_EQ(fine.getEncryptionStatus(&encryption), 0);

    VeldraScenario disks = ScenarioParser::parseText(
        "controllers:\n"
        "  - physicalDisks: [{id: 1, serialNumber: D1, fail: [getEncryptionStatus]}, {id: 2, "
        "serialNumber: D2, encryptionStatus: 2}]\n"
        "    logicalDisks: [{serialNumber: V, fail: [getEncryptionStatus]}]\n",
        "t.yaml");
    EncryptionPDStatusEnum pd = PD_ENCRYPTION_NONE;
    EXPECT_NE(VeldraPhysicalDisk(disks.controllers[0].physicalDisks[0]).getEncryptionStatus(pd), 0);
    EXPECT_EQ(VeldraPhysicalDisk(disks.controllers[0].physicalDisks[1]).getEncryptionStatus(pd), 0);
    EXPECT_EQ(pd, PD_ENCRYPTION_ENCRYPTED);
    EncryptionLDStatusEnum ld = LD_ENCRYPTION_NONE;
    EXPECT_NE(VeldraLogicalDisk(disks.controllers[0].logicalDisks[0]).getEncryptionStatus(ld), 0);
}

TEST(GetterFailures, ThrowListMakesThoseGettersThrowAndIsCheckedLikeFail) {
    VeldraScenario s =
        ScenarioParser::parseText("controllers:\n"
                                  "  - {serialNumber: A, model: M, throw: [getModel]}\n",
                                  "t.yaml");
    VeldraControllerData raising(s.controllers[0].data);
    std::string text;
    EXPECT_THROW(raising.getModel(text), std::runtime_error);
    EXPECT_EQ(raising.getControllerSerialNumber(text), 0);
    EXPECT_THROW(ScenarioParser::parseText(
                     "controllers:\n  - {serialNumber: A, throw: [getNothing]}\n", "t.yaml"),
                 ScenarioError);
}

TEST(Locators, RequestsAreRecordedBesideTheScenarioOrFailWhenTold) {
    TempDir dir;
    std::string path = dir.file("s.yaml");
    replaceText(
        path,
        "controllers:\n"
        "  - physicalDisks: [{id: 1, serialNumber: D1}, {id: 2, enclosureBoxNumber: 3, bay: 4}]\n"
        "  - fail: [identifyAllPhysicalDisks, identifyPhysicalDisks]\n");
    std::string before = readText(path);
    Logger logger("test");
    SimulatedControllerMRA root(path, logger);
    VeldraController* first = root.getFirstData();
    VeldraController* second = root.getNextData(first);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(root.getNextData(second), nullptr);

    EXPECT_EQ(first->identifyAllPhysicalDisks(30), 0);
    EXPECT_EQ(first->identifyPhysicalDisks(first->getAllPhysicalDisks(), 15), 0);
    EXPECT_LT(second->identifyAllPhysicalDisks(30), 0);
    EXPECT_LT(second->identifyPhysicalDisks({}, 30), 0);

    auto lines = LocatorLog::read(path);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[0].find("controller 1 all disks duration 30"), std::string::npos) << lines[0];
    EXPECT_NE(lines[1].find("controller 1 disks D1,box3:bay4 duration 15"), std::string::npos)
        << lines[1];
    EXPECT_EQ(readText(path), before) << "the scenario itself is not touched";
}

// Before: a client calling Identify in a loop grew the file without end.
TEST(Locators, TheLogIsRotatedAtItsCap) {
    TempDir dir;
    std::string path = dir.file("s.yaml");
    std::string const line(200, 'x');
    for (std::size_t written = 0; written < 3 * LocatorLog::maxBytes; written += line.size() + 1)
        ASSERT_TRUE(LocatorLog::append(path, line));
    EXPECT_LE(std::filesystem::file_size(LocatorLog::sidecarPath(path)), LocatorLog::maxBytes);
    EXPECT_LE(std::filesystem::file_size(LocatorLog::sidecarPath(path) + ".1"),
              LocatorLog::maxBytes + line.size() + 1);
    EXPECT_FALSE(LocatorLog::read(path).empty());
}

// Before: start-up waited for ever on a FIFO, without a word.
TEST(BadScenarios, AFileThatIsNotRegularIsRefusedAtOnce) {
    TempDir dir;
    std::string fifo = dir.file("s.yaml");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    auto parsing = std::async(std::launch::async, [&] { ScenarioParser::parseFile(fifo); });
    if (parsing.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
        // Hand the reader an end of file so that the test ends with its failure.
        ::close(::open(fifo.c_str(), O_WRONLY));
        FAIL() << "start-up waited on a FIFO";
    }
    try {
        parsing.get();
        ADD_FAILURE() << "a FIFO was read as a scenario";
    } catch (ScenarioError const& e) {
        EXPECT_NE(std::string(e.what()).find("not a regular file"), std::string::npos) << e.what();
    }
}

} // namespace
