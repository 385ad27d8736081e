// The same layout checks compiled as C++, plus calls across the C/C++ seam:
// an object manager in one language calls tables built in the other, and a
// struct returned by value (CMPIStatus, CMPIData) must arrive intact.
#include <gtest/gtest.h>

#include <cstring>

#include "CmpiLayoutC.h"
#include "CmpiLayoutChecks.h"

TEST(CmpiLayout, CAndCxxCompilersAgreeOnSizes) {
    VeldraLayoutFacts const c = veldraLayoutFactsFromC();
    EXPECT_EQ(c.data, sizeof(CMPIData));
    EXPECT_EQ(c.dataValueOffset, offsetof(CMPIData, value));
    EXPECT_EQ(c.value, sizeof(CMPIValue));
    EXPECT_EQ(c.status, sizeof(CMPIStatus));
    EXPECT_EQ(c.broker, sizeof(CMPIBroker));
    EXPECT_EQ(c.brokerFT, sizeof(CMPIBrokerFT));
    EXPECT_EQ(c.brokerEncFT, sizeof(CMPIBrokerEncFT));
    EXPECT_EQ(c.instanceMIFT, sizeof(CMPIInstanceMIFT));
    EXPECT_EQ(c.indicationMIFT, sizeof(CMPIIndicationMIFT));
    EXPECT_EQ(c.arrayFT, sizeof(CMPIArrayFT));
}

TEST(CmpiLayout, CxxCallsTablesBuiltInC) {
    CMPIInstanceMI* mi = veldraCInstanceMI();
    ASSERT_NE(mi, nullptr);
    EXPECT_STREQ(mi->ft->miName, "CLayout");
    EXPECT_EQ(mi->ft->ftVersion, 200);

    CMPIStatus st = mi->ft->getInstance(mi, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(reinterpret_cast<void*>(st.msg), mi->hdl);

    int const before = veldraCCleanupCount();
    st = mi->ft->cleanup(mi, nullptr, 1);
    EXPECT_EQ(st.rc, CMPI_RC_OK);
    EXPECT_EQ(veldraCCleanupCount(), before + 1);

    CMPIArray* ar = veldraCArray();
    CMPIStatus rc{CMPI_RC_ERR_FAILED, nullptr};
    CMPIData d = ar->ft->getElementAt(ar, 7, &rc);
    EXPECT_EQ(rc.rc, CMPI_RC_OK);
    EXPECT_EQ(d.type, CMPI_uint32);
    EXPECT_EQ(d.state, CMPI_goodValue);
    EXPECT_EQ(d.value.uint32, 21u);
}

TEST(CmpiLayout, ArrayCodesCombineWithElementCodes) {
    // Brokers derive an element type by masking the array bit; that only
    // works if no element code uses it.
    CMPIType const elements[] = {
        CMPI_boolean, CMPI_char16, CMPI_real32,   CMPI_real64, CMPI_uint8,   CMPI_uint16,
        CMPI_uint32,  CMPI_uint64, CMPI_sint8,    CMPI_sint16, CMPI_sint32,  CMPI_sint64,
        CMPI_string,  CMPI_chars,  CMPI_dateTime, CMPI_ref,    CMPI_instance};
    for (CMPIType t : elements) {
        EXPECT_EQ(t & CMPI_ARRAY, 0) << t;
        EXPECT_EQ(static_cast<CMPIType>((t | CMPI_ARRAY) & ~CMPI_ARRAY), t);
    }
}
