// The shared association shape as the classes use it: which role leads, what
// the references hold, how otherEnd walks, and that the collection can walk
// the classes to answer reference and associator requests.
#include "AssociationTestSupport.h"
#include "CmpiManagedInstanceCollection.h"
#include "FrameworkConfig.h"
#include "QLNUtil.h"
#include "QLN_VDArraySystemArrayController.h"
#include "QLN_VDArraySystemDAPort.h"
#include "QLN_VDArraySystemSCSIProtocolEndpoint.h"
#include "QLN_VDCacheVolumeStorageVolume.h"
#include "QLN_VDComputerSystemArraySystem.h"
#include "QLN_VDPhysicalPackageArraySystem.h"
#include "QLN_VDPortControllerPCIDevice.h"
#include "QLN_VDStorageGroupHostedCollection.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <type_traits>
#include <unistd.h>

using CmpiCpp::CmpiObjectPath;

namespace {

struct Paths : CmpiCpp::CmpiObjectPathResult {
    void returnObjectPath(CmpiObjectPath const& path) override { rows.push_back(path); }
    std::vector<CmpiObjectPath> rows;
};
struct Instances : CmpiCpp::CmpiInstanceResult {
    void returnInstance(CmpiCpp::CmpiInstance const& instance) override {
        rows.push_back(instance);
    }
    std::vector<CmpiCpp::CmpiInstance> rows;
};

class AssociationShape : public ::testing::Test {
protected:
    void SetUp() override { assoctest::pinHostName(); }

    Logger logger{"assoc-test"};
    QLN::QLN_VDArraySystem arraySystem{"PSER0001"};
    QLN::QLN_VDArrayController arrayController{"PSER0001"};
    QLN::QLN_VDPhysicalPackage package{"PSER0001"};
    QLN::QLN_VDSCSIProtocolEndpoint endpoint{"PSER0001"};
    QLN::QLN_VDArraySystem stranger{"SOMEONE-ELSE"};
};

std::vector<std::string> keyNames(CmpiObjectPath const& path) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < path.getKeyCount(); ++i) {
        names.push_back(path.getKeyNameAt(i).str());
    }
    return names;
}

std::vector<std::string> propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i) {
        names.push_back(instance.getPropertyNameAt(i).str());
    }
    return names;
}

} // namespace

// A role written in the wrong order changes the path text that clients and
// the object manager's caches key on.
TEST_F(AssociationShape, WrittenFirstRoleLeadsInPathAndInstance) {
    QLN::QLN_VDArraySystemArrayController firstLeads(logger, "root/mwq", &arraySystem,
                                                     &arrayController);
    QLN::QLN_VDPhysicalPackageArraySystem secondLeads(logger, "root/mwq", &package, &arraySystem);
    QLN::QLN_VDArraySystemSCSIProtocolEndpoint antecedentLeads(logger, "root/mwq", &arraySystem,
                                                               &endpoint);

    CmpiObjectPath path = firstLeads.getPath();
    EXPECT_EQ(path.getClassName().str(), "QLN_VDArraySystemArrayController");
    EXPECT_EQ(path.getNameSpace().str(), "root/mwq");
    EXPECT_EQ(path.getHost().str(), "assoc-host");
    EXPECT_EQ(keyNames(path), (std::vector<std::string>{"GroupComponent", "PartComponent"}));
    EXPECT_EQ(path.getKey("GroupComponent").getObjectPath(), arraySystem.getPath());
    EXPECT_EQ(path.getKey("PartComponent").getObjectPath(), arrayController.getPath());
    EXPECT_EQ(propertyNames(firstLeads.getInstance()),
              (std::vector<std::string>{"GroupComponent", "PartComponent"}));
    EXPECT_EQ(firstLeads.getInstance().getProperty("PartComponent").getType(), CMPI_ref);

    // The Dependent (second end) leads although the Antecedent is the first argument.
    EXPECT_EQ(keyNames(secondLeads.getPath()),
              (std::vector<std::string>{"Dependent", "Antecedent"}));
    EXPECT_EQ(propertyNames(secondLeads.getInstance()),
              (std::vector<std::string>{"Dependent", "Antecedent"}));
    EXPECT_EQ(secondLeads.getPath().getKey("Antecedent").getObjectPath(), package.getPath());

    EXPECT_EQ(keyNames(antecedentLeads.getPath()),
              (std::vector<std::string>{"Antecedent", "Dependent"}));
    EXPECT_EQ(antecedentLeads.getClassName().str(), "QLN_VDArraySystemSCSIProtocolEndpoint");
}

TEST_F(AssociationShape, EndServedElsewhereIsKeptAsOwnCopyOfItsPath) {
    CmpiObjectPath host = QLN::QLNUtil::getComputerSystemPath();
    auto association = std::make_unique<QLN::QLN_VDComputerSystemArraySystem>(logger, "root/mwq",
                                                                              host, &arraySystem);
    host.addKey("Name", "changed-after-construction");

    CmpiObjectPath const path = association->getPath();
    EXPECT_EQ(path.getKey("GroupComponent").getObjectPath(), QLN::QLNUtil::getComputerSystemPath());
    EXPECT_EQ(association->otherEnd(QLN::QLNUtil::getComputerSystemPath()), arraySystem.getPath());
    EXPECT_EQ(association->otherEnd(arraySystem.getPath()), QLN::QLNUtil::getComputerSystemPath());

    // The hosted collection is the one path-of class whose outside end leads.
    QLN::QLN_VDStorageSpecificCollection group{"group"};
    QLN::QLN_VDStorageGroupHostedCollection hosted(logger, "root/mwq",
                                                   QLN::QLNUtil::getComputerSystemPath(), &group);
    EXPECT_EQ(keyNames(hosted.getPath()), (std::vector<std::string>{"Antecedent", "Dependent"}));

    QLN::QLN_PCIDevice pci{"MWQ:QLN_PCIDevice:0000:1a:12.0"};
    QLN::QLN_VDPortController portController{"PSER0001"};
    QLN::QLN_VDPortControllerPCIDevice identity(logger, "root/mwq", pci.getPath(), &portController);
    EXPECT_EQ(keyNames(identity.getPath()),
              (std::vector<std::string>{"SystemElement", "SameElement"}));
}

TEST_F(AssociationShape, OtherEndWalksBothWaysAndGivesEmptyPathToStranger) {
    QLN::QLN_VDArraySystemArrayController association(logger, "root/mwq", &arraySystem,
                                                      &arrayController);
    EXPECT_EQ(association.otherEnd(arraySystem.getPath()), arrayController.getPath());
    EXPECT_EQ(association.otherEnd(arrayController.getPath()), arraySystem.getPath());

    CmpiObjectPath const none = association.otherEnd(stranger.getPath());
    EXPECT_TRUE(none.empty());
    EXPECT_TRUE(association.otherEnd(CmpiObjectPath()).empty());
}

// A volume cached by itself would have one path at both ends: the end whose
// role is written second (the cached volume, Antecedent) is tried first, so
// the walk lands on the cache volume's side.
TEST_F(AssociationShape, SelfAssociationAnswersByRoleOrder) {
    QLN::QLN_VDStorageVolume cache{"600508B1"};
    QLN::QLN_VDStorageVolume cached{"600508B2"};
    QLN::QLN_VDCacheVolumeStorageVolume pair(logger, "root/mwq", &cache, &cached);
    EXPECT_EQ(keyNames(pair.getPath()), (std::vector<std::string>{"Dependent", "Antecedent"}));
    EXPECT_EQ(pair.otherEnd(cache.getPath()), cached.getPath());
    EXPECT_EQ(pair.otherEnd(cached.getPath()), cache.getPath());

    QLN::QLN_VDCacheVolumeStorageVolume same(logger, "root/mwq", &cache, &cache);
    EXPECT_EQ(same.otherEnd(cache.getPath()), cache.getPath());
}

// The collection indexes associations by their reference keys and walks
// otherEnd: a wrong role or a path without host breaks what clients see.
TEST_F(AssociationShape, CollectionAnswersReferencesAndAssociatorsThroughTheClasses) {
    QLN::CmpiManagedInstanceCollection collection(logger);
    auto* system = new QLN::QLN_VDArraySystem("PSER0001");
    auto* controller = new QLN::QLN_VDArrayController("PSER0001");
    auto* physical = new QLN::QLN_VDPhysicalPackage("PSER0001");
    collection.createInstance(system);
    collection.createInstance(controller);
    collection.createInstance(physical);
    collection.createInstance(
        new QLN::QLN_VDArraySystemArrayController(logger, "root/mwq", system, controller));
    collection.createInstance(
        new QLN::QLN_VDPhysicalPackageArraySystem(logger, "root/mwq", physical, system));
    collection.createInstance(new QLN::QLN_VDComputerSystemArraySystem(
        logger, "root/mwq", QLN::QLNUtil::getComputerSystemPath(), system));

    CmpiCpp::CmpiContext context;
    Instances references;
    collection.references(references, context, system->getPath(), {}, {}, nullptr);
    ASSERT_EQ(references.rows.size(), 3u);
    for (auto const& row : references.rows) {
        for (unsigned int i = 0; i < row.getPropertyCount(); ++i) {
            CmpiCpp::CmpiData const& value = row.getPropertyAt(i);
            ASSERT_EQ(value.getType(), CMPI_ref);
            EXPECT_EQ(value.getObjectPath().getHost().str(), "assoc-host");
        }
    }

    Paths parts;
    collection.associatorNames(parts, context, system->getPath(), {}, {}, "GroupComponent",
                               "PartComponent");
    ASSERT_EQ(parts.rows.size(), 1u);
    EXPECT_EQ(parts.rows[0], controller->getPath());

    Paths hosts;
    collection.associatorNames(hosts, context, system->getPath(), "QLN_VDComputerSystemArraySystem",
                               {}, {}, {});
    ASSERT_EQ(hosts.rows.size(), 1u);
    EXPECT_EQ(hosts.rows[0], QLN::QLNUtil::getComputerSystemPath());

    Paths packages;
    collection.associatorNames(packages, context, system->getPath(), {}, {}, "Dependent",
                               "Antecedent");
    ASSERT_EQ(packages.rows.size(), 1u);
    EXPECT_EQ(packages.rows[0], physical->getPath());
}

TEST(AssociationLog, ConstructionAndDestructionAreLoggedUnderTheClassName) {
    auto const file = std::filesystem::temp_directory_path() /
                      ("veldra-assoc-" + std::to_string(::getpid()) + ".log");
    ::setenv("VELDRA_LOG", file.c_str(), 1);
    ::setenv("VELDRA_LOG_LEVEL", "info", 1);
    QLN::FrameworkConfig::reload();
    {
        Logger logger{"QLNVeldra"};
        QLN::QLN_VDArraySystem system{"A"};
        QLN::QLN_VDArrayController controller{"A"};
        QLN::QLN_VDArraySystemArrayController association(logger, "root/mwq", &system, &controller);
    }
    ::setenv("VELDRA_LOG", "stderr", 1);
    QLN::FrameworkConfig::reload();
    std::stringstream text;
    text << std::ifstream(file).rdbuf();
    std::filesystem::remove(file);
    std::string const all = text.str();
    auto const made = all.find("QLNVeldra:QLN_VDArraySystemArrayController");
    ASSERT_NE(made, std::string::npos) << all;
    auto const cxtor = all.find("cxtor()", made);
    ASSERT_NE(cxtor, std::string::npos) << all;
    EXPECT_NE(all.find("dxtor()", cxtor), std::string::npos) << all;
}

// The ends are typed: swapped or foreign ends do not compile.
static_assert(std::is_constructible_v<QLN::QLN_VDArraySystemDAPort, Logger&, std::string const&,
                                      QLN::QLN_VDArraySystem*, QLN::QLN_VDDAPort*>);
static_assert(!std::is_constructible_v<QLN::QLN_VDArraySystemDAPort, Logger&, std::string const&,
                                       QLN::QLN_VDDAPort*, QLN::QLN_VDArraySystem*>);
static_assert(!std::is_constructible_v<QLN::QLN_VDArraySystemDAPort, Logger&, std::string const&,
                                       QLN::CmpiManagedInstance*, QLN::CmpiManagedInstance*>);
