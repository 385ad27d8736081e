// The indication database as the frame reads it: the shipped file, and what
// a broken file does.
#include "IndicationDB.h"
#include "ScopedEnv.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace {

std::string readFile(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Each test reads the database of its own choosing and the log in a file.
class IndicationDBTest : public ::testing::Test {
protected:
    void SetUp() override {
        env.set("VELDRA_LOG", dir.file("log"));
        env.set("VELDRA_LOG_LEVEL", "info");
    }
    void useFile(std::string const& text) {
        env.set("VELDRA_INDICATION_DB", dir.write("db.yaml", text));
    }
    std::string log() const { return readFile(dir.file("log")); }

    TempDir dir;
    ScopedEnv env;
    Logger logger{"test"};
};

// A complete record under an event number, with one field replaced
// ("key: value"), dropped ("key:") or added.
std::string record(int event, std::string const& change = "") {
    std::vector<std::string> fields = {"eventID: E-1",
                                       "indicationNumber: 7001",
                                       "description: \"Disk failed.\"",
                                       "summary: \"Disk failed\"",
                                       "eventCategory: 5",
                                       "alertType: 5",
                                       "probableCause: 16",
                                       "probableCauseDescription: \"Disk failure\"",
                                       "recommendedActions: \"Replace the disk.\""};
    std::string const key = change.substr(0, change.find(':') + 1);
    std::string text = "    " + std::to_string(event) + ":\n";
    bool replaced = false;
    for (std::string const& field : fields) {
        if (!key.empty() && field.rfind(key, 0) == 0) {
            replaced = true;
            if (change.size() > key.size())
                text += "      " + change + "\n";
            continue;
        }
        text += "      " + field + "\n";
    }
    if (!replaced && !change.empty())
        text += "      " + change + "\n";
    return text;
}

} // namespace

// Catches: an event that the provider sends but the shipped file lacks (the
// alert would silently go missing), and two events sharing an indication
// number.
TEST_F(IndicationDBTest, ShippedFileHasEveryEventOfEveryClass) {
    env.unset("VELDRA_INDICATION_DB");
    std::map<std::string, std::vector<int>> const events = {
        {"QLN_VeldraCntlrIndication", {1, 2}},
        {"QLN_VeldraIndication", {6, 7, 8, 9, 10, 11, 12, 14, 15, 16, 100}},
        {"QLN_VeldraStorageVolumeIndication", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}},
        {"QLN_VeldraDiskDriveIndication", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}},
        {"QLN_VeldraStorageEnclosureIndication", {1, 2, 3, 4, 5, 6}},
        {"QLN_VeldraStorageEnclosureTempIndication", {7, 8, 9}},
    };
    std::set<int> numbers;
    for (auto const& [className, numbersOfClass] : events) {
        QLN::IndicationDB db(logger, className);
        for (int event : numbersOfClass) {
            QLN::IndDBRec record;
            ASSERT_EQ(db.getRecord(event, record), 0) << className << " event " << event;
            EXPECT_EQ(record.providerName, "QLNVeldra");
            EXPECT_FALSE(record.summary.empty()) << className << " event " << event;
            EXPECT_FALSE(record.description.empty()) << className << " event " << event;
            EXPECT_FALSE(record.recommendedActions.empty()) << className << " event " << event;
            EXPECT_TRUE(numbers.insert(record.indicationNumber).second)
                << className << " event " << event << " reuses " << record.indicationNumber;
        }
        QLN::IndDBRec none;
        EXPECT_NE(db.getRecord(99, none), 0) << className;
    }
    EXPECT_EQ(log().find("ERROR"), std::string::npos) << log();
}

// Catches: a crash or an exception on a missing or unparsable file, and an
// error that does not say which file.
TEST_F(IndicationDBTest, MissingOrBrokenFileGivesNoRecordAndSaysWhy) {
    env.set("VELDRA_INDICATION_DB", dir.file("absent.yaml"));
    QLN::IndDBRec record;
    EXPECT_NE(QLN::IndicationDB(logger, "QLN_VeldraIndication").getRecord(100, record), 0);
    EXPECT_NE(log().find("absent.yaml cannot be read"), std::string::npos) << log();

    useFile("classes:\n  QLN_VeldraIndication:\n    100: [unclosed\n");
    EXPECT_NE(QLN::IndicationDB(logger, "QLN_VeldraIndication").getRecord(100, record), 0);
    EXPECT_NE(log().find("db.yaml line"), std::string::npos) << log();

    useFile("- just\n- a list\n");
    EXPECT_NE(QLN::IndicationDB(logger, "QLN_VeldraIndication").getRecord(100, record), 0);
    EXPECT_NE(log().find("expected a map \"classes\""), std::string::npos) << log();
}

// Catches: one bad record taking the whole class down, a bad record passed
// on half-filled, defaults not applied or winning over the record's own
// value, and each class not having its own numbering.
TEST_F(IndicationDBTest, BadRecordsAreLeftOutAndTheRestStand) {
    useFile("defaults:\n  providerName: FromDefaults\n  eventCategory: 9\n"
            "classes:\n  QLN_VeldraDiskDriveIndication:\n" +
            record(2) + record(3, "indicationNumber:") + record(4, "alertType: five") +
            record(5, "colour: red") + record(6, "probableCause: 70000") +
            "  QLN_VeldraStorageEnclosureIndication:\n" + record(2, "providerName: Own"));
    QLN::IndicationDB disks(logger, "QLN_VeldraDiskDriveIndication");
    QLN::IndDBRec got;
    ASSERT_EQ(disks.getRecord(2, got), 0);
    EXPECT_EQ(got.providerName, "FromDefaults");
    EXPECT_EQ(got.eventCategory, 5);
    EXPECT_EQ(got.indicationNumber, 7001);
    EXPECT_EQ(got.probableCause, 16);
    EXPECT_EQ(got.recommendedActions, "Replace the disk.");
    for (int bad : {3, 4, 5, 6}) {
        EXPECT_NE(disks.getRecord(bad, got), 0) << bad;
    }
    std::string const lines = log();
    EXPECT_NE(lines.find("event 3: field indicationNumber is missing"), std::string::npos) << lines;
    EXPECT_NE(lines.find("event 4: alertType must be a number, not \"five\""), std::string::npos)
        << lines;
    EXPECT_NE(lines.find("event 5: unknown field colour"), std::string::npos) << lines;
    EXPECT_NE(lines.find("event 6: probableCause is out of range"), std::string::npos) << lines;

    QLN::IndicationDB enclosures(logger, "QLN_VeldraStorageEnclosureIndication");
    ASSERT_EQ(enclosures.getRecord(2, got), 0);
    EXPECT_EQ(got.providerName, "Own");
    EXPECT_NE(enclosures.getRecord(3, got), 0);

    QLN::IndicationDB unknown(logger, "QLN_NoSuchIndication");
    EXPECT_NE(unknown.getRecord(2, got), 0);
    EXPECT_NE(log().find("has no class QLN_NoSuchIndication"), std::string::npos);
}
