// Trap pass-through against a real snmptrapd: what a trap receiver sees of
// the varbind records, and how the sender fails.
#include "MPMRASMIF.h"
#include "ScopedEnv.h"
#include "TempDir.h"
#include "TrapReceiver.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <sstream>

namespace {

varbind number(std::vector<std::uint32_t> const& oid, std::int32_t value) {
    varbind v{};
    v.type = varbindNumber;
    v.oidLength = static_cast<std::int32_t>(oid.size());
    std::copy(oid.begin(), oid.end(), v.oid);
    v.valueLength = 4;
    std::memcpy(v.value, &value, sizeof value);
    return v;
}

varbind text(std::vector<std::uint32_t> const& oid, std::string const& value) {
    varbind v{};
    v.type = varbindText;
    v.oidLength = static_cast<std::int32_t>(oid.size());
    std::copy(oid.begin(), oid.end(), v.oid);
    v.valueLength = static_cast<std::int32_t>(value.size());
    std::memcpy(v.value, value.c_str(), std::min(value.size() + 1, sizeof v.value));
    return v;
}

class MPMRASMIFTest : public ::testing::Test {
protected:
    void SetUp() override {
        env.set("VELDRA_LOG", dir.file("log"));
        env.unset("VELDRA_TRAP_COMMUNITY");
    }
    std::string log() const {
        std::ifstream in(dir.file("log"));
        std::stringstream t;
        t << in.rdbuf();
        return t.str();
    }
    TempDir dir;
    ScopedEnv env;
    Logger logger{"test"};
};

} // namespace

// Catches: the two leading SNMPv2 variables missing or out of place, a wrong
// trap OID, variables reordered or mistyped, a 16-bit number read as 32
// bits, and a destination of the list left out.
TEST_F(MPMRASMIFTest, ReceiverSeesTheTrapWithItsVariablesInOrder) {
    TrapReceiver receiver;
    env.set("VELDRA_TRAP_DESTINATIONS", receiver.destination() + " , " + receiver.destination());
    varbind code = number({1, 3, 6, 1, 4, 1, 57913, 3, 2, 5, 1, 1, 55, 0, 65539}, 0);
    std::uint16_t const failureCode = 0x1234;
    std::memcpy(code.value, &failureCode, sizeof failureCode);
    code.value[2] = 0x7f; // beyond the two bytes that count
    code.valueLength = 2;
    std::vector<varbind> const variables = {
        number({1, 3, 6, 1, 4, 1, 57913, 11, 2, 11, 1}, 16),
        text({1, 3, 6, 1, 2, 1, 1, 5}, "veldra-host"),
        code,
        number({1, 3, 6, 1, 4, 1, 57913, 3, 2, 2, 1, 1, 5, 3}, -7),
    };
    MPMRASMIF sender(logger);
    ASSERT_EQ(sender.sentSnmpTrapPassThrough(3046, variables), 0) << log();

    auto const traps = receiver.waitFor(2);
    ASSERT_EQ(traps.size(), 2u) << receiver.output();
    for (auto const& trap : traps) {
        ASSERT_EQ(trap.size(), 6u) << receiver.output();
        EXPECT_EQ(trap[0].oid, ".1.3.6.1.2.1.1.3.0");
        EXPECT_EQ(trap[0].type, "Timeticks");
        EXPECT_EQ(trap[1].oid, ".1.3.6.1.6.3.1.1.4.1.0");
        EXPECT_EQ(trap[1].value, ".1.3.6.1.4.1.57913.0.3046");
        EXPECT_EQ(trap[2].oid, ".1.3.6.1.4.1.57913.11.2.11.1");
        EXPECT_EQ(trap[2].type, "INTEGER");
        EXPECT_EQ(trap[2].value, "16");
        EXPECT_EQ(trap[3].oid, ".1.3.6.1.2.1.1.5");
        EXPECT_EQ(trap[3].type, "STRING");
        EXPECT_EQ(trap[3].value, "veldra-host");
        EXPECT_EQ(trap[4].oid, ".1.3.6.1.4.1.57913.3.2.5.1.1.55.0.65539");
        EXPECT_EQ(trap[4].value, std::to_string(0x1234));
        EXPECT_EQ(trap[5].value, "-7");
    }
}

// Catches: a text read past its field when the record claims more than the
// field holds or lacks its terminator.
TEST_F(MPMRASMIFTest, TextNeverReadsPastItsField) {
    TrapReceiver receiver;
    env.set("VELDRA_TRAP_DESTINATIONS", receiver.destination());
    // The record is followed in memory by another whose text must not leak in.
    std::vector<varbind> variables = {text({1, 3, 6, 1, 2, 1, 1, 5}, ""),
                                      text({1, 3, 6, 1, 2, 1, 1, 5}, "LEAK")};
    std::memset(variables[0].value, 'x', sizeof variables[0].value);
    variables[0].valueLength = 200;
    ASSERT_EQ(MPMRASMIF(logger).sentSnmpTrapPassThrough(8031, variables), 0) << log();
    auto const traps = receiver.waitFor(1);
    ASSERT_EQ(traps.size(), 1u) << receiver.output();
    ASSERT_EQ(traps[0].size(), 4u);
    EXPECT_EQ(traps[0][2].value, std::string(48, 'x'));
}

// Catches: a call reported as sent when nothing could be, a malformed
// record sent anyway, and failures that leave no word in the log.
TEST_F(MPMRASMIFTest, FailuresAreReportedAndSendNothing) {
    std::vector<varbind> const fine = {number({1, 3, 6, 1, 4, 1, 57913, 11, 2, 11, 1}, 8)};
    env.set("VELDRA_TRAP_DESTINATIONS", "");
    EXPECT_NE(MPMRASMIF(logger).sentSnmpTrapPassThrough(3015, fine), 0);
    EXPECT_NE(log().find("no VELDRA_TRAP_DESTINATIONS configured"), std::string::npos) << log();

    TrapReceiver receiver;
    env.set("VELDRA_TRAP_DESTINATIONS", "127.0.0.1:notaport," + receiver.destination());
    EXPECT_NE(MPMRASMIF(logger).sentSnmpTrapPassThrough(3015, fine), 0);
    EXPECT_NE(log().find("not sent to \"127.0.0.1:notaport\""), std::string::npos) << log();
    // The good destination of the list still gets it.
    EXPECT_EQ(receiver.waitFor(1).size(), 1u);

    env.set("VELDRA_TRAP_DESTINATIONS", receiver.destination());
    varbind tooLong = fine[0];
    tooLong.oidLength = 25;
    varbind badType = fine[0];
    badType.type = 3;
    varbind badWidth = fine[0];
    badWidth.valueLength = 8;
    for (varbind const& bad : {tooLong, badType, badWidth}) {
        EXPECT_NE(MPMRASMIF(logger).sentSnmpTrapPassThrough(3015, {fine[0], bad}), 0);
    }
    EXPECT_NE(log().find("variable 1 is malformed: OID length 25"), std::string::npos) << log();
    EXPECT_NE(log().find("unknown type 3"), std::string::npos) << log();
    EXPECT_NE(log().find("a number of 8 bytes"), std::string::npos) << log();
    // Give stray datagrams time to arrive: only the one good trap came.
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_EQ(receiver.received().size(), 1u) << receiver.output();
}
