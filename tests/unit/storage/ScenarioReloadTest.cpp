// Live hardware: a changed scenario moves exactly the counters of what
// changed, an unchanged one moves none, a bad one is logged once and the last
// good state stays. Also the factory's choice of back end and file.
#include "FrameworkConfig.h"
#include "InternalVeldraControllerMRA.h"
#include "SimulatedControllerMRA.h"
#include "StorageTestSupport.h"
#include "VeldraStorageFunctions.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace storagetest;

namespace {

struct Counts {
    u32 data, disks, significant;
    bool operator==(Counts const&) const = default;
};

std::string replaceOnce(std::string text, std::string const& from, std::string const& to) {
    auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos)
        text.replace(at, from.size(), to);
    return text;
}

class ReloadTest : public ::testing::Test {
protected:
    void SetUp() override {
        _log = _dir.file("log.txt");
        ::setenv("VELDRA_LOG", _log.c_str(), 1);
        QLN::FrameworkConfig::reload();
        _path = _dir.file("scenario.yaml");
        _original = readText(scenarioPath("minimal.yaml"));
        replaceText(_path, _original);
        _root = std::make_unique<SimulatedControllerMRA>(_path, _logger);
        _controller = _root->getFirstData();
    }
    void TearDown() override {
        ::unsetenv("VELDRA_LOG");
        QLN::FrameworkConfig::reload();
    }
    Counts counts() {
        return {_controller->getControllerDataCount(), _controller->getDiskVectorCount(),
                _controller->getPossibleSignificantDiskVectorChangeCount()};
    }
    // Which counters moved between two readings.
    static std::string moved(Counts a, Counts b) {
        std::string out;
        if (a.data != b.data)
            out += "data ";
        if (a.disks != b.disks)
            out += "disks ";
        if (a.significant != b.significant)
            out += "significant ";
        return out;
    }
    std::string movedAfter(std::string const& text) {
        Counts before = counts();
        replaceText(_path, text);
        return moved(before, counts());
    }
    size_t logLinesContaining(std::string const& part) {
        std::string log = readText(_log);
        size_t n = 0;
        for (size_t at = log.find(part); at != std::string::npos; at = log.find(part, at + 1))
            ++n;
        return n;
    }

    TempDir _dir;
    std::string _log, _path, _original;
    Logger _logger{"test"};
    std::unique_ptr<SimulatedControllerMRA> _root;
    VeldraController* _controller = nullptr;
};

TEST_F(ReloadTest, EachChangeMovesOnlyItsCounters) {
    struct Case {
        char const* what;
        char const* from;
        char const* to;
        char const* moves;
    };
    std::vector<Case> const cases = {
        {"controller firmware", "fwVersion: \"4.12\"", "fwVersion: \"4.20\"", "data "},
        {"enclosure only", "driveBays: 4", "driveBays: 4\n        fanStatus: 0x8003", "disks "},
        {"disk status", "configuration: 1,", "configuration: 1, status: 3,", "disks significant "},
        {"volume status", "tolerance: 2", "tolerance: 2\n        status: 0x8000",
         "disks significant "},
        {"comment only", "name: minimal", "name: minimal  # edited", ""},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(movedAfter(replaceOnce(_original, c.from, c.to)), c.moves) << c.what;
        replaceText(_path, _original);
        counts();
    }
}

TEST_F(ReloadTest, NoChangeNoMove) {
    Counts first = counts();
    EXPECT_EQ(counts(), first);
    replaceText(_path, _original); // a new file with the same content
    EXPECT_EQ(counts(), first);
}

TEST_F(ReloadTest, BadFileIsLoggedOnceAndTheLastGoodStateStays) {
    Counts before = counts();
    replaceText(_path, replaceOnce(_original, "configuration: 1,", "configuration: one,"));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(counts(), before);
    EXPECT_EQ(logLinesContaining("keeping the last good state"), 1u);
    EXPECT_EQ(logLinesContaining("'configuration'"), 1u) << readText(_log);
    EXPECT_EQ(_controller->getAllPhysicalDisks().size(), 4u);

    // A fixed file is adopted, and the counters compare with the good state before.
    replaceText(_path, replaceOnce(_original, "configuration: 1,", "configuration: 3,"));
    EXPECT_EQ(moved(before, counts()), "disks significant ");
    EXPECT_EQ(_controller->getAllPhysicalDisks()[3].getConfiguration(), PD_CONFIG_SPARE);
}

TEST_F(ReloadTest, MissingFileAndRemovedControllerKeepTheState) {
    Counts before = counts();
    std::filesystem::remove(_path);
    EXPECT_EQ(counts(), before);
    replaceText(_path, "controllers: []\n");
    EXPECT_EQ(counts(), before);
    EXPECT_EQ(logLinesContaining("cannot be removed"), 1u);
    EXPECT_EQ(_controller->getAllLogicalDisks().size(), 1u);
}

TEST_F(ReloadTest, RecordsKeepTheirIdentityAcrossReloads) {
    // The provider's snapshot scheme: store, change the hardware, compare.
    std::vector<VeldraPhysicalDisk> last = _controller->getAllPhysicalDisks();
    _controller->setLastAllPhysicalDisks(last);
    _controller->setConsumedDiskVectorCount(_controller->getDiskVectorCount());

    replaceText(_path, replaceOnce(_original, "MD0001, model: NR4000 SAS,",
                                   "MD0001, model: NR4000 SAS, status: 3,"));
    ASSERT_NE(_controller->getDiskVectorCount(), _controller->getConsumedDiskVectorCount());
    std::vector<VeldraPhysicalDisk> previous = _controller->getLastAllPhysicalDisks();
    std::vector<VeldraPhysicalDisk> current = _controller->getAllPhysicalDisks();
    std::vector<VeldraPhysicalDisk> added, removed;
    findNewVDPhysicalDisks(previous, current, added);
    findRemovedVDPhysicalDisks(previous, current, removed);
    EXPECT_TRUE(added.empty());
    EXPECT_TRUE(removed.empty());
    u32 index = 0;
    EXPECT_EQ(current[1].compare(previous, index), 0x10u);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(current[3].compare(previous, index), 0u)
        << "the serial-less disk is found by its place";
    EXPECT_EQ(_controller->getLastAllPhysicalDisks()[1].getStatus(), PD_STATUS_OK)
        << "the snapshot does not move";
}

TEST(Factory, ChoosesBackEndAndScenarioFromTheConfiguration) {
    Logger logger("test");
    ::setenv("VELDRA_SCENARIO", scenarioPath("demo.yaml").c_str(), 1);
    QLN::FrameworkConfig::reload();
    std::unique_ptr<InternalVeldraControllerMRA> root(internalVeldraControllerMRAFactory(logger));
    ASSERT_NE(root, nullptr);
    VeldraController* first = root->getFirstData();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->getAllPhysicalDisks().size(), 16u);

    ::setenv("VELDRA_SCENARIO", "/nonexistent/scenario.yaml", 1);
    QLN::FrameworkConfig::reload();
    EXPECT_EQ(internalVeldraControllerMRAFactory(logger), nullptr);

    ::setenv("VELDRA_SCENARIO", scenarioPath("demo.yaml").c_str(), 1);
    ::setenv("VELDRA_STORAGE_BACKEND", "hardware", 1);
    QLN::FrameworkConfig::reload();
    EXPECT_EQ(internalVeldraControllerMRAFactory(logger), nullptr);

    ::unsetenv("VELDRA_STORAGE_BACKEND");
    ::unsetenv("VELDRA_SCENARIO");
    QLN::FrameworkConfig::reload();
    EXPECT_EQ(InternalVeldraControllerMRA::defaultScenarioPath(), scenarioPath("demo.yaml"));
    std::unique_ptr<InternalVeldraControllerMRA> fallback(
        internalVeldraControllerMRAFactory(logger));
    EXPECT_NE(fallback, nullptr);
}

TEST(Factory, EmptyScenarioHasNoController) {
    Logger logger("test");
    SimulatedControllerMRA none(scenarioPath("none.yaml"), logger);
    EXPECT_EQ(none.getFirstData(), nullptr);
}

} // namespace

// Catches the stored-disk look-ups drifting from the scans they stand in for:
// same disk for every identity, serial-less disks by place, and nothing
// once a newer snapshot has dropped the disk.
TEST_F(ReloadTest, StoredDiskLookupAgreesWithTheScan) {
    std::vector<VeldraPhysicalDisk> disks = _controller->getAllPhysicalDisks();
    _controller->setLastAllPhysicalDisks(disks);
    for (VeldraPhysicalDisk const& d : disks) {
        auto found = _controller->findLastPhysicalDisk(d.getSerialNumber(),
                                                       d.getEnclosureBoxNumber(), d.getBay());
        ASSERT_TRUE(found.has_value()) << d.getSerialNumber();
        int at = findPhysicalDiskInVector(d.getSerialNumber(), d.getEnclosureBoxNumber(),
                                          d.getBay(), disks);
        EXPECT_EQ(found->getId(), disks[static_cast<size_t>(at)].getId());
    }
    EXPECT_FALSE(_controller->findLastPhysicalDisk("no such serial", 0, 0).has_value());

    std::vector<VeldraLogicalDisk> logicals = _controller->getAllLogicalDisks();
    ASSERT_FALSE(logicals.empty());
    _controller->setLastLogicalDisks(logicals);
    auto logical = _controller->findLastLogicalDisk(logicals.back().getSerialNumber());
    ASSERT_TRUE(logical.has_value());
    EXPECT_EQ(logical->getSerialNumber(), logicals.back().getSerialNumber());
    EXPECT_FALSE(_controller->findLastLogicalDisk("no such serial").has_value());

    std::vector<VeldraPhysicalDisk> fewer(disks.begin() + 2, disks.end());
    _controller->setLastAllPhysicalDisks(fewer);
    EXPECT_FALSE(_controller->findLastPhysicalDisk(disks[0].getSerialNumber(), 0, 0).has_value());
    EXPECT_TRUE(_controller
                    ->findLastPhysicalDisk(disks[3].getSerialNumber(),
                                           disks[3].getEnclosureBoxNumber(), disks[3].getBay())
                    .has_value());
}
