#include "CimdProcess.h"
#include "RawHttp.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <chrono>
#include <thread>

// Pulled enumerations as raw CIM-XML against veldra-cimd hosting the C test
// provider (disks d1 to d3, pool p1): each case is a sequence of requests in
// which "$ctx" stands for the context the previous answer named, and each
// answer is checked for its objects, EndOfSequence and error code.
namespace {

std::string const providerDir = VELDRA_SOURCE_DIR "/tests/unit/broker/testprovider";

// The helpers speak root/mwq; the test provider lives in root/test.
std::string request(std::string const& method, std::string const& params) {
    auto replaceAll = [](std::string text, std::string const& from, std::string const& to) {
        for (auto at = text.find(from); at != std::string::npos;
             at = text.find(from, at + to.size()))
            text.replace(at, from.size(), to);
        return text;
    };
    std::string content = replaceAll(body(method, params), "NAME=\"mwq\"", "NAME=\"test\"");
    return replaceAll(post(method, content), "root%2Fmwq", "root%2Ftest");
}

std::string param(std::string const& name, std::string const& value) {
    return "<IPARAMVALUE NAME=\"" + name + "\"><VALUE>" + value + "</VALUE></IPARAMVALUE>";
}
std::string classParam(std::string const& name) {
    return "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"" + name + "\"/></IPARAMVALUE>";
}
std::string const d1 =
    "<IPARAMVALUE NAME=\"InstanceName\"><INSTANCENAME CLASSNAME=\"Test_Disk\"><KEYBINDING "
    "NAME=\"Name\"><KEYVALUE VALUETYPE=\"string\">d1</KEYVALUE></KEYBINDING></INSTANCENAME>"
    "</IPARAMVALUE>";
std::string const ctx = param("EnumerationContext", "$ctx");

struct Answer {
    int error = 0;
    std::string description;
    std::vector<std::string> objects; // "Class:key" or "Class"
    bool endOfSequence = false;
    std::string context;
    std::string count;
};

// "Test_Disk:d1" for a full instance path; anything else shows as "bad ...".
std::string describePath(pugi::xml_node path) {
    if (std::string(path.name()) != "INSTANCEPATH" || !path.child("NAMESPACEPATH").child("HOST"))
        return std::string("bad ") + path.name();
    pugi::xml_node name = path.child("INSTANCENAME");
    std::string key = name.child("KEYBINDING").child_value("KEYVALUE");
    return name.attribute("CLASSNAME").value() + (key.empty() ? "" : ":" + key);
}

Answer exchange(int port, std::string const& method, std::string params,
                std::string const& context) {
    for (auto at = params.find("$ctx"); at != std::string::npos; at = params.find("$ctx"))
        params.replace(at, 4, context);
    std::string reply = rawExchange(port, request(method, params));
    pugi::xml_document doc;
    auto start = reply.find("\r\n\r\n");
    EXPECT_NE(start, std::string::npos) << reply;
    EXPECT_TRUE(doc.load_string(reply.c_str() + start + 4)) << reply;
    pugi::xml_node response = doc.select_node("//IMETHODRESPONSE").node();
    EXPECT_STREQ(response.attribute("NAME").value(), method.c_str()) << reply;
    Answer answer;
    if (pugi::xml_node error = response.child("ERROR")) {
        answer.error = error.attribute("CODE").as_int();
        answer.description = error.attribute("DESCRIPTION").value();
        return answer;
    }
    for (pugi::xml_node object : response.child("IRETURNVALUE").children()) {
        std::string tag = object.name();
        if (tag == "VALUE") {
            answer.count = object.child_value();
        } else if (tag == "VALUE.INSTANCEWITHPATH") {
            std::string path = describePath(object.first_child());
            bool whole = std::string(object.child("INSTANCE").attribute("CLASSNAME").value()) ==
                         path.substr(0, path.find(':'));
            answer.objects.push_back(whole ? path : "bad instance of " + path);
        } else {
            answer.objects.push_back(describePath(object));
        }
    }
    for (pugi::xml_node p : response.children("PARAMVALUE")) {
        std::string name = p.attribute("NAME").value();
        if (name == "EndOfSequence")
            answer.endOfSequence = std::string(p.child_value("VALUE")) == "TRUE";
        if (name == "EnumerationContext")
            answer.context = p.child_value("VALUE");
    }
    return answer;
}

struct Step {
    std::string method;
    std::string params;
    int error;
    std::vector<std::string> objects;
    bool endOfSequence;
};

class PulledEnumeration : public ::testing::Test {
protected:
    PulledEnumeration()
        : cimd({"--registration", providerDir + "/TestProvider.registration.yaml", "--mof",
                providerDir + "/TestProvider.mof", "--mof-dir", "", "--provider-dir",
                VELDRA_LIB_DIR}) {}

    // Runs the steps in order; a step's context is the last one named.
    void run(char const* name, std::vector<Step> const& steps) {
        std::string context;
        for (std::size_t i = 0; i < steps.size(); ++i) {
            Step const& step = steps[i];
            SCOPED_TRACE(std::string(name) + ", step " + std::to_string(i + 1) + " " + step.method);
            Answer answer = exchange(cimd.port(), step.method, step.params, context);
            EXPECT_EQ(answer.error, step.error) << answer.description;
            if (step.error != 0)
                continue;
            EXPECT_EQ(answer.objects, step.objects);
            if (step.method.rfind("Open", 0) != 0 && step.method.rfind("Pull", 0) != 0)
                continue;
            EXPECT_EQ(answer.endOfSequence, step.endOfSequence);
            // A context is named exactly while there is more to pull.
            EXPECT_EQ(answer.context.empty(), step.endOfSequence);
            if (!answer.context.empty())
                context = answer.context;
        }
    }

    CimdProcess cimd;
};

std::vector<std::string> const noObjects;

} // namespace

TEST_F(PulledEnumeration, SequencesOfAnswers) {
    std::string const max1 = param("MaxObjectCount", "1");
    std::string const max5 = param("MaxObjectCount", "5");
    run("instances page by page, the end closes the context",
        {{"OpenEnumerateInstances", classParam("Test_Disk") + max1, 0, {"Test_Disk:d1"}, false},
         {"PullInstancesWithPath", ctx + param("MaxObjectCount", "0"), 0, noObjects, false},
         {"PullInstancesWithPath", ctx + max1, 0, {"Test_Disk:d2"}, false},
         {"PullInstancesWithPath", ctx + max5, 0, {"Test_Disk:d3"}, true},
         {"PullInstancesWithPath", ctx + max1, 21, {}, false}});
    run("everything in the open answer leaves no context",
        {{"OpenEnumerateInstancePaths",
          classParam("Test_Disk") + max5,
          0,
          {"Test_Disk:d1", "Test_Disk:d2", "Test_Disk:d3"},
          true}});
    run("no MaxObjectCount opens with nothing",
        {{"OpenEnumerateInstancePaths", classParam("Test_Disk"), 0, noObjects, false},
         {"PullInstancesWithPath", ctx + max5, 21, {}, false},
         {"PullInstancePaths",
          ctx + max5,
          0,
          {"Test_Disk:d1", "Test_Disk:d2", "Test_Disk:d3"},
          true}});
    run("an empty class ends at once",
        {{"OpenEnumerateInstances", classParam("Test_Alert") + max1, 0, noObjects, true}});
    run("closed is gone",
        {{"OpenEnumerateInstances", classParam("Test_Disk") + max1, 0, {"Test_Disk:d1"}, false},
         {"CloseEnumeration", ctx, 0, noObjects, false},
         {"PullInstancesWithPath", ctx + max1, 21, {}, false},
         {"CloseEnumeration", ctx, 21, {}, false}});
    run("associations",
        {{"OpenAssociatorInstances", d1 + max5, 0, {"Test_Pool:p1"}, true},
         {"OpenAssociatorInstancePaths", d1 + max5, 0, {"Test_Pool:p1"}, true},
         {"OpenReferenceInstances", d1, 0, noObjects, false},
         {"PullInstancesWithPath", ctx + max5, 0, {"Test_PoolDisk"}, true},
         {"OpenReferenceInstancePaths", d1 + max5, 0, {"Test_PoolDisk"}, true},
         {"OpenAssociatorInstances",
          d1 + "<IPARAMVALUE NAME=\"ResultClass\"><CLASSNAME NAME=\"Test_Disk\"/></IPARAMVALUE>", 0,
          noObjects, true}});
    run("what is refused",
        {{"OpenEnumerateInstances", classParam("Test_Nope"), 5, {}, false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("FilterQueryLanguage", "DMTF:FQL") +
              param("FilterQuery", "Size > 1"),
          25,
          {},
          false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("ContinueOnError", "TRUE"),
          26,
          {},
          false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("OperationTimeout", "0"),
          22,
          {},
          false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("OperationTimeout", "100000"),
          22,
          {},
          false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("MaxObjectCount", "-1"),
          4,
          {},
          false},
         {"OpenEnumerateInstances",
          classParam("Test_Disk") + param("LocalOnly", "TRUE"),
          4,
          {},
          false},
         {"OpenEnumerateInstances", classParam("Test_Disk"), 0, noObjects, false},
         {"PullInstancesWithPath", ctx, 4, {}, false},
         {"PullInstancesWithPath",
          param("EnumerationContext", "veldra-1-0000000000000000") + max1,
          21,
          {},
          false},
         {"PullInstancesWithPath",
          ctx + max5,
          0,
          {"Test_Disk:d1", "Test_Disk:d2", "Test_Disk:d3"},
          true}});
}

TEST_F(PulledEnumeration, CountLimitAndExpiry) {
    std::string const open = classParam("Test_Disk") + param("MaxObjectCount", "1");
    Answer first = exchange(cimd.port(), "OpenEnumerateInstances", open, "");
    ASSERT_FALSE(first.context.empty());
    EXPECT_EQ(exchange(cimd.port(), "EnumerationCount", ctx, first.context).count, "2");

    // A client holds 16 contexts at most; closing one makes room again.
    std::vector<std::string> held{first.context};
    for (int i = 1; i < 16; ++i)
        held.push_back(exchange(cimd.port(), "OpenEnumerateInstances", open, "").context);
    Answer refused = exchange(cimd.port(), "OpenEnumerateInstances", open, "");
    EXPECT_EQ(refused.error, 27) << refused.description;
    // An answer that fits needs no context and is still given.
    EXPECT_EQ(exchange(cimd.port(), "OpenEnumerateInstances",
                       classParam("Test_Pool") + param("MaxObjectCount", "1"), "")
                  .objects,
              std::vector<std::string>{"Test_Pool:p1"});
    EXPECT_EQ(exchange(cimd.port(), "CloseEnumeration", ctx, held.back()).error, 0);
    EXPECT_EQ(exchange(cimd.port(), "OpenEnumerateInstances", open, "").error, 0);

    // Unused beyond its timeout, a context is gone, and the error says why.
    Answer brief = exchange(cimd.port(), "OpenEnumerateInstances",
                            classParam("Test_Pool") + param("OperationTimeout", "1"), "");
    ASSERT_EQ(brief.error, 27); // still full: the limit counts every open context
    EXPECT_EQ(exchange(cimd.port(), "CloseEnumeration", ctx, held.front()).error, 0);
    brief =
        exchange(cimd.port(), "OpenEnumerateInstances", open + param("OperationTimeout", "1"), "");
    ASSERT_FALSE(brief.context.empty());
    std::this_thread::sleep_for(std::chrono::milliseconds(2200));
    Answer late = exchange(cimd.port(), "PullInstancesWithPath", ctx + param("MaxObjectCount", "1"),
                           brief.context);
    EXPECT_EQ(late.error, 21);
    EXPECT_NE(late.description.find("expired"), std::string::npos) << late.description;
}
