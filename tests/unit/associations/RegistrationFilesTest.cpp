// The registration files and the class files must agree: a class that an
// object manager is told to route to a provider but has no MOF, or an
// association that has MOF but is routed nowhere, is invisible to clients.
#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace {

std::string const registrationDir = std::string(VELDRA_DATA_DIR) + "/registration/";
std::string const mofDir = std::string(VELDRA_DATA_DIR) + "/mof/";

std::string readText(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Classes named by one provider of the veldra-cimd file.
std::set<std::string> cimdClasses(std::string const& provider) {
    YAML::Node const root = YAML::LoadFile(registrationDir + "veldra-cimd.yaml");
    std::set<std::string> names;
    for (auto const& entry : root["providers"]) {
        if (entry["name"].as<std::string>() == provider) {
            for (auto const& name : entry["classes"]) {
                names.insert(name.as<std::string>());
            }
        }
    }
    return names;
}

std::set<std::string> matches(std::string const& text, std::regex const& pattern) {
    std::set<std::string> found;
    for (std::sregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it) {
        found.insert((*it)[1].str());
    }
    return found;
}

// The association classes declared in the MOF folder.
std::set<std::string> mofAssociations() {
    std::set<std::string> names;
    std::regex const declared(R"(\[Association[^\]]*\]\s*class\s+(\w+))");
    for (auto const& file : std::filesystem::directory_iterator(mofDir)) {
        if (file.path().extension() == ".mof") {
            // The schema's CIM_ classes are there for the hierarchy only; no
            // provider serves them.
            for (auto const& name : matches(readText(file.path().string()), declared))
                if (name.rfind("CIM_", 0) != 0)
                    names.insert(name);
        }
    }
    return names;
}

} // namespace

TEST(RegistrationFiles, EveryRegisteredClassHasItsClassFile) {
    for (char const* provider : {"QLNVeldra", "QLNVeldraHost"}) {
        auto const classes = cimdClasses(provider);
        EXPECT_FALSE(classes.empty()) << provider;
        for (auto const& name : classes) {
            std::string const text = readText(mofDir + name + ".mof");
            EXPECT_NE(text.find("class " + name), std::string::npos)
                << name << " has no MOF in " << mofDir;
        }
    }
}

TEST(RegistrationFiles, EveryAssociationIsRoutedToTheProvider) {
    auto const associations = mofAssociations();
    EXPECT_EQ(associations.size(), 66u);
    auto const veldra = cimdClasses("QLNVeldra");
    for (auto const& name : associations) {
        EXPECT_EQ(veldra.count(name), 1u) << name << " is not in veldra-cimd.yaml";
    }
}

// The three registrations name the same classes for the same providers.
TEST(RegistrationFiles, SfcbAndPegasusNameWhatVeldraCimdNames) {
    for (char const* provider : {"QLNVeldra", "QLNVeldraHost"}) {
        auto const expected = cimdClasses(provider);
        std::string const reg = readText(registrationDir + provider + ".reg");
        EXPECT_EQ(matches(reg, std::regex(R"(^\[(\w+)\])", std::regex::multiline)), expected)
            << provider;
        // Each section must keep the provider resident and in its namespace:
        // the host view lives in root/cimv2, the rest in root/mwq.
        std::regex const section(
            R"(\[(\w+)\]\s+provider: (\w+)\s+location: (\w+)\s+type: [a-z ]+\s+)"
            R"(namespace: (root/\w+)\s+unload: never)");
        std::set<std::string> complete;
        for (std::sregex_iterator it(reg.begin(), reg.end(), section), end; it != end; ++it) {
            EXPECT_EQ((*it)[2].str(), provider);
            EXPECT_EQ((*it)[3].str(), provider);
            bool const view = (*it)[1].str().rfind("DRSV_", 0) == 0;
            EXPECT_EQ((*it)[4].str(), view ? "root/cimv2" : "root/mwq") << (*it)[1].str();
            complete.insert((*it)[1].str());
        }
        EXPECT_EQ(complete, expected) << provider;
    }

    std::string const pegasus = readText(registrationDir + "QLNVeldraPegasus.mof");
    std::regex const capability(
        R"re(ProviderName = "(\w+)";\s+CapabilityID = "\w+";\s+ClassName = "(\w+)";)re");
    std::set<std::string> veldra;
    std::set<std::string> host;
    for (std::sregex_iterator it(pegasus.begin(), pegasus.end(), capability), end; it != end;
         ++it) {
        ((*it)[1].str() == "QLNVeldra" ? veldra : host).insert((*it)[2].str());
    }
    EXPECT_EQ(veldra, cimdClasses("QLNVeldra"));
    EXPECT_EQ(host, cimdClasses("QLNVeldraHost"));
}

// Associations need both interfaces in SFCB and OpenPegasus: instance for
// enumeration of the association class itself, association for the walks.
TEST(RegistrationFiles, AssociationsAreRegisteredAsInstanceAndAssociation) {
    std::string const reg = readText(registrationDir + "QLNVeldra.reg");
    std::string const pegasus = readText(registrationDir + "QLNVeldraPegasus.mof");
    for (auto const& name : mofAssociations()) {
        std::regex const sfcbType("\\[" + name + "\\][^\\[]*type: instance association\\n");
        EXPECT_TRUE(std::regex_search(reg, sfcbType)) << name;
        std::regex const pegasusType(
            "ClassName = \"" + name +
            "\";\\s+Namespaces = \\{\"root/mwq\"\\};\\s+ProviderType = \\{2, 3\\};");
        EXPECT_TRUE(std::regex_search(pegasus, pegasusType)) << name;
    }
}
