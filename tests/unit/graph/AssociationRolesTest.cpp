// Every association the graph makes must match the MOF it is published
// under: the same reference properties by name, each pointing at an instance
// of the class its REF declares. The C++ ends are plain managed instances, so
// a swapped or misnamed end compiles; this is where it shows.
#include "ClassRepository.h"
#include "CmpiData.h"
#include "ProviderTestSupport.h"
#include "QLNVeldraProvider.h"

#include <gtest/gtest.h>
#include <yaml-cpp/yaml.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>

using namespace Cimom;

using namespace provider_test;
using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiContext;

namespace {

char const* const ns = "root/mwq";

ClassRepository const& shippedClasses() {
    static ClassRepository const classes = [] {
        ClassRepository loaded;
        loaded.loadDirectory(std::string(VELDRA_DATA_DIR) + "/mof", ns);
        loaded.resolve();
        return loaded;
    }();
    return classes;
}

std::vector<CimClassDecl const*> associationClasses() {
    std::vector<CimClassDecl const*> found;
    for (auto const* cls : shippedClasses().subclasses(ns, "", true)) {
        // The schema's CIM_ classes are there for the hierarchy only.
        if (cls->hasQualifier("Association") && cls->name.rfind("CIM_", 0) != 0)
            found.push_back(cls);
    }
    return found;
}

// The reference properties a class declares, by name.
std::set<std::string> referencesOf(CimClassDecl const& cls) {
    std::set<std::string> names;
    for (auto const& property : cls.properties) {
        if (property.type == "reference")
            names.insert(property.name);
    }
    return names;
}

// The demo with every disk in an authenticated carrier, so that the carrier
// firmware and its associations exist too.
std::string demoWithCarriers() {
    YAML::Node scenario = YAML::LoadFile(std::string(VELDRA_DATA_DIR) + "/scenarios/demo.yaml");
    for (auto controller : scenario["controllers"]) {
        for (auto disk : controller["physicalDisks"])
            disk["carrierAuthStatus"] = 2;
    }
    auto const path = std::filesystem::temp_directory_path() /
                      ("veldra-roles-" + std::to_string(::getpid()) + ".yaml");
    std::ofstream(path) << YAML::Dump(scenario);
    return path.string();
}

} // namespace

TEST(AssociationRoles, EveryEndOfEveryAssociationMatchesItsMof) {
    auto const associations = associationClasses();
    ASSERT_EQ(associations.size(), 66u);

    auto const scenario = demoWithCarriers();
    ::setenv("VELDRA_SCENARIO", scenario.c_str(), 1);
    Logger logger("QLNVeldra");
    auto provider = std::make_unique<QLN::QLNVeldraProvider>(CmpiBroker(), logger);
    std::filesystem::remove(scenario);

    std::set<std::string> empty;
    for (auto const* cls : associations) {
        Instances found;
        provider->enumInstances(CmpiContext(),
                                CmpiCpp::makeCmpiObjectPath(CmpiBroker(), ns, cls->name), nullptr,
                                found);
        if (found.rows.empty())
            empty.insert(cls->name);
        auto const declared = referencesOf(*cls);
        for (auto const& instance : found.rows) {
            std::set<std::string> carried;
            for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) {
                if (instance.getPropertyAt(i).getType() == CMPI_ref) {
                    carried.insert(instance.getPropertyNameAt(i).str());
                }
            }
            EXPECT_EQ(carried, declared) << cls->name << " " << instance.getPath().str();
            for (auto const& role : declared) {
                if (!instance.hasProperty(role) || instance.getProperty(role).getType() != CMPI_ref)
                    continue;
                auto const& end = instance.getProperty(role).getObjectPath();
                std::string const want = cls->findProperty(role)->refClass;
                EXPECT_TRUE(shippedClasses().isA(ns, end.getClassName().str(), want))
                    << cls->name << "." << role << " points at " << end.getClassName().str()
                    << ", declared " << want;
            }
        }
    }
    // An association without an instance here is one the graph forgot.
    EXPECT_EQ(empty, std::set<std::string>{});
}
