#include "FrameworkConfig.h"
#include "ScopedEnv.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <stdexcept>

using QLN::FrameworkConfig;

namespace {

std::string errorOf(std::string const& key) {
    try {
        FrameworkConfig::get(key);
    } catch (std::runtime_error const& e) {
        return e.what();
    }
    return "";
}

} // namespace

// Faults: the file is ignored, the environment does not win over it, or a
// missing file is an error instead of the defaults.
TEST(FrameworkConfig, FileValuesAndEnvironmentOverride) {
    TempDir dir;
    ScopedEnv env;
    env.unset("VELDRA_PERFMON");
    env.unset("VELDRA_WORKER_INTERVAL_MS");
    env.unset("VELDRA_LOG_LEVEL");
    env.set("VELDRA_CONFIG",
            dir.write("f.conf", "VELDRA_PERFMON: on\nVELDRA_WORKER_INTERVAL_MS: 250\n"
                                "VELDRA_LOG_LEVEL: warn\nVELDRA_SCENARIO:\n"));
    EXPECT_TRUE(FrameworkConfig::getBool("VELDRA_PERFMON", false));
    EXPECT_EQ(FrameworkConfig::getInt("VELDRA_WORKER_INTERVAL_MS", 0), 250);
    EXPECT_EQ(FrameworkConfig::getString("VELDRA_SCENARIO", "x"), "");
    EXPECT_FALSE(FrameworkConfig::get("VELDRA_HEARTBEAT").has_value());
    EXPECT_FALSE(FrameworkConfig::getBool("VELDRA_HEARTBEAT", false));

    env.set("VELDRA_PERFMON", "No");
    env.set("VELDRA_WORKER_INTERVAL_MS", "40");
    EXPECT_FALSE(FrameworkConfig::getBool("VELDRA_PERFMON", true));
    EXPECT_EQ(FrameworkConfig::getInt("VELDRA_WORKER_INTERVAL_MS", 0), 40);
    EXPECT_EQ(*FrameworkConfig::get("VELDRA_LOG_LEVEL"), "warn");

    env.set("VELDRA_CONFIG", dir.file("absent.conf"));
    EXPECT_EQ(FrameworkConfig::getInt("VELDRA_WORKER_INTERVAL_MS", 7), 40);
    EXPECT_EQ(FrameworkConfig::getString("VELDRA_LOG_LEVEL", "info"), "info");
}

// Fault: a broken file silently gives defaults, or the error does not say where.
TEST(FrameworkConfig, MalformedFileNamesFileAndLine) {
    TempDir dir;
    ScopedEnv env;
    env.unset("VELDRA_PERFMON");
    std::string file = dir.write("bad.conf", "VELDRA_PERFMON: true\nVELDRA_LOG: [unclosed\nX: 1\n");
    env.set("VELDRA_CONFIG", file);
    std::string message = errorOf("VELDRA_PERFMON");
    EXPECT_NE(message.find(file), std::string::npos) << message;
    EXPECT_NE(message.find("line "), std::string::npos) << message;
    // The error stays: a second read must not fall back to defaults.
    EXPECT_EQ(errorOf("VELDRA_PERFMON"), message);

    file = dir.write("nested.conf", "VELDRA_PERFMON: true\nVELDRA_LOG:\n  file: x\n");
    env.set("VELDRA_CONFIG", file);
    message = errorOf("VELDRA_PERFMON");
    EXPECT_NE(message.find("line 3"), std::string::npos) << message;
    EXPECT_NE(message.find("VELDRA_LOG"), std::string::npos) << message;

    env.set("VELDRA_CONFIG", dir.write("list.conf", "- a\n- b\n"));
    EXPECT_NE(errorOf("VELDRA_PERFMON").find("line 1"), std::string::npos);
}

// Fault: a typo in a switch or a number is taken as false or 0.
TEST(FrameworkConfig, BadSwitchOrNumberNamesKey) {
    ScopedEnv env;
    env.set("VELDRA_HEARTBEAT", "maybe");
    env.set("VELDRA_WORKER_STAGGER_MS", "12ms");
    try {
        FrameworkConfig::getBool("VELDRA_HEARTBEAT", false);
        FAIL() << "accepted a bad switch";
    } catch (std::runtime_error const& e) {
        EXPECT_NE(std::string(e.what()).find("VELDRA_HEARTBEAT"), std::string::npos);
    }
    EXPECT_THROW(FrameworkConfig::getInt("VELDRA_WORKER_STAGGER_MS", 0), std::runtime_error);
    env.set("VELDRA_WORKER_STAGGER_MS", "");
    EXPECT_THROW(FrameworkConfig::getInt("VELDRA_WORKER_STAGGER_MS", 0), std::runtime_error);
}
