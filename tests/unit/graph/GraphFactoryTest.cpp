// The first instance graph as the provider builds it from a scenario: which
// instances exist per controller, how they are numbered and wired, and what
// the baseline leaves for the worker.
#include "CapturedMethodResult.h"
#include "CmpiArgs.h"
#include "CmpiData.h"
#include "ModelClassLists.h"
#include "ProviderTestSupport.h"
#include "QLNVeldraProvider.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>

using namespace provider_test;
using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;

namespace {

std::unique_ptr<QLN::QLNVeldraProvider> providerOn(char const* scenario) {
    useScenario(scenario);
    Logger logger("QLNVeldra");
    return std::make_unique<QLN::QLNVeldraProvider>(CmpiBroker(), logger);
}

std::vector<CmpiObjectPath> namesOf(QLN::QLNVeldraProvider& provider, char const* className) {
    Paths paths;
    provider.enumInstanceNames(
        CmpiContext(), CmpiCpp::makeCmpiObjectPath(CmpiBroker(), "root/mwq", className), paths);
    return paths.rows;
}

std::size_t countOf(QLN::QLNVeldraProvider& provider, char const* className) {
    return namesOf(provider, className).size();
}

} // namespace

TEST(GraphFactory, TwoControllersShareOneStorageGroup) {
    auto provider = providerOn("demo.yaml");
    for (char const* className : perController) {
        EXPECT_EQ(countOf(*provider, className), 2u) << className;
    }
    // A primordial and a concrete capabilities record per controller.
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageCapabilities"), 4u);
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageSpecificCollection"), 1u);
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageGroupHostedCollection"), 1u);
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageSpecificCollectionArraySystem"), 2u);
    // The demo's controllers list three and two initiator ports.
    EXPECT_EQ(countOf(*provider, "QLN_VDISASPort"), 5u);
    for (char const* className :
         {"QLN_VDArraySystemISASPort", "QLN_VDISASSCSIProtocolEndpoint",
          "QLN_VDArraySystemISASSCSIProtocolEndpoint", "QLN_VDISASPortISASSCSIProtocolEndpoint",
          "QLN_VDPortControllerISASPort"}) {
        EXPECT_EQ(countOf(*provider, className), 5u) << className;
    }
}

TEST(GraphFactory, ControllersAreNumberedInDeliveryOrderAndEachHasPoolOne) {
    auto provider = providerOn("demo.yaml");
    std::vector<std::string> pools;
    for (CmpiObjectPath const& path : namesOf(*provider, "QLN_VDStoragePool")) {
        pools.push_back(path.getKey("InstanceID").getString());
    }
    EXPECT_EQ(pools, (std::vector<std::string>{"QLN_VDStoragePool-1-1", "QLN_VDStoragePool-2-1"}));
    std::vector<std::string> firmware;
    for (CmpiObjectPath const& path : namesOf(*provider, "QLN_VDFirmware")) {
        firmware.push_back(path.getKey("InstanceID").getString());
    }
    EXPECT_EQ(firmware, (std::vector<std::string>{"MWQ:QLN_VDFirmware-1", "MWQ:QLN_VDFirmware-2"}));
}

TEST(GraphFactory, ControllerWithNothingBehindItStillStandsWhole) {
    auto provider = providerOn("empty.yaml");
    for (char const* className : perController) {
        EXPECT_EQ(countOf(*provider, className), 1u) << className;
    }
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageSpecificCollection"), 1u);
}

TEST(GraphFactory, NoControllerMeansAnEmptyGraphAndOneErrorLine) {
    LogCapture log;
    auto provider = providerOn("none.yaml");
    EXPECT_EQ(provider->instanceCount(), 0u);
    EXPECT_EQ(log.count("ERROR QLNVeldra: failed to _internalVDControllerMRA::getFirstData()"), 1)
        << log.text();
    EXPECT_EQ(countOf(*provider, "QLN_VDStorageSpecificCollection"), 0u)
        << "no array system, no storage group";
}

TEST(GraphFactory, ArraySystemIdentifyReachesTheControllerThroughTheProvider) {
    auto provider = providerOn("minimal.yaml");
    std::vector<CmpiObjectPath> const systems = namesOf(*provider, "QLN_VDArraySystem");
    ASSERT_EQ(systems.size(), 1u);
    CmpiCpp::CmpiArgs in;
    in.setArg("Duration", CmpiCpp::CmpiData(static_cast<unsigned int>(4)));
    QLN::CapturedMethodResult result;
    provider->invokeMethod(CmpiContext(), systems[0], CmpiName("Identify"), in, result);
    EXPECT_EQ(result.returnValue(), 0u);
}
