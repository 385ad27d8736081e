// The object manager's value model: the text forms the server writes and
// reads, and the path/instance rules that matching relies on.
#include <gtest/gtest.h>

#include <functional>

#include "CimError.h"
#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimValue.h"

using namespace Cimom;

namespace {
CMPIrc codeOf(std::function<void()> const& f) {
    try {
        f();
    } catch (CimError const& e) {
        return e.code();
    }
    return CMPI_RC_OK;
}
} // namespace

TEST(CimValue, TextFormsRoundTripPerType) {
    struct {
        CMPIType type;
        char const* in;
        char const* out;
    } const cases[] = {
        {CMPI_boolean, "true", "TRUE"},
        {CMPI_boolean, "FALSE", "FALSE"},
        {CMPI_uint8, "255", "255"},
        {CMPI_uint16, "0x10", "16"},
        {CMPI_uint32, "4294967295", "4294967295"},
        {CMPI_uint64, "18446744073709551615", "18446744073709551615"},
        {CMPI_sint8, "-128", "-128"},
        {CMPI_sint64, "-9223372036854775808", "-9223372036854775808"},
        {CMPI_sint32, "+7", "7"},
        {CMPI_real64, "0.1", "0.1"},
        {CMPI_real32, "1.5", "1.5"},
        {CMPI_char16, "\xc3\xa9", "\xc3\xa9"},
        {CMPI_string, "a <b> & c", "a <b> & c"},
        {CMPI_dateTime, "20261123004312.000000+000", "20261123004312.000000+000"},
        {CMPI_dateTime, "00000001020304.000005:000", "00000001020304.000005:000"},
    };
    for (auto const& c : cases) {
        CimValue const v = CimValue::fromText(c.type, c.in);
        EXPECT_EQ(v.type(), c.type) << c.in;
        EXPECT_EQ(v.toText(), c.out) << c.in;
        EXPECT_EQ(CimValue::fromText(c.type, v.toText()), v) << c.in;
    }
}

TEST(CimValue, BadTextAndOutOfRangeAreInvalidParameter) {
    struct {
        CMPIType type;
        char const* in;
    } const cases[] = {
        {CMPI_uint8, "256"},
        {CMPI_uint32, "-1"},
        {CMPI_uint32, "12abc"},
        {CMPI_uint16, ""},
        {CMPI_sint8, "128"},
        {CMPI_sint64, "--1"},
        {CMPI_boolean, "yes"},
        {CMPI_real64, "1.0x"},
        {CMPI_char16, "ab"},
        {CMPI_dateTime, "2026"},
        {CMPI_dateTime, "20261123004312.000000:001"},
    };
    for (auto const& c : cases) {
        EXPECT_EQ(codeOf([&] { CimValue::fromText(c.type, c.in); }), CMPI_RC_ERR_INVALID_PARAMETER)
            << c.in;
    }
    EXPECT_EQ(codeOf([] { CimValue::unsignedInt(CMPI_uint8, 300); }),
              CMPI_RC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(codeOf([] { CimValue::string("x").asUnsigned(); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(codeOf([] { CimValue::null(CMPI_uint32).asUnsigned(); }), CMPI_RC_ERR_TYPE_MISMATCH);
}

TEST(CimValue, ArraysAndTypeNames) {
    CimValue const a =
        CimValue::array(CMPI_uint16, {CimValue::uint16(2), CimValue(), CimValue::uint16(3)});
    EXPECT_EQ(a.type(), CMPI_uint16A);
    EXPECT_TRUE(a.isArray());
    EXPECT_EQ(a.elementType(), CMPI_uint16);
    ASSERT_EQ(a.elements().size(), 3u);
    EXPECT_TRUE(a.elements()[1].isNull());
    EXPECT_EQ(a.elements()[1].type(), CMPI_uint16);
    EXPECT_EQ(codeOf([] { CimValue::array(CMPI_uint16, {CimValue::string("x")}); }),
              CMPI_RC_ERR_TYPE_MISMATCH);

    EXPECT_EQ(CimValue::typeFromName("UINT32"), CMPI_uint32);
    EXPECT_EQ(CimValue::typeFromName("reference"), CMPI_ref);
    EXPECT_EQ(CimValue::typeFromName("nonsense"), CMPI_null);
    EXPECT_EQ(CimValue::typeName(CMPI_stringA), "string[]");
    EXPECT_EQ(CimValue::typeName(CMPI_dateTime), "datetime");
}

TEST(CimObjectPath, EqualityIgnoresCaseKeyOrderIntegerWidthAndNamespace) {
    CimObjectPath a("root/test", "Test_Disk");
    a.addKey("Name", CimValue::string("d1"));
    a.addKey("Slot", CimValue::uint16(4));
    CimObjectPath b("", "TEST_DISK");
    b.addKey("slot", CimValue::sint64(4));
    b.addKey("NAME", CimValue::string("d1"));
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.hash(), b.hash());

    CimObjectPath c = b;
    c.addKey("Name", CimValue::string("D1")); // replaces in place; values are case-sensitive
    EXPECT_EQ(c.keys().size(), 2u);
    EXPECT_NE(a, c);

    CimObjectPath d = a;
    d.addKey("Extra", CimValue::boolean(true));
    EXPECT_NE(a, d);

    CimObjectPath neg("", "Test_Disk");
    neg.addKey("Name", CimValue::string("d1"));
    neg.addKey("Slot", CimValue::sint64(-4));
    EXPECT_NE(a, neg);
}

TEST(CimObjectPath, ReferenceKeysCompareAsPaths) {
    CimObjectPath disk("root/test", "Test_Disk");
    disk.addKey("Name", CimValue::string("d1"));
    CimObjectPath diskOtherSpelling("", "test_disk");
    diskOtherSpelling.addKey("name", CimValue::string("d1"));

    CimObjectPath assoc1("root/test", "Test_Member");
    assoc1.addKey("Part", CimValue::reference(disk));
    CimObjectPath assoc2("root/test", "Test_Member");
    assoc2.addKey("Part", CimValue::reference(diskOtherSpelling));
    EXPECT_EQ(assoc1, assoc2);
}

TEST(CimObjectPath, TextRoundTripAndMalformedText) {
    CimObjectPath p("root/test", "Test_Disk");
    p.setHost("h1");
    p.addKey("Name", CimValue::string("a \"quoted\" \\ name"));
    p.addKey("Slot", CimValue::uint32(3));
    p.addKey("Spare", CimValue::boolean(false));
    std::string const text = p.toString();
    EXPECT_EQ(text,
              "//h1/root/test:Test_Disk.Name=\"a \\\"quoted\\\" \\\\ name\",Slot=3,Spare=FALSE");
    CimObjectPath const q = CimObjectPath::parse(text);
    EXPECT_EQ(q, p);
    EXPECT_EQ(q.nameSpace(), "root/test");
    EXPECT_EQ(q.host(), "h1");

    for (char const* bad :
         {"", "root/test:", "Cls.=1", "Cls.K=\"open", "Cls.K=1;", "Cls.K=abc", "//h"}) {
        EXPECT_EQ(codeOf([&] { CimObjectPath::parse(bad); }), CMPI_RC_ERR_INVALID_PARAMETER) << bad;
    }
}

TEST(CimInstance, PropertiesKeepOrderReplaceInPlaceAndFilter) {
    CimInstance inst(CimObjectPath("root/test", "Test_Disk"));
    inst.setProperty("Name", CimValue::string("d1"));
    inst.setProperty("Size", CimValue::uint64(10));
    inst.setProperty("Status", CimValue::null(CMPI_uint16));
    inst.setProperty("size", CimValue::uint64(20));
    ASSERT_EQ(inst.properties().size(), 3u);
    EXPECT_EQ(inst.properties()[1].name, "Size");
    EXPECT_EQ(inst.properties()[1].value.asUnsigned(), 20u);
    EXPECT_EQ(inst.property("STATUS")->type(), CMPI_uint16);
    EXPECT_TRUE(inst.property("STATUS")->isNull());

    std::vector<std::string> const list{"status", "NAME", "Missing"};
    CimInstance const f = inst.filtered(&list);
    ASSERT_EQ(f.properties().size(), 2u);
    EXPECT_EQ(f.properties()[0].name, "Name");
    EXPECT_EQ(f.properties()[1].name, "Status");
    std::vector<std::string> const none;
    EXPECT_TRUE(inst.filtered(&none).properties().empty());
    EXPECT_EQ(inst.filtered(nullptr), inst);

    EXPECT_TRUE(inst.removeProperty("name"));
    EXPECT_FALSE(inst.removeProperty("name"));
}

TEST(CimError, NamesEveryStatusCodeOnceWhateverItsOrigin) {
    EXPECT_STREQ(CimError::codeName(CMPI_RC_ERR_NOT_FOUND), "CIM_ERR_NOT_FOUND");
    EXPECT_STREQ(CimError::codeName(CMPI_RC_ERR_METHOD_NOT_FOUND), "CIM_ERR_METHOD_NOT_FOUND");
    EXPECT_STREQ(CimError::codeName(21), "CIM_ERR_INVALID_ENUMERATION_CONTEXT");
    EXPECT_STREQ(CimError::codeName(28), "CIM_ERR_SERVER_IS_SHUTTING_DOWN");
    EXPECT_STREQ(CimError::codeName(CMPI_RC_ERROR_SYSTEM), "CMPI_RC_ERROR_SYSTEM");
    for (int undefined : {0, 18, 19, 29, 250, -1})
        EXPECT_STREQ(CimError::codeName(undefined), "CIM_ERR_FAILED") << undefined;
    EXPECT_STREQ(CimError(CMPI_RC_ERR_ACCESS_DENIED, "no").what(), "CIM_ERR_ACCESS_DENIED: no");
}
