// A controller's neighbourhood wired as the graph factory wires it, then
// walked the way clients walk it: every neighbour of the array system is
// reached through its own association class and with the roles a client
// filters on.
#include "AssociationTestSupport.h"
#include "CmpiManagedInstanceCollection.h"
#include "QLNUtil.h"
#include "QLN_VDArraySystemArrayController.h"
#include "QLN_VDArraySystemDAPort.h"
#include "QLN_VDArraySystemFirmware.h"
#include "QLN_VDArraySystemPortController.h"
#include "QLN_VDArraySystemPrimordialPool.h"
#include "QLN_VDArraySystemStoragePool.h"
#include "QLN_VDComputerSystemArraySystem.h"
#include "QLN_VDElementSoftwareIdentityDriver.h"
#include "QLN_VDFirmwareArraySystem.h"
#include "QLN_VDInstalledSoftwareIdentityDriver.h"
#include "QLN_VDPhysicalPackageArraySystem.h"
#include "QLN_VDStorageSpecificCollectionArraySystem.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using CmpiCpp::CmpiObjectPath;

namespace {

struct Paths : CmpiCpp::CmpiObjectPathResult {
    void returnObjectPath(CmpiObjectPath const& path) override { rows.push_back(path); }
    std::vector<CmpiObjectPath> rows;
};

class ControllerGraph : public ::testing::Test {
protected:
    void SetUp() override {
        assoctest::pinHostName();
        system = add(new QLN::QLN_VDArraySystem("PSER0001"));
        controller = add(new QLN::QLN_VDArrayController("PSER0001"));
        portController = add(new QLN::QLN_VDPortController("PSER0001"));
        daPort = add(new QLN::QLN_VDDAPort("PSER0001"));
        firmware = add(new QLN::QLN_VDFirmware("PSER0001"));
        driver = add(new QLN::QLN_VDSoftwareIdentityDriver("PSER0001"));
        package = add(new QLN::QLN_VDPhysicalPackage("PSER0001"));
        primordial = add(new QLN::QLN_VDPrimordialPool("PSER0001"));
        pool = add(new QLN::QLN_VDStoragePool("PSER0001-1"));
        group = add(new QLN::QLN_VDStorageSpecificCollection("group"));
        CmpiObjectPath const host = QLN::QLNUtil::getComputerSystemPath();
        std::string const ns = "root/mwq";

        // The factory's argument order for each class.
        add(new QLN::QLN_VDComputerSystemArraySystem(logger, ns, host, system));
        add(new QLN::QLN_VDInstalledSoftwareIdentityDriver(logger, ns, system, driver));
        add(new QLN::QLN_VDElementSoftwareIdentityDriver(logger, ns, driver, system));
        add(new QLN::QLN_VDPhysicalPackageArraySystem(logger, ns, package, system));
        add(new QLN::QLN_VDFirmwareArraySystem(logger, ns, firmware, system));
        add(new QLN::QLN_VDArraySystemFirmware(logger, ns, system, firmware));
        add(new QLN::QLN_VDArraySystemPortController(logger, ns, system, portController));
        add(new QLN::QLN_VDArraySystemArrayController(logger, ns, system, controller));
        add(new QLN::QLN_VDArraySystemDAPort(logger, ns, system, daPort));
        add(new QLN::QLN_VDArraySystemPrimordialPool(logger, ns, system, primordial));
        add(new QLN::QLN_VDArraySystemStoragePool(logger, ns, system, pool));
        add(new QLN::QLN_VDStorageSpecificCollectionArraySystem(logger, ns, group, system));
    }

    template <typename T> T* add(T* instance) {
        collection.createInstance(instance);
        return instance;
    }

    // The far ends of the array system, by the role the array system plays.
    std::map<std::string, std::set<std::string>> walk(char const* role,
                                                      char const* resultRole = "") {
        Paths paths;
        collection.associatorNames(paths, CmpiCpp::CmpiContext(), system->getPath(), {}, {}, role,
                                   resultRole);
        std::map<std::string, std::set<std::string>> byClass;
        for (auto const& path : paths.rows) {
            byClass[path.getClassName().str()].insert(path.str());
        }
        return byClass;
    }

    Logger logger{"assoc-test"};
    QLN::CmpiManagedInstanceCollection collection{logger};
    QLN::QLN_VDArraySystem* system = nullptr;
    QLN::QLN_VDArrayController* controller = nullptr;
    QLN::QLN_VDPortController* portController = nullptr;
    QLN::QLN_VDDAPort* daPort = nullptr;
    QLN::QLN_VDFirmware* firmware = nullptr;
    QLN::QLN_VDSoftwareIdentityDriver* driver = nullptr;
    QLN::QLN_VDPhysicalPackage* package = nullptr;
    QLN::QLN_VDPrimordialPool* primordial = nullptr;
    QLN::QLN_VDStoragePool* pool = nullptr;
    QLN::QLN_VDStorageSpecificCollection* group = nullptr;
};

std::set<std::string> classes(std::map<std::string, std::set<std::string>> const& byClass) {
    std::set<std::string> names;
    for (auto const& [name, paths] : byClass) {
        names.insert(name);
    }
    return names;
}

} // namespace

TEST_F(ControllerGraph, ArraySystemAsGroupReachesItsParts) {
    EXPECT_EQ(classes(walk("GroupComponent")),
              (std::set<std::string>{"QLN_VDArrayController", "QLN_VDDAPort",
                                     "QLN_VDPrimordialPool", "QLN_VDStoragePool"}));
}

TEST_F(ControllerGraph, ArraySystemAsPartReachesTheHostOnly) {
    auto const hosts = walk("PartComponent", "GroupComponent");
    ASSERT_EQ(classes(hosts), (std::set<std::string>{"QLN_ComputerSystem"}));
    EXPECT_EQ(*hosts.at("QLN_ComputerSystem").begin(), QLN::QLNUtil::getComputerSystemPath().str());
}

TEST_F(ControllerGraph, SoftwareIsReachedBothWays) {
    // As the system that software is installed on, and as the element it runs on.
    EXPECT_EQ(classes(walk("System", "InstalledSoftware")),
              (std::set<std::string>{"QLN_VDFirmware", "QLN_VDSoftwareIdentityDriver"}));
    EXPECT_EQ(classes(walk("Dependent", "Antecedent")),
              (std::set<std::string>{"QLN_VDFirmware", "QLN_VDSoftwareIdentityDriver",
                                     "QLN_VDPhysicalPackage"}));
}

TEST_F(ControllerGraph, StorageGroupAndPortControllerAreReachedByTheirRoles) {
    EXPECT_EQ(classes(walk("Member", "Collection")),
              (std::set<std::string>{"QLN_VDStorageSpecificCollection"}));
    EXPECT_EQ(classes(walk("SameElement", "SystemElement")),
              (std::set<std::string>{"QLN_VDPortController"}));
    // A role the array system never plays finds nothing.
    EXPECT_TRUE(walk("Antecedent").empty());
}

TEST_F(ControllerGraph, ReferencesOfTheArraySystemAreEveryAssociationThatHoldsIt) {
    struct References : CmpiCpp::CmpiObjectPathResult {
        void returnObjectPath(CmpiObjectPath const& path) override {
            names.insert(path.getClassName().str());
        }
        std::multiset<std::string> names;
    } references;
    collection.referenceNames(references, CmpiCpp::CmpiContext(), system->getPath(), {}, {});
    EXPECT_EQ(references.names.size(), 12u);
    EXPECT_EQ(references.names.count("QLN_VDFirmwareArraySystem"), 1u);
    EXPECT_EQ(references.names.count("QLN_VDArraySystemFirmware"), 1u);
}
