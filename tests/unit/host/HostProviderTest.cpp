// The host provider: what it serves for a scenario, that its paths are the
// ones the main provider's associations point at, and that it loads through
// its entry points as an object manager would load it.
#include "CmpiInstanceResult.h"
#include "CmpiObjectPathResult.h"
#include "CmpiStatus.h"
#include "FrameworkConfig.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "QLNVeldraHostProvider.h"
#include "QLN_Chassis.h"
#include "cmpift.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiObjectPath;

namespace {

struct Paths : CmpiCpp::CmpiObjectPathResult {
    void returnObjectPath(CmpiObjectPath const& path) override { rows.push_back(path); }
    std::vector<CmpiObjectPath> rows;
};
struct Instances : CmpiCpp::CmpiInstanceResult {
    void returnInstance(CmpiInstance const& instance) override { rows.push_back(instance); }
    std::vector<CmpiInstance> rows;
};

void useScenario(char const* name) {
    ::setenv("VELDRA_SCENARIO", (std::string(VELDRA_DATA_DIR) + "/scenarios/" + name).c_str(), 1);
    ::setenv("VELDRA_HOSTNAME", "host-under-test", 1);
    ::setenv("VELDRA_LOG_LEVEL", "warn", 1);
    QLN::FrameworkConfig::reload();
}

class TempDir {
public:
    TempDir() {
        static std::atomic<int> next{0};
        _path = std::filesystem::temp_directory_path() /
                ("veldra-host-" + std::to_string(::getpid()) + "-" + std::to_string(next++));
        std::filesystem::create_directories(_path);
    }
    ~TempDir() { std::filesystem::remove_all(_path); }
    void write(char const* name, char const* text) const { std::ofstream(_path / name) << text; }
    std::string path() const { return _path.string(); }

private:
    std::filesystem::path _path;
};

std::vector<CmpiObjectPath> namesOf(QLN::QLNVeldraHostProvider& provider, char const* className) {
    Paths paths;
    provider.enumInstanceNames(CmpiCpp::CmpiContext(), CmpiObjectPath("root/mwq", className),
                               paths);
    return paths.rows;
}

} // namespace

TEST(HostProvider, ServesTheHostAndOnePCIDevicePerController) {
    useScenario("minimal.yaml");
    Logger logger{"QLNVeldraHost"};
    QLN::QLNVeldraHostProvider provider(CmpiCpp::CmpiBroker(), logger);
    ASSERT_EQ(provider.instanceCount(), 3u);

    auto const systems = namesOf(provider, "QLN_ComputerSystem");
    ASSERT_EQ(systems.size(), 1u);
    EXPECT_EQ(systems[0], QLN::QLNUtil::getComputerSystemPath());
    EXPECT_EQ(systems[0].getKey("Name").getString(), "host-under-test");
    auto const chassis = namesOf(provider, "QLN_Chassis");
    ASSERT_EQ(chassis.size(), 1u);
    EXPECT_EQ(chassis[0], QLN::QLNUtil::getChassisPath());

    // The device's key is the one the port controller association writes.
    auto const devices = namesOf(provider, "QLN_PCIDevice");
    ASSERT_EQ(devices.size(), 1u);
    EXPECT_EQ(devices[0].getKey("DeviceID").getString(), "MWQ:QLN_PCIDevice:0000:1a:12.0");
    EXPECT_EQ(devices[0].getKey("SystemName").getString(), "host-under-test");

    Instances found;
    provider.getInstance(CmpiCpp::CmpiContext(), devices[0], nullptr, found);
    ASSERT_EQ(found.rows.size(), 1u);
    CmpiInstance const& device = found.rows[0];
    EXPECT_EQ(device.getProperty("BusNumber").getUint8(), 0x1a);
    EXPECT_EQ(device.getProperty("DeviceNumber").getUint8(), 12);
    EXPECT_EQ(device.getProperty("FunctionNumber").getUint8(), 0);
    EXPECT_EQ(device.getProperty("ElementName").getString(), "QLN Veldra 8i");
    EXPECT_EQ(device.getProperty("OtherIdentifyingInfo").getArray().getElementAt(0).getString(),
              "PCI slot 1");
}

TEST(HostProvider, EveryControllerOfTheDemoHasItsDevice) {
    useScenario("demo.yaml");
    Logger logger{"QLNVeldraHost"};
    QLN::QLNVeldraHostProvider provider(CmpiCpp::CmpiBroker(), logger);
    auto const devices = namesOf(provider, "QLN_PCIDevice");
    ASSERT_GE(devices.size(), 2u);
    EXPECT_EQ(provider.instanceCount(), devices.size() + 2);
    EXPECT_FALSE(devices[0] == devices[1]);
}

TEST(HostProvider, UnknownPathIsNotFoundAndNoScenarioLeavesTheHost) {
    useScenario("none.yaml");
    Logger logger{"QLNVeldraHost"};
    QLN::QLNVeldraHostProvider provider(CmpiCpp::CmpiBroker(), logger);
    EXPECT_TRUE(namesOf(provider, "QLN_PCIDevice").empty());
    EXPECT_EQ(namesOf(provider, "QLN_ComputerSystem").size(), 1u);

    CmpiObjectPath stranger("root/mwq", "QLN_ComputerSystem");
    stranger.addKey("CreationClassName", "QLN_ComputerSystem");
    stranger.addKey("Name", "some-other-host");
    Instances none;
    try {
        provider.getInstance(CmpiCpp::CmpiContext(), stranger, nullptr, none);
        FAIL() << "a path of another host was answered";
    } catch (CmpiCpp::CmpiStatus const& status) {
        EXPECT_EQ(status.rc(), CMPI_RC_ERR_NOT_FOUND);
    }
    EXPECT_TRUE(none.rows.empty());
}

TEST(HostChassis, ReportsTrimmedDmiFieldsAndLeavesOutWhatCannotBeRead) {
    useScenario("none.yaml");
    TempDir dmi;
    dmi.write("sys_vendor", "  Example Systems \n");
    dmi.write("product_name", "R-200\n");
    Logger logger{"QLNVeldraHost"};
    QLN::QLN_Chassis chassis(logger, "root/mwq", dmi.path());
    CmpiInstance const instance = chassis.getInstance();
    EXPECT_EQ(instance.getProperty("Manufacturer").getString(), "Example Systems");
    EXPECT_EQ(instance.getProperty("Model").getString(), "R-200");
    EXPECT_FALSE(instance.hasProperty("SerialNumber"));
    EXPECT_EQ(instance.getProperty("Tag").getString(), "host-under-test");
    EXPECT_EQ(instance.getProperty("PackageType").getUint16(), 3);
}

// The library as an object manager sees it.
TEST(HostEntryPoints, OnlyTheHostNameGetsAnInstanceTable) {
    useScenario("minimal.yaml");
    std::string const library = std::string(VELDRA_LIB_DIR) + "/libQLNVeldraHost.so";
    void* handle = ::dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(handle, nullptr) << ::dlerror();
    using InstanceFactory =
        CMPIInstanceMI* (*)(CMPIBroker const*, CMPIContext const*, char const*, CMPIStatus*);
    using AssociationFactory =
        CMPIAssociationMI* (*)(CMPIBroker const*, CMPIContext const*, char const*, CMPIStatus*);
    auto instanceMI =
        reinterpret_cast<InstanceFactory>(::dlsym(handle, "_Generic_Create_InstanceMI"));
    auto associationMI =
        reinterpret_cast<AssociationFactory>(::dlsym(handle, "_Generic_Create_AssociationMI"));
    ASSERT_NE(instanceMI, nullptr);
    ASSERT_NE(associationMI, nullptr);
    for (char const* other : {"_Generic_Create_MethodMI", "_Generic_Create_IndicationMI"}) {
        EXPECT_NE(::dlsym(handle, other), nullptr) << other;
    }
    // Nothing but the factories leaves the library.
    EXPECT_EQ(::dlsym(handle, "_ZN3QLN21QLNVeldraHostProviderD0Ev"), nullptr);

    EXPECT_EQ(instanceMI(nullptr, nullptr, "QLNVeldra", nullptr), nullptr);
    EXPECT_EQ(associationMI(nullptr, nullptr, "QLNVeldraHost", nullptr), nullptr);

    CMPIInstanceMI* table = instanceMI(nullptr, nullptr, "QLNVeldraHost", nullptr);
    ASSERT_NE(table, nullptr);
    ASSERT_NE(table->ft, nullptr);
    EXPECT_NE(table->ft->enumerateInstanceNames, nullptr);
    // Releasing the only table unloads the provider; a new call builds anew.
    CMPIStatus const released = table->ft->cleanup(table, nullptr, false);
    EXPECT_EQ(released.rc, CMPI_RC_OK);
    CMPIInstanceMI* again = instanceMI(nullptr, nullptr, "QLNVeldraHost", nullptr);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->ft->cleanup(again, nullptr, true).rc, CMPI_RC_OK);
    ::dlclose(handle);
}
