// The framework's alert object: every setter fills the property of its
// name with the CIM type the MOF declares, and identifiers run.
#include "MWAlertIndication.h"

#include <gtest/gtest.h>

using CmpiCpp::CmpiInstance;

// Catches: a setter that fills the wrong property or type, an identifier
// that does not move or does not match IndicationIdentifier, and an
// instance in the wrong class or namespace.
TEST(MWAlertIndication, SettersFillTheirPropertiesAndIdentifiersRun) {
    Logger logger("test");
    QLN::MWAlertIndication first(logger, "QLN_VeldraIndication", "root/mwq", 1100);
    QLN::MWAlertIndication second(logger, "QLN_VeldraIndication", "root/mwq", 1100);
    EXPECT_EQ(second.getId(), first.getId() + 1);

    first.setAlertingManagedElement("root/mwq:QLN_VDArrayController.DeviceID=\"0\"");
    first.setAlertingElementFormat(2);
    first.setDescription("description");
    first.setEventID("E-1");
    first.setAlertType(5);
    first.setProviderName("QLNVeldra");
    first.setRecommendedActions("Replace it.");
    first.setSystemCreationClassName("QLN_ComputerSystem");
    first.setSummary("summary");
    first.setEventCategory(2);
    first.setProbableCause(16);
    first.setProbableCauseDescription("cause");
    first.setNetworkIPAddress(CmpiCpp::CmpiContext());
    first.setHWLogicalLocation("logical");
    first.setHWPhysicalLocation("physical");
    first.setDeviceControllerLogicalLocation("controller");
    first.setHWFirmwareVersion("firmware");
    first.setHWManufacturer("maker");
    first.setHWSerialNumber("serial");
    first.setDeviceModel("model");

    CmpiInstance const got = first.getInstance();
    EXPECT_EQ(got.getClassName(), CmpiCpp::CmpiName("QLN_VeldraIndication"));
    EXPECT_EQ(got.getPath().getNameSpace(), CmpiCpp::CmpiName("root/mwq"));
    EXPECT_EQ(got.getProperty("IndicationIdentifier").getString(), std::to_string(first.getId()));
    EXPECT_EQ(got.getProperty("IndicationNumber").getType(), CMPI_sint32);
    EXPECT_EQ(got.getProperty("IndicationTime").getType(), CMPI_dateTime);
    for (char const* text :
         {"AlertingManagedElement", "Description", "EventID", "ProviderName",
          "SystemCreationClassName", "Summary", "ProbableCauseDescription", "NetworkIPAddress",
          "HWLogicalLocation", "HWPhysicalLocation", "DeviceControllerLogicalLocation",
          "HWFirmwareVersion", "HWManufacturer", "HWSerialNumber", "DeviceModel"}) {
        EXPECT_EQ(got.getProperty(text).getType(), CMPI_string) << text;
    }
    for (char const* number :
         {"AlertingElementFormat", "AlertType", "EventCategory", "ProbableCause"}) {
        EXPECT_EQ(got.getProperty(number).getType(), CMPI_uint16) << number;
    }
    EXPECT_EQ(got.getProperty("HWSerialNumber").getString(), "serial");
    EXPECT_EQ(got.getProperty("ProbableCause").getUint16(), 16);
    EXPECT_FALSE(got.getProperty("NetworkIPAddress").getString().empty());
    CmpiCpp::CmpiArray const actions = got.getProperty("RecommendedActions").getArray();
    ASSERT_EQ(actions.size(), 1u);
    EXPECT_EQ(actions.getElementAt(0).getString(), "Replace it.");

    // Nothing set is nothing sent.
    EXPECT_FALSE(second.getInstance().hasProperty("Summary"));
}
