#include "QLNUtil.h"
#include "ScopedEnv.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using QLN::QLNUtil;

// Faults: a suffix or leading zero breaks parsing, a malformed version is
// accepted, or a failed parse overwrites the caller's value.
TEST(QLNUtil, VersionParsing) {
    struct Case {
        char const* text;
        bool valid;
        int major, minor, revision; // -1: that part is missing
    };
    Case const cases[] = {
        {"5.2.0-1234", true, 5, 2, 0},    {"2.10.03", true, 2, 10, 3},
        {" 7.1 ", true, 7, 1, -1},        {"1.2.3 build 7", true, 1, 2, 3},
        {"65535.0.1", true, 65535, 0, 1}, {"", false, -1, -1, -1},
        {"5", false, -1, -1, -1},         {"5..2", false, -1, -1, -1},
        {"v5.2", false, -1, -1, -1},      {"5.2.", false, -1, -1, -1},
        {"5.2.0.1", false, -1, -1, -1},   {"65536.1", false, -1, -1, -1},
        {"5.2-", false, -1, -1, -1},      {"5.x", false, -1, -1, -1},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(QLNUtil::validateVersion(c.text), c.valid);
        unsigned short value = 4242;
        EXPECT_EQ(QLNUtil::stringVersionToMajor(c.text, value), c.major >= 0);
        EXPECT_EQ(value, c.major >= 0 ? c.major : 4242);
        value = 4242;
        EXPECT_EQ(QLNUtil::stringVersionToMinor(c.text, value), c.minor >= 0);
        EXPECT_EQ(value, c.minor >= 0 ? c.minor : 4242);
        value = 4242;
        EXPECT_EQ(QLNUtil::stringVersionToRevision(c.text, value), c.revision >= 0);
        EXPECT_EQ(value, c.revision >= 0 ? c.revision : 4242);
    }
}

// Fault: the ranking lets unknown hide degraded, or OK hide unknown.
TEST(QLNUtil, UpdateWorstRanking) {
    using namespace QLN;
    operationalStatus const byRank[] = {OPERATIONAL_STATUS_OK, OPERATIONAL_STATUS_UNKNOWN,
                                        OPERATIONAL_STATUS_DEGRADED, OPERATIONAL_STATUS_FAILED};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            operationalStatus worse = byRank[i > j ? i : j];
            EXPECT_EQ(updateWorst(byRank[i], byRank[j]), worse) << i << " " << j;
        }
    }
    // Folding as the group status does, from 2.
    int status = 2;
    for (int each : {2, 3, 2}) {
        status = updateWorst(status, each);
    }
    EXPECT_EQ(status, 3);
    EXPECT_EQ(updateWorst(2, 5), 0); // not a status of ours: unknown
    EXPECT_EQ(updateWorst(6, 0), 6);
}

// Faults: host paths with other keys than documented, a host name override
// ignored, or switches that do not follow the configuration.
TEST(QLNUtil, HostPathsAndSwitches) {
    ScopedEnv env;
    env.set("VELDRA_HOSTNAME", "array-host-7");
    env.set("VELDRA_PERFMON", "yes");
    env.set("VELDRA_HEARTBEAT", "0");
    EXPECT_EQ(QLNUtil::getHostName(), "array-host-7");
    EXPECT_TRUE(QLNUtil::PerfmonEnabled());
    EXPECT_FALSE(QLNUtil::HeartBeatIndicationsEnabled());

    auto system = QLNUtil::getComputerSystemPath();
    EXPECT_EQ(system.getNameSpace().str(), "root/mwq");
    EXPECT_EQ(system.getClassName().str(), "QLN_ComputerSystem");
    EXPECT_EQ(system.getHost().str(), "array-host-7");
    EXPECT_EQ(system.getKeyCount(), 2u);
    EXPECT_EQ(system.getKey("CreationClassName").getString(), "QLN_ComputerSystem");
    EXPECT_EQ(system.getKey("Name").getString(), "array-host-7");
    auto chassis = QLNUtil::getChassisPath();
    EXPECT_EQ(chassis.getClassName().str(), "QLN_Chassis");
    EXPECT_EQ(chassis.getKey("Tag").getString(), "array-host-7");
    EXPECT_EQ(chassis.getKey("CreationClassName").getString(), "QLN_Chassis");

    env.unset("VELDRA_HOSTNAME");
    EXPECT_FALSE(QLNUtil::getHostName().empty());
    EXPECT_NE(QLNUtil::getHostName(), "array-host-7");

    TempDir dir;
    env.unset("VELDRA_PERFMON");
    env.set("VELDRA_CONFIG", dir.write("bad.conf", "VELDRA_PERFMON: [\n"));
    EXPECT_THROW(QLNUtil::PerfmonEnabled(), std::runtime_error);
    // Every path asks for the host name: it must not fail with the file.
    EXPECT_FALSE(QLNUtil::getHostName().empty());
}
