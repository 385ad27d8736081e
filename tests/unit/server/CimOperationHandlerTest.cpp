#include "CimOperationHandler.h"
#include "CimOperationError.h"
#include "ClassRepository.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

using namespace Cimom;

// Table-driven protocol checks: each row pairs a request with the exact
// status, CIMError header and body the client must see. The instance side is
// absent here; those operations are covered end to end against a provider.
namespace {

char const* testMof = R"MOF(
#pragma namespace("root/mwq")
[Description("A <test> & disk")]
class QLN_Disk : CIM_DiskDrive {
    [Key] string DeviceID;
    uint16 Status[] = {2};
    uint32 Identify([IN] uint32 Duration);
};
class QLN_BigDisk : QLN_Disk { boolean Big = true; };
)MOF";

std::string envelope(std::string const& call) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\" ?><CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\">"
           "<MESSAGE ID=\"4711\" PROTOCOLVERSION=\"1.0\"><SIMPLEREQ>" +
           call + "</SIMPLEREQ></MESSAGE></CIM>";
}

std::string imethod(std::string const& name, std::string const& params,
                    std::string const& ns = "root/mwq") {
    std::string path;
    size_t start = 0;
    while (true) {
        size_t slash = ns.find('/', start);
        path += "<NAMESPACE NAME=\"" + ns.substr(start, slash - start) + "\"></NAMESPACE>";
        if (slash == std::string::npos)
            break;
        start = slash + 1;
    }
    return envelope("<IMETHODCALL NAME=\"" + name + "\"><LOCALNAMESPACEPATH>" + path +
                    "</LOCALNAMESPACEPATH>" + params + "</IMETHODCALL>");
}

std::string const head =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\">"
    "<MESSAGE ID=\"4711\" PROTOCOLVERSION=\"1.0\"><SIMPLERSP>";
std::string const tail = "</SIMPLERSP></MESSAGE></CIM>";

std::string iresponse(std::string const& name, std::string const& inner) {
    return head + "<IMETHODRESPONSE NAME=\"" + name + "\">" + inner + "</IMETHODRESPONSE>" + tail;
}

std::string error(std::string const& name, int code, std::string const& description) {
    return iresponse(name, "<ERROR CODE=\"" + std::to_string(code) + "\" DESCRIPTION=\"" +
                               description + "\"/>");
}

std::string const className =
    "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"QLN_Disk\"/></IPARAMVALUE>";
std::string const deep = "<IPARAMVALUE NAME=\"DeepInheritance\"><VALUE>TRUE</VALUE></IPARAMVALUE>";

struct Row {
    char const* name;
    std::string method; // CIMMethod header; "-" leaves it out
    std::string object; // CIMObject header; "-" leaves it out
    std::string body;
    int status;
    std::string cimError;
    std::string response; // exact body for 200, a fragment otherwise
    std::string operation = "MethodCall";
    std::string protocolVersion = "1.0";
};

class HandlerTable : public ::testing::Test {
protected:
    void SetUp() override {
        repo.loadText(testMof, "test.mof", "root/mwq");
        repo.resolve();
    }
    ClassRepository repo;
};

} // namespace

TEST_F(HandlerTable, RequestsAndExactResponses) {
    std::string deepDoc;
    for (int i = 0; i < 40; ++i)
        deepDoc += "<A>";
    for (int i = 0; i < 40; ++i)
        deepDoc += "</A>";
    // Parameters are capped so that a body full of them cannot cost quadratic work.
    auto manyParams = [](int n) {
        std::string params;
        for (int i = 0; i < n; ++i)
            params += "<IPARAMVALUE NAME=\"p" + std::to_string(i) + "\"/>";
        return params;
    };

    Row const rows[] = {
        {"ecn all classes, deep", "EnumerateClassNames", "root%2Fmwq",
         imethod("EnumerateClassNames", deep), 200, "",
         iresponse("EnumerateClassNames",
                   "<IRETURNVALUE><CLASSNAME NAME=\"QLN_BigDisk\"/><CLASSNAME "
                   "NAME=\"QLN_Disk\"/></IRETURNVALUE>")},
        {"ecn of a schema superclass we do not hold", "EnumerateClassNames", "root%2Fmwq",
         imethod(
             "EnumerateClassNames",
             "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"CIM_DiskDrive\"/></IPARAMVALUE>"),
         200, "",
         iresponse("EnumerateClassNames",
                   "<IRETURNVALUE><CLASSNAME NAME=\"QLN_Disk\"/></IRETURNVALUE>")},
        {"ecn with no subclasses answers an empty, non-self-closed IRETURNVALUE",
         "EnumerateClassNames", "root%2Fmwq",
         imethod("EnumerateClassNames",
                 "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"QLN_BigDisk\"/></IPARAMVALUE>"),
         200, "", iresponse("EnumerateClassNames", "<IRETURNVALUE></IRETURNVALUE>")},
        {"GetClass with qualifiers, arrays, method and escaping", "GetClass", "root%2Fmwq",
         imethod("GetClass",
                 className +
                     "<IPARAMVALUE NAME=\"LocalOnly\"><VALUE>FALSE</VALUE></IPARAMVALUE>"
                     "<IPARAMVALUE NAME=\"IncludeClassOrigin\"><VALUE>TRUE</VALUE></IPARAMVALUE>"),
         200, "",
         iresponse(
             "GetClass",
             "<IRETURNVALUE><CLASS NAME=\"QLN_Disk\" SUPERCLASS=\"CIM_DiskDrive\">"
             "<QUALIFIER NAME=\"Description\" TYPE=\"string\"><VALUE>A &lt;test&gt; &amp; "
             "disk</VALUE></QUALIFIER>"
             "<PROPERTY NAME=\"DeviceID\" TYPE=\"string\" CLASSORIGIN=\"QLN_Disk\">"
             "<QUALIFIER NAME=\"Key\" TYPE=\"boolean\"><VALUE>TRUE</VALUE></QUALIFIER></PROPERTY>"
             "<PROPERTY.ARRAY NAME=\"Status\" TYPE=\"uint16\" CLASSORIGIN=\"QLN_Disk\">"
             "<VALUE.ARRAY><VALUE>2</VALUE></VALUE.ARRAY></PROPERTY.ARRAY>"
             "<METHOD NAME=\"Identify\" TYPE=\"uint32\" CLASSORIGIN=\"QLN_Disk\">"
             "<PARAMETER NAME=\"Duration\" TYPE=\"uint32\">"
             "<QUALIFIER NAME=\"IN\" "
             "TYPE=\"boolean\"><VALUE>TRUE</VALUE></QUALIFIER></PARAMETER></METHOD>"
             "</CLASS></IRETURNVALUE>")},
        {"GetClass LocalOnly leaves inherited features out", "GetClass", "root%2Fmwq",
         imethod("GetClass",
                 "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"qln_bigdisk\"/></IPARAMVALUE>"
                 "<IPARAMVALUE NAME=\"IncludeQualifiers\"><VALUE>false</VALUE></IPARAMVALUE>"),
         200, "",
         iresponse("GetClass",
                   "<IRETURNVALUE><CLASS NAME=\"QLN_BigDisk\" SUPERCLASS=\"QLN_Disk\">"
                   "<PROPERTY NAME=\"Big\" TYPE=\"boolean\"><VALUE>TRUE</VALUE></PROPERTY>"
                   "</CLASS></IRETURNVALUE>")},
        {"unknown class in GetClass", "GetClass", "root%2Fmwq",
         imethod("GetClass",
                 "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"QLN_None\"/></IPARAMVALUE>"),
         200, "", error("GetClass", 6, "class QLN_None does not exist")},
        {"unknown class in ecn", "EnumerateClassNames", "root%2Fmwq",
         imethod("EnumerateClassNames",
                 "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"QLN_None\"/></IPARAMVALUE>"),
         200, "", error("EnumerateClassNames", 5, "class QLN_None does not exist")},
        {"unknown namespace", "GetClass", "root%2Fnone",
         imethod("GetClass", className, "root/none"), 200, "",
         error("GetClass", 3, "namespace root/none does not exist")},
        {"unknown intrinsic operation", "ExecQuery", "root%2Fmwq", imethod("ExecQuery", ""), 200,
         "", error("ExecQuery", 7, "operation ExecQuery is not supported")},
        {"boolean parameter that is not one", "EnumerateClassNames", "root%2Fmwq",
         imethod("EnumerateClassNames",
                 "<IPARAMVALUE NAME=\"DeepInheritance\"><VALUE>maybe</VALUE></IPARAMVALUE>"),
         200, "", error("EnumerateClassNames", 4, "DeepInheritance is not a boolean: maybe")},
        {"parameter the operation does not take", "GetClass", "root%2Fmwq",
         imethod("GetClass", className + "<IPARAMVALUE NAME=\"Bogus\"></IPARAMVALUE>"), 200, "",
         error("GetClass", 4, "unknown parameter Bogus for GetClass")},
        {"instance operation with no providers", "EnumerateInstanceNames", "root%2Fmwq",
         imethod("EnumerateInstanceNames", className), 200, "",
         error("EnumerateInstanceNames", 7, "operation EnumerateInstanceNames is not supported")},
        {"malformed XML", "GetClass", "root%2Fmwq", "<CIM><MESSAGE>", 400,
         "request-not-well-formed", "XML error"},
        {"key value with a raw '<' as wbemcli sends it", "GetInstance", "root%2Fmwq",
         imethod("GetInstance",
                 "<IPARAMVALUE NAME=\"InstanceName\"><INSTANCENAME CLASSNAME=\"QLN_Disk\">"
                 "<KEYBINDING NAME=\"DeviceID\"><KEYVALUE>a<b</KEYVALUE></KEYBINDING>"
                 "</INSTANCENAME></IPARAMVALUE>"),
         400, "request-not-well-formed", "XML error"},
        {"missing CIMOperation", "GetClass", "root%2Fmwq", imethod("GetClass", className), 400,
         "header-mismatch", "CIMOperation", "-"},
        {"wrong CIMOperation", "GetClass", "root%2Fmwq", imethod("GetClass", className), 400,
         "header-mismatch", "CIMOperation", "MethodResponse"},
        {"missing CIMMethod", "-", "root%2Fmwq", imethod("GetClass", className), 400,
         "header-mismatch", "CIMMethod"},
        {"missing CIMObject", "GetClass", "-", imethod("GetClass", className), 400,
         "header-mismatch", "CIMObject"},
        {"CIMMethod differs from the body", "EnumerateClasses", "root%2Fmwq",
         imethod("GetClass", className), 400, "header-mismatch", "does not match GetClass"},
        {"CIMObject differs from the body", "GetClass", "root%2Fcimv2",
         imethod("GetClass", className), 400, "header-mismatch", "does not match namespace"},
        {"deep nesting", "GetClass", "root%2Fmwq", deepDoc, 400, "request-not-valid",
         "nested deeper"},
        {"not a CIM document", "GetClass", "root%2Fmwq", "<HTML></HTML>", 400, "request-not-valid",
         "root element"},
        {"no SIMPLEREQ", "GetClass", "root%2Fmwq",
         "<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
         "PROTOCOLVERSION=\"1.0\"></MESSAGE></CIM>",
         400, "request-not-valid", "missing SIMPLEREQ"},
        {"MULTIREQ", "GetClass", "root%2Fmwq",
         "<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
         "PROTOCOLVERSION=\"1.0\"><MULTIREQ></MULTIREQ>"
         "</MESSAGE></CIM>",
         501, "multiple-requests-unsupported", "MULTIREQ"},
        {"CIM version 3", "GetClass", "root%2Fmwq",
         "<CIM CIMVERSION=\"3.0\" DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
         "PROTOCOLVERSION=\"1.0\"></MESSAGE></CIM>",
         501, "unsupported-cim-version", "CIMVERSION"},
        {"protocol version 2", "GetClass", "root%2Fmwq",
         "<CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
         "PROTOCOLVERSION=\"2.0\"></MESSAGE></CIM>",
         501, "unsupported-protocol-version", "PROTOCOLVERSION"},
        {"truncated body", "GetClass", "root%2Fmwq", imethod("GetClass", className).substr(0, 120),
         400, "request-not-well-formed", "XML error"},
        {"empty body", "GetClass", "root%2Fmwq", "", 400, "request-not-well-formed", "XML error"},
        {"parameter given twice", "GetClass", "root%2Fmwq",
         imethod("GetClass", className + className), 400, "request-not-valid", "given twice"},
        {"64 parameters reach the operation", "GetClass", "root%2Fmwq",
         imethod("GetClass", manyParams(64)), 200, "",
         error("GetClass", 4, "unknown parameter p0 for GetClass")},
        {"65 parameters", "GetClass", "root%2Fmwq", imethod("GetClass", manyParams(65)), 400,
         "request-not-valid", "more than 64 parameters"},
        {"CIMProtocolVersion 2.0", "GetClass", "root%2Fmwq", imethod("GetClass", className), 501,
         "unsupported-protocol-version", "CIMProtocolVersion", "MethodCall", "2.0"},
    };

    CimOperationHandler handler(repo, CimOperationHandler::Settings{32});
    for (Row const& row : rows) {
        SCOPED_TRACE(row.name);
        CimHttpExchange exchange;
        if (row.operation != "-")
            exchange.cimOperation = row.operation;
        if (row.method != "-")
            exchange.cimMethod = row.method;
        if (row.object != "-")
            exchange.cimObject = row.object;
        exchange.cimProtocolVersion = row.protocolVersion;
        exchange.contentType = "application/xml; charset=\"utf-8\"";
        exchange.body = row.body;
        handler.handle(exchange);
        EXPECT_EQ(exchange.status, row.status);
        EXPECT_EQ(exchange.cimError, row.cimError);
        if (row.status == 200) {
            EXPECT_EQ(exchange.responseBody, row.response);
            pugi::xml_document doc;
            EXPECT_TRUE(doc.load_string(exchange.responseBody.c_str()))
                << "response must be well-formed";
        } else {
            EXPECT_NE(exchange.responseBody.find(row.response), std::string::npos)
                << exchange.responseBody;
        }
    }
}

// Catches the client's self-closing rule being broken anywhere in a response:
// only NAMESPACE, CLASSNAME and ERROR may close themselves.
TEST_F(HandlerTable, OnlyThreeElementsSelfClose) {
    CimOperationHandler handler(repo, CimOperationHandler::Settings{32});
    CimHttpExchange exchange;
    exchange.cimOperation = "MethodCall";
    exchange.cimMethod = "EnumerateClasses";
    exchange.cimObject = "root%2Fmwq";
    exchange.body = imethod("EnumerateClasses", deep);
    handler.handle(exchange);
    ASSERT_EQ(exchange.status, 200);
    std::string const& text = exchange.responseBody;
    for (size_t at = text.find("/>"); at != std::string::npos; at = text.find("/>", at + 2)) {
        size_t open = text.rfind('<', at);
        std::string tag = text.substr(open + 1, text.find_first_of(" />", open + 1) - open - 1);
        EXPECT_TRUE(tag == "NAMESPACE" || tag == "CLASSNAME" || tag == "ERROR") << tag;
    }
    EXPECT_NE(text.find("<CLASS NAME=\"QLN_BigDisk\""), std::string::npos);
}

TEST(PercentDecode, DecodesWbemcliObjectHeaders) {
    EXPECT_EQ(CimOperationHandler::percentDecode("root%2Fmwq%3AQLN_Disk.DeviceID=\"a b\""),
              "root/mwq:QLN_Disk.DeviceID=\"a b\"");
    EXPECT_EQ(CimOperationHandler::percentDecode("100%"), "100%");
    EXPECT_EQ(CimOperationHandler::percentDecode("%zz"), "%zz");
}

// Catches an operation that fails half-way leaking its partial answer, or an
// unbalanced envelope, into the error response: the answer is written in place.
TEST_F(HandlerTable, AFailureAfterPartialOutputAnswersOnlyTheError) {
    CimOperationHandler handler(repo, CimOperationHandler::Settings{32});
    handler.addOperation("HalfWay", [](CimRequest const&, CimXmlWriter& out) {
        out.open("IRETURNVALUE").open("VALUE.NAMEDINSTANCE").element("VALUE", "partial");
        throw CimOperationError(CimOperationError::failed, "gave up at <half> & \x01way");
    });
    CimHttpExchange exchange;
    exchange.cimOperation = "MethodCall";
    exchange.cimMethod = "HalfWay";
    exchange.cimObject = "root%2Fmwq";
    exchange.body = imethod("HalfWay", "");
    handler.handle(exchange);
    ASSERT_EQ(exchange.status, 200);
    EXPECT_EQ(exchange.responseBody, error("HalfWay", 1, "gave up at &lt;half&gt; &amp;  way"));
}

// Catches the fixed-size attribute list overrunning silently.
TEST(CimXmlWriterAttributes, OverflowIsRefused) {
    CimXmlWriter::Attributes attributes;
    for (int i = 0; i < 8; ++i)
        attributes.add("A", "v");
    EXPECT_THROW(attributes.add("B", "w"), std::logic_error);
}
