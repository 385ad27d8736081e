// What the classes send must be what the class files declare and the
// registration files route: a property the MOF lacks, or of another type,
// is refused or mangled by an object manager that checks indications
// against its repository.
#include "CimValue.h"
#include "IndicationTestSupport.h"
#include "QLN_VeldraCntlrIndication.h"
#include "QLN_VeldraDiskDriveIndication.h"
#include "QLN_VeldraIndication.h"
#include "QLN_VeldraStorageEnclosureIndication.h"
#include "QLN_VeldraStorageEnclosureTempIndication.h"
#include "QLN_VeldraStorageVolumeIndication.h"

#include <map>
#include <regex>

using namespace Cimom;

namespace {

std::string readText(std::string const& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Property name (lower case) to MOF type ("sint32", "string[]") of a class
// and its base.
std::map<std::string, std::string> declared(std::string const& className) {
    std::map<std::string, std::string> properties;
    std::regex const property(R"(^\s*(\w+)\s+(\w+)(\[\])?;)", std::regex::multiline);
    for (std::string const& name : {std::string("QLN_MWAlertIndication"), className}) {
        std::string const text = readText(std::string(VELDRA_DATA_DIR) + "/mof/" + name + ".mof");
        EXPECT_FALSE(text.empty()) << name;
        for (std::sregex_iterator it(text.begin(), text.end(), property), end; it != end; ++it) {
            std::string key = (*it)[2].str();
            std::transform(key.begin(), key.end(), key.begin(), ::tolower);
            properties[key] = (*it)[1].str() + (*it)[3].str();
        }
    }
    return properties;
}

std::string mofType(CimValue const& value) {
    return CimValue::typeName(value.elementType()) + (value.isArray() ? "[]" : "");
}

} // namespace

// Catches: a property sent that the MOF does not declare, or declares with
// another type (a trap number as uint32 where sint32 goes out).
TEST_F(IndicationTest, EveryPropertySentIsDeclaredWithItsType) {
    QLN::QLN_VeldraIndication(logger, "root/mwq")
        .sendIndication(10, 1, 3, "fw", "ctl", "QLN", "S", "M", "ControllerCacheStateChange", 1024,
                        "C", "p", context);
    QLN::QLN_VeldraCntlrIndication(logger, "root/mwq")
        .sendIndication(1, 1, 3, "fw", "ctl", "QLN", "S", "M", "ControllerStateChange", 1024, "C",
                        "p", context);
    QLN::QLN_VeldraStorageVolumeIndication(logger, "root/mwq")
        .sendIndication(2, "v", 1, 0, 4, {2}, {6, 4}, "StorageVolumeStateChange", "p", context);
    QLN::QLN_VeldraDiskDriveIndication(logger, "root/mwq")
        .sendIndication(6, 1, 5, "fw", "v", "b", "c", "S", "M", 1, 3, 2, 7, 1, "t",
                        "DiskDriveSSDStatusChange", "p", context);
    QLN::QLN_VeldraStorageEnclosureIndication(logger, "root/mwq")
        .sendIndication(3, "paths", "ctl", "S", "M", "QLN", 1, 0, "p", context);
    QLN::QLN_VeldraStorageEnclosureTempIndication(logger, "root/mwq")
        .sendIndication(9, "paths", "S", "M", 1, 0, "p", context);
    auto const all = sink->delivered();
    ASSERT_EQ(all.size(), 6u);
    for (auto const& one : all) {
        CimInstance const& indication = one.indication;
        auto const properties = declared(indication.className());
        for (auto const& [name, value] : indication.properties()) {
            std::string key = name;
            std::transform(key.begin(), key.end(), key.begin(), ::tolower);
            auto const found = properties.find(key);
            ASSERT_NE(found, properties.end())
                << indication.className() << "." << name << " is not in the MOF";
            EXPECT_EQ(found->second, mofType(value)) << indication.className() << "." << name;
        }
    }
}

// Catches: an indication class that SFCB or OpenPegasus would not route to
// the provider as an indication provider.
TEST(IndicationRegistration, SixClassesAreIndicationProvidersEverywhere) {
    std::string const dir = std::string(VELDRA_DATA_DIR) + "/registration/";
    std::string const sfcb = readText(dir + "QLNVeldra.reg");
    std::string const pegasus = readText(dir + "QLNVeldraPegasus.mof");
    std::string const cimd = readText(dir + "veldra-cimd.yaml");
    for (char const* name :
         {"QLN_VeldraIndication", "QLN_VeldraCntlrIndication", "QLN_VeldraStorageVolumeIndication",
          "QLN_VeldraDiskDriveIndication", "QLN_VeldraStorageEnclosureIndication",
          "QLN_VeldraStorageEnclosureTempIndication"}) {
        std::string const n(name);
        EXPECT_TRUE(std::regex_search(sfcb, std::regex("\\[" + n +
                                                       "\\]\\s+provider: QLNVeldra\\s+location: "
                                                       "QLNVeldra\\s+type: indication\\n")))
            << n;
        EXPECT_TRUE(
            std::regex_search(pegasus, std::regex("ClassName = \"" + n +
                                                  "\";\\s+Namespaces = \\{\"root/mwq\"\\};\\s+"
                                                  "ProviderType = \\{4\\};")))
            << n;
        EXPECT_NE(cimd.find("      - " + n + "\n"), std::string::npos) << n;
    }
}
