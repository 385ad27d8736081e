#include "InstanceXml.h"
#include "CimOperationError.h"
#include "ClassRepository.h"

#include <gtest/gtest.h>

using namespace Cimom;

namespace {

char const* mof = R"MOF(
#pragma namespace("root/mwq")
class QLN_Disk : CIM_DiskDrive {
    [Key] string DeviceID;
    [Key] uint16 Bay;
    uint64 Capacity;
    uint16 Status[];
    uint32 Identify([IN] uint32 Duration, [IN] string Tags[]);
};
[Association] class QLN_DiskLink { [Key] QLN_Disk REF Antecedent; [Key] QLN_Disk REF Dependent; };
)MOF";

std::string body(CimXmlWriter const& w) {
    std::string const& s = w.str();
    return s.substr(s.find('\n') + 1);
}

pugi::xml_node parse(pugi::xml_document& doc, std::string const& text) {
    EXPECT_TRUE(doc.load_string(text.c_str())) << text;
    return doc.first_child();
}

class InstanceXmlTest : public ::testing::Test {
protected:
    void SetUp() override {
        repo.loadText(mof, "t.mof", "root/mwq");
        repo.resolve();
    }
    ClassRepository repo;
};

} // namespace

// Catches key values handed to providers with the wrong CMPI type: keys take
// the MOF's type, whatever VALUETYPE the client chose.
TEST_F(InstanceXmlTest, InstanceNameKeysAreTypedFromTheMof) {
    pugi::xml_document doc;
    auto node = parse(
        doc, "<INSTANCENAME CLASSNAME=\"qln_disk\">"
             "<KEYBINDING NAME=\"DeviceID\"><KEYVALUE VALUETYPE=\"string\">d &amp; "
             "1</KEYVALUE></KEYBINDING>"
             "<KEYBINDING NAME=\"bay\"><KEYVALUE VALUETYPE=\"numeric\">7</KEYVALUE></KEYBINDING>"
             "</INSTANCENAME>");
    CimObjectPath path = InstanceXml::readInstanceName(node, "root/mwq", &repo);
    EXPECT_EQ(path.nameSpace(), "root/mwq");
    ASSERT_NE(path.key("DeviceID"), nullptr);
    EXPECT_EQ(path.key("DeviceID")->asString(), "d & 1");
    ASSERT_NE(path.key("Bay"), nullptr);
    EXPECT_EQ(path.key("Bay")->type(), CMPI_uint16);
    EXPECT_EQ(path.key("Bay")->asUnsigned(), 7u);

    // A class we do not hold still works, typed from VALUETYPE.
    auto other = parse(
        doc,
        "<INSTANCENAME CLASSNAME=\"X\"><KEYBINDING NAME=\"N\"><KEYVALUE VALUETYPE=\"numeric\">-3"
        "</KEYVALUE></KEYBINDING><KEYBINDING NAME=\"B\"><KEYVALUE VALUETYPE=\"boolean\">TRUE"
        "</KEYVALUE></KEYBINDING></INSTANCENAME>");
    CimObjectPath x = InstanceXml::readInstanceName(other, "root/mwq", &repo);
    EXPECT_EQ(x.key("N")->asSigned(), -3);
    EXPECT_TRUE(x.key("B")->asBoolean());
}

// Catches malformed paths reaching a provider instead of a clear error, and
// a request of endless keys costing the server quadratic work.
TEST_F(InstanceXmlTest, BadInstanceNamesAreInvalidParameters) {
    auto manyKeys = [](int n) {
        std::string text = "<INSTANCENAME CLASSNAME=\"X\">";
        for (int i = 0; i < n; ++i)
            text += "<KEYBINDING NAME=\"k" + std::to_string(i) +
                    "\"><KEYVALUE>v</KEYVALUE></KEYBINDING>";
        return text + "</INSTANCENAME>";
    };
    pugi::xml_document most;
    EXPECT_EQ(
        InstanceXml::readInstanceName(parse(most, manyKeys(64)), "root/mwq", &repo).keys().size(),
        64u);

    std::string const bad[] = {
        "<INSTANCENAME><KEYBINDING NAME=\"A\"><KEYVALUE>1</KEYVALUE></KEYBINDING></INSTANCENAME>",
        "<INSTANCENAME CLASSNAME=\"QLN_Disk\"><KEYBINDING NAME=\"Bay\"><KEYVALUE "
        "VALUETYPE=\"numeric\">seven"
        "</KEYVALUE></KEYBINDING></INSTANCENAME>",
        "<INSTANCENAME CLASSNAME=\"QLN_Disk\"><KEYBINDING "
        "NAME=\"Bay\"><KEYVALUE>70000</KEYVALUE></KEYBINDING>"
        "</INSTANCENAME>",
        "<INSTANCENAME "
        "CLASSNAME=\"QLN_Disk\"><KEYBINDING><KEYVALUE>1</KEYVALUE></KEYBINDING></INSTANCENAME>",
        "<INSTANCENAME CLASSNAME=\"QLN_Disk\"><KEYBINDING NAME=\"A\"></KEYBINDING></INSTANCENAME>",
        "<INSTANCENAME CLASSNAME=\"X\"><KEYBINDING NAME=\"A\"><KEYVALUE "
        "VALUETYPE=\"odd\">1</KEYVALUE></KEYBINDING>"
        "</INSTANCENAME>",
        "<CLASSNAME NAME=\"QLN_Disk\"/>",
        manyKeys(65),
    };
    for (std::string const& text : bad) {
        pugi::xml_document doc;
        auto node = parse(doc, text);
        try {
            InstanceXml::readInstanceName(node, "root/mwq", &repo);
            ADD_FAILURE() << "accepted " << text;
        } catch (CimOperationError const& e) {
            EXPECT_EQ(e.code(), CimOperationError::invalidParameter) << text;
        }
    }
}

// Catches the untyped-argument fault: wbemcli sends PARAMVALUE without a
// type, and the provider must still receive a uint32.
TEST_F(InstanceXmlTest, ParamValuesTakeTheDeclaredType) {
    pugi::xml_document doc;
    auto duration = parse(doc, "<PARAMVALUE NAME=\"Duration\"><VALUE>30</VALUE></PARAMVALUE>");
    CimValue v = InstanceXml::readParamValue(duration, CMPI_uint32, "root/mwq", &repo);
    EXPECT_EQ(v.type(), CMPI_uint32);
    EXPECT_EQ(v.asUnsigned(), 30u);

    pugi::xml_document doc2;
    auto tags = parse(
        doc2, "<PARAMVALUE NAME=\"Tags\"><VALUE.ARRAY><VALUE>a</VALUE><VALUE.NULL></VALUE.NULL>"
              "</VALUE.ARRAY></PARAMVALUE>");
    CimValue t = InstanceXml::readParamValue(tags, CMPI_stringA, "root/mwq", &repo);
    ASSERT_TRUE(t.isArray());
    ASSERT_EQ(t.elements().size(), 2u);
    EXPECT_TRUE(t.elements()[1].isNull());

    pugi::xml_document doc3;
    auto untyped = parse(doc3, "<PARAMVALUE NAME=\"Extra\"><VALUE>x</VALUE></PARAMVALUE>");
    EXPECT_EQ(InstanceXml::readParamValue(untyped, CMPI_null, "root/mwq", &repo).type(),
              CMPI_string);

    pugi::xml_document doc4;
    auto negative = parse(doc4, "<PARAMVALUE NAME=\"Duration\"><VALUE>-1</VALUE></PARAMVALUE>");
    EXPECT_THROW(InstanceXml::readParamValue(negative, CMPI_uint32, "root/mwq", &repo),
                 CimOperationError);

    pugi::xml_document doc5;
    auto ref = parse(
        doc5, "<PARAMVALUE NAME=\"R\"><VALUE.REFERENCE><LOCALINSTANCEPATH><LOCALNAMESPACEPATH>"
              "<NAMESPACE NAME=\"root\"/><NAMESPACE NAME=\"cimv2\"/></LOCALNAMESPACEPATH>"
              "<INSTANCENAME CLASSNAME=\"Y\"></INSTANCENAME></LOCALINSTANCEPATH></VALUE.REFERENCE>"
              "</PARAMVALUE>");
    CimValue r = InstanceXml::readParamValue(ref, CMPI_null, "root/mwq", &repo);
    EXPECT_EQ(r.asReference().nameSpace(), "root/cimv2");
}

// Catches output the client refuses: self-closed VALUE or PROPERTY for nulls,
// references without a full INSTANCEPATH, numeric keys marked as strings.
TEST_F(InstanceXmlTest, WritesInstancesInTheClientsShape) {
    CimObjectPath disk("root/mwq", "QLN_Disk");
    disk.addKey("DeviceID", CimValue::string("d<1>"));
    disk.addKey("Bay", CimValue::uint16(3));
    CimObjectPath link("root/mwq", "QLN_DiskLink");
    link.addKey("Antecedent", CimValue::reference(disk));

    CimInstance instance(disk);
    instance.setProperty("DeviceID", CimValue::string("d<1>"));
    instance.setProperty("Capacity", CimValue::null(CMPI_uint64));
    instance.setProperty("Status",
                         CimValue::array(CMPI_uint16, {CimValue::uint16(2), CimValue::uint16(3)}));
    instance.setProperty("Unknown", CimValue::null(CMPI_null));

    CimXmlWriter w;
    InstanceXml::InstanceOptions options;
    options.cls = repo.find("root/mwq", "QLN_Disk");
    InstanceXml::writeInstance(w, instance, options);
    EXPECT_EQ(body(w),
              "<INSTANCE CLASSNAME=\"QLN_Disk\">"
              "<PROPERTY NAME=\"DeviceID\" TYPE=\"string\"><VALUE>d&lt;1&gt;</VALUE></PROPERTY>"
              "<PROPERTY NAME=\"Capacity\" TYPE=\"uint64\"></PROPERTY>"
              "<PROPERTY.ARRAY NAME=\"Status\" "
              "TYPE=\"uint16\"><VALUE.ARRAY><VALUE>2</VALUE><VALUE>3</VALUE>"
              "</VALUE.ARRAY></PROPERTY.ARRAY>"
              "<PROPERTY NAME=\"Unknown\" TYPE=\"string\"></PROPERTY>"
              "</INSTANCE>");

    CimXmlWriter filtered;
    options.propertyList = std::set<std::string>{"capacity"};
    options.includeClassOrigin = true;
    InstanceXml::writeInstance(filtered, instance, options);
    EXPECT_EQ(body(filtered),
              "<INSTANCE CLASSNAME=\"QLN_Disk\"><PROPERTY NAME=\"Capacity\" TYPE=\"uint64\" "
              "CLASSORIGIN=\"QLN_Disk\"></PROPERTY></INSTANCE>");

    CimXmlWriter path;
    InstanceXml::writeInstancePath(path, link, "localhost:5988");
    EXPECT_EQ(
        body(path),
        "<INSTANCEPATH><NAMESPACEPATH><HOST>localhost:5988</HOST><LOCALNAMESPACEPATH>"
        "<NAMESPACE NAME=\"root\"/><NAMESPACE NAME=\"mwq\"/></LOCALNAMESPACEPATH></NAMESPACEPATH>"
        "<INSTANCENAME CLASSNAME=\"QLN_DiskLink\"><KEYBINDING NAME=\"Antecedent\"><VALUE.REFERENCE>"
        "<LOCALINSTANCEPATH><LOCALNAMESPACEPATH><NAMESPACE NAME=\"root\"/>"
        "<NAMESPACE NAME=\"mwq\"/></LOCALNAMESPACEPATH>"
        "<INSTANCENAME CLASSNAME=\"QLN_Disk\"><KEYBINDING NAME=\"DeviceID\">"
        "<KEYVALUE VALUETYPE=\"string\">d&lt;1&gt;</KEYVALUE></KEYBINDING>"
        "<KEYBINDING NAME=\"Bay\"><KEYVALUE VALUETYPE=\"numeric\">3</KEYVALUE></KEYBINDING>"
        "</INSTANCENAME></LOCALINSTANCEPATH></VALUE.REFERENCE></KEYBINDING></INSTANCENAME></"
        "INSTANCEPATH>");

    // What we write, we read back: the reference key survives a round trip.
    pugi::xml_document doc;
    auto node = parse(doc, body(path));
    CimObjectPath back =
        InstanceXml::readInstanceName(node.child("INSTANCENAME"), "root/mwq", &repo);
    EXPECT_EQ(back, link);
}

// Catches: a part sent before its last element was closed, a part taken
// back after it went out, or text lost between the parts and the rest.
TEST(CimXmlWriterParts, PartsGoOnlyAtCommitsAndCannotBeTakenBack) {
    std::string sent;
    CimXmlWriter w(false);
    w.sendPartsTo([&sent](std::string&& part) { sent += "|" + part; }, 20);
    w.open("IRETURNVALUE");
    CimXmlWriter::Mark const first = w.mark();
    w.element("VALUE", "one");
    w.commit(); // 32 characters written: they go
    EXPECT_EQ(sent, "|<IRETURNVALUE><VALUE>one</VALUE>");
    EXPECT_FALSE(w.canRollback(first));
    EXPECT_THROW(w.rollback(first), std::logic_error);
    CimXmlWriter::Mark const second = w.mark();
    w.element("VALUE", "two");
    w.commit(); // 18 more: not yet
    w.rollback(second);
    w.element("VALUE", "three");
    w.close();
    EXPECT_EQ(sent + "|" + w.take(),
              "|<IRETURNVALUE><VALUE>one</VALUE>|<VALUE>three</VALUE></IRETURNVALUE>");
    EXPECT_EQ(w.sent(), 32u);
}
