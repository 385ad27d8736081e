#include "ModelServer.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <pugixml.hpp>
#include <yaml-cpp/yaml.h>

#include <cstdio>
#include <set>
#include <sstream>

// Every instance name that the server lists, of every class, put through
// every read operation that takes one. Catches a request that never
// answers (a provider waiting on itself) and one that answers with a fault
// instead of an empty result.
namespace {

constexpr int answerBoundSeconds = 20;

class RawCim {
public:
    explicit RawCim(int port) : _client("127.0.0.1", port) {
        _client.set_read_timeout(answerBoundSeconds, 0);
        _client.set_connection_timeout(5, 0);
    }

    // The <IRETURNVALUE> of an intrinsic call; fails the test on anything but
    // a timely 200 without ERROR, or with the one error code `allowed`.
    pugi::xml_node call(std::string const& method, std::string const& params,
                        pugi::xml_document& doc, char const* allowed = nullptr) {
        std::string body = "<?xml version=\"1.0\" encoding=\"utf-8\"?><CIM CIMVERSION=\"2.0\" "
                           "DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
                           "PROTOCOLVERSION=\"1.0\"><SIMPLEREQ><IMETHODCALL NAME=\"" +
                           method +
                           "\"><LOCALNAMESPACEPATH><NAMESPACE NAME=\"root\"/><NAMESPACE "
                           "NAME=\"mwq\"/></LOCALNAMESPACEPATH>" +
                           params + "</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>";
        httplib::Headers headers{
            {"CIMOperation", "MethodCall"}, {"CIMMethod", method}, {"CIMObject", "root%2Fmwq"}};
        auto reply = _client.Post("/cimom", headers, body, "application/xml; charset=\"utf-8\"");
        if (!reply) {
            ADD_FAILURE() << method << " got no answer within " << answerBoundSeconds
                          << " s: " << params;
            return {};
        }
        EXPECT_EQ(reply->status, 200) << method << " " << params;
        if (!doc.load_string(reply->body.c_str())) {
            ADD_FAILURE() << method << " answer is not XML: " << reply->body.substr(0, 300);
            return {};
        }
        auto response = doc.select_node("//IMETHODRESPONSE").node();
        if (auto error = response.child("ERROR")) {
            if (allowed == nullptr || std::string(error.attribute("CODE").value()) != allowed) {
                ADD_FAILURE() << method << " " << params
                              << " failed: " << error.attribute("CODE").value() << " "
                              << error.attribute("DESCRIPTION").value();
            }
            return {};
        }
        return response.child("IRETURNVALUE");
    }

private:
    httplib::Client _client;
};

std::string xml(pugi::xml_node const& node) {
    std::ostringstream out;
    node.print(out, "", pugi::format_raw);
    return out.str();
}

std::string param(char const* name, std::string const& value) {
    return std::string("<IPARAMVALUE NAME=\"") + name + "\">" + value + "</IPARAMVALUE>";
}

// Every instance name the server lists, and every one that a listed
// association names as an end: an end that nobody serves is where a request
// for its neighbours used to wait for ever.
void walkEverything(ModelServer& server) {
    RawCim cim(server.port());
    pugi::xml_document classes;
    auto names =
        cim.call("EnumerateClassNames", param("DeepInheritance", "<VALUE>TRUE</VALUE>"), classes);
    ASSERT_TRUE(names);
    std::set<std::string> listed, named;
    for (auto const& className : names.children("CLASSNAME")) {
        pugi::xml_document answer;
        auto paths = cim.call("EnumerateInstanceNames", param("ClassName", xml(className)), answer);
        for (auto const& instanceName : paths.children("INSTANCENAME")) {
            listed.insert(xml(instanceName));
            for (auto const& end : instanceName.select_nodes(".//VALUE.REFERENCE//INSTANCENAME"))
                named.insert(xml(end.node()));
        }
    }
    ASSERT_GT(listed.size(), 100u);
    for (auto const& target : listed)
        named.erase(target);
    std::printf("walking %zu listed instance names and %zu ends named only by associations\n",
                listed.size(), named.size());
    for (auto const* group : {&listed, &named}) {
        for (auto const& target : *group) {
            SCOPED_TRACE(target);
            pugi::xml_document a, b, c, d, e;
            // An end named only by an association may be gone: not found is its answer.
            auto got = cim.call("GetInstance", param("InstanceName", target), a,
                                group == &named ? "6" : nullptr);
            if (group == &listed) {
                EXPECT_TRUE(got.child("INSTANCE"));
            }
            cim.call("Associators", param("ObjectName", target), b);
            cim.call("AssociatorNames", param("ObjectName", target), c);
            cim.call("References", param("ObjectName", target), d);
            cim.call("ReferenceNames", param("ObjectName", target), e);
            if (::testing::Test::HasFailure())
                return;
        }
    }
}

// The demo scenario with getters failing on every controller and volume:
// instances whose properties cannot all be read must still answer.
std::string withFailingGetters(std::string const& scenarioFile) {
    YAML::Node scenario = YAML::LoadFile(scenarioFile);
    for (auto controller : scenario["controllers"]) {
        controller["fail"] =
            std::vector<std::string>{"getPhysloc", "getModel", "getPCIInfo", "getEncryptionStatus"};
        for (auto volume : controller["logicalDisks"])
            volume["fail"] = std::vector<std::string>{"getEncryptionStatus"};
        for (auto disk : controller["physicalDisks"])
            disk["fail"] = std::vector<std::string>{"getEncryptionStatus"};
    }
    YAML::Emitter out;
    out << scenario;
    return out.c_str();
}

} // namespace

TEST(ModelWalk, EveryPathOfTheDemoAnswersEveryOperation) {
    ModelServer server(VELDRA_DATA_DIR "/scenarios/demo.yaml");
    walkEverything(server);
}

TEST(ModelWalk, EveryPathAnswersWhenGettersFail) {
    std::string const demo = VELDRA_DATA_DIR "/scenarios/demo.yaml";
    ModelServer server(demo, withFailingGetters(demo));
    walkEverything(server);
}

// A path carries exactly the keys that its class's MOF declares, and the
// instance shows the same values: an object manager with the real schema
// cannot find an instance by a path that lacks a key, nor one whose key
// properties say something else.
TEST(ModelWalk, EveryPathKeysOnExactlyTheKeysOfItsClass) {
    ModelServer server(VELDRA_DATA_DIR "/scenarios/demo.yaml");
    RawCim cim(server.port());
    pugi::xml_document classes;
    auto names =
        cim.call("EnumerateClassNames", param("DeepInheritance", "<VALUE>TRUE</VALUE>"), classes);
    ASSERT_TRUE(names);
    std::size_t checked = 0;
    for (auto const& className : names.children("CLASSNAME")) {
        std::string const cls = className.attribute("NAME").value();
        pugi::xml_document classAnswer, instances;
        auto decl = cim.call("GetClass",
                             param("ClassName", xml(className)) +
                                 param("LocalOnly", "<VALUE>FALSE</VALUE>"),
                             classAnswer);
        std::set<std::string> declared;
        for (auto const& key : decl.select_nodes(".//*[QUALIFIER[@NAME='Key']]"))
            declared.insert(key.node().attribute("NAME").value());
        auto found = cim.call("EnumerateInstances", param("ClassName", xml(className)), instances);
        for (auto const& named : found.children("VALUE.NAMEDINSTANCE")) {
            auto const instance = named.child("INSTANCE");
            if (std::string(instance.attribute("CLASSNAME").value()) != cls)
                continue; // a subclass's own turn
            SCOPED_TRACE(xml(named.child("INSTANCENAME")));
            std::set<std::string> bound;
            for (auto const& binding : named.child("INSTANCENAME").children("KEYBINDING")) {
                std::string const key = binding.attribute("NAME").value();
                bound.insert(key);
                auto const value = binding.child("KEYVALUE");
                if (!value)
                    continue; // a reference: its ends are walked above
                auto const property =
                    instance.find_child_by_attribute("PROPERTY", "NAME", key.c_str())
                        .child("VALUE");
                EXPECT_EQ(std::string(property.text().get()), std::string(value.text().get()))
                    << key;
            }
            EXPECT_EQ(bound, declared) << cls;
            ++checked;
        }
        if (::testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(checked, 500u);
}
