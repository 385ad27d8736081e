#include "Logger.h"
#include "ScopedEnv.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <vector>

namespace {

std::vector<std::string> linesOf(std::string const& file) {
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

// Faults: the level filter lets info through, the file is truncated instead of
// appended, a line lacks time, level or the whole source chain, or a long
// message is cut.
TEST(Logger, FileDestinationLevelAndSourceChain) {
    TempDir dir;
    ScopedEnv env;
    std::string file = dir.write("veldra.log", "earlier line\n");
    env.set("VELDRA_LOG", file);
    env.set("VELDRA_LOG_LEVEL", "warn");

    Logger root("QLNVeldra");
    Logger child(root);
    child.appendLogSource(":");
    child.appendLogSource("QLN_VDArraySystem");
    child.info("filtered %d", 1);
    child.warn("status %s (%d)", "Degraded", 3);
    root.error("plain");
    std::string big(3000, 'x'); // past any fixed formatting buffer
    root.info("<%s>", big.c_str());
    root.warn("<%s>", big.c_str());

    auto lines = linesOf(file);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "earlier line");
    std::regex shape(
        R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z WARN QLNVeldra:QLN_VDArraySystem: status Degraded \(3\)$)");
    EXPECT_TRUE(std::regex_match(lines[1], shape)) << lines[1];
    EXPECT_NE(lines[2].find(" ERROR QLNVeldra: plain"), std::string::npos) << lines[2];
    EXPECT_NE(lines[3].find("WARN QLNVeldra: <" + big + ">"), std::string::npos);
    EXPECT_EQ(root.getLogSource(), "QLNVeldra");
}

// Fault: an unwritable log file or a broken configuration crashes the caller
// instead of falling back to stderr.
TEST(Logger, UnusableSettingsFallBackToStderr) {
    TempDir dir;
    ScopedEnv env;
    env.set("VELDRA_LOG", dir.file("no/such/dir/x.log"));
    env.set("VELDRA_LOG_LEVEL", "info");
    testing::internal::CaptureStderr();
    Logger("L").info("still here");
    std::string err = testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find("cannot open log file"), std::string::npos) << err;
    EXPECT_NE(err.find("INFO L: still here"), std::string::npos) << err;

    env.unset("VELDRA_LOG");
    env.unset("VELDRA_LOG_LEVEL");
    env.set("VELDRA_CONFIG", dir.write("bad.conf", "a: [\n"));
    testing::internal::CaptureStderr();
    Logger("L").warn("after bad config");
    err = testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find("log settings unusable"), std::string::npos) << err;
    EXPECT_NE(err.find("WARN L: after bad config"), std::string::npos) << err;
}
