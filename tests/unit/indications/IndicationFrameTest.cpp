// How the frame fails: no record, a trap that does not go out, a delivery
// the object manager refuses, and text too long for its field.
#include "IndicationTestSupport.h"
#include "QLN_VeldraCntlrIndication.h"
#include "QLN_VeldraIndication.h"

#include "CimError.h"

using namespace Cimom;

namespace {

void sendControllerEvent(Logger& logger, CMPIContext const* context, int event,
                         std::string const& text = "ctl") {
    QLN::QLN_VeldraCntlrIndication(logger, "root/mwq")
        .sendIndication(event, 0, 1, "", text, "", "", "", "ControllerStateChange", 0, "", "",
                        context);
}

class RefusingSink : public IndicationSink {
public:
    void deliver(std::string const&, CimInstance const&) override {
        throw CimError(CMPI_RC_ERR_FAILED, "no listener today");
    }
};

} // namespace

// Catches: a trap sent although the event has no record.
TEST_F(IndicationTest, EventWithoutRecordSendsNothing) {
    sendControllerEvent(logger, context, 9);
    EXPECT_EQ(sink->count(), 0u);
    EXPECT_TRUE(trapRecorder().traps.empty());
    EXPECT_NE(log().find("No DB record for EventID: 9"), std::string::npos) << log();
    EXPECT_EQ(log().find("Send Veldra indication"), std::string::npos);

    // A database that cannot be read is the same to the caller.
    env.set("VELDRA_INDICATION_DB", dir.file("missing.yaml"));
    sendControllerEvent(logger, context, 1);
    EXPECT_EQ(sink->count(), 0u);
    EXPECT_TRUE(trapRecorder().traps.empty());
}

// Catches: a failed trap stopping the indication, and a refused delivery
// escaping to the worker.
TEST_F(IndicationTest, FailuresOfTrapOrDeliveryStayInside) {
    trapRecorder().result = -1;
    sendControllerEvent(logger, context, 1);
    EXPECT_EQ(sink->count(), 1u);
    EXPECT_NE(log().find("Failed sending snmp trap to Tarvo 3015"), std::string::npos) << log();

    trapRecorder().result = 0;
    broker.setIndicationSink(std::make_shared<RefusingSink>());
    EXPECT_NO_THROW(sendControllerEvent(logger, context, 2));
    EXPECT_EQ(trapRecorder().traps.size(), 2u);
    EXPECT_NE(log().find("indication send failure:"), std::string::npos) << log();
    EXPECT_NE(log().find("no listener today"), std::string::npos) << log();
}

// Catches: a text written past the 48-byte field, a cut that drops the
// terminator, and a cut that goes unlogged or shortens the CIM property.
TEST_F(IndicationTest, OverlongTrapTextIsCutToItsField) {
    std::string const longText(60, 'L');
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(12, 0, 0, "", longText, "", "", "", "ControllerCacheStateChange", 0, "", "",
                        context);
    RecordedTrap const sent = trap();
    ASSERT_GE(sent.variables.size(), 3u);
    varbind const& location = sent.variables[2];
    EXPECT_EQ(location.valueLength, 47);
    EXPECT_EQ(valueOf(location), std::string(47, 'L'));
    EXPECT_EQ(text(delivered(), "zrqDaCtrlrHwLocation"), longText);
    EXPECT_NE(log().find("trap variable zrqDaCtrlrHwLocation cut to 47 bytes"), std::string::npos)
        << log();
}
