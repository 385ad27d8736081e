// The provider library as an object manager sees it: opened with dlopen and
// reached only through the four generic entry points and their tables,
// with the object manager's own broker.
#include "Broker.h"
#include "BrokerContext.h"
#include "BrokerObjectPath.h"
#include "BrokerResult.h"
#include "ProviderTestSupport.h"
#include "cmpift.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Cimom;

using namespace provider_test;

namespace {

template <typename MI>
using Factory = MI* (*)(CMPIBroker const*, CMPIContext const*, char const*, CMPIStatus*);

struct Tables {
    CMPIInstanceMI* instance = nullptr;
    CMPIAssociationMI* association = nullptr;
    CMPIMethodMI* method = nullptr;
    CMPIIndicationMI* indication = nullptr;
};

class EntryPoints : public ::testing::Test {
protected:
    void SetUp() override {
        _library = ::dlopen(VELDRA_LIB_DIR "/libQLNVeldra.so", RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(_library, nullptr) << ::dlerror();
    }
    void TearDown() override {
        if (_library != nullptr) {
            ::dlclose(_library);
        }
    }

    template <typename MI> MI* create(char const* symbol, char const* name) {
        auto factory = reinterpret_cast<Factory<MI>>(::dlsym(_library, symbol));
        EXPECT_NE(factory, nullptr) << symbol;
        if (factory == nullptr) {
            return nullptr;
        }
        ObjectRegistry::Scope scope(_broker.registry());
        CMPIStatus status{CMPI_RC_OK, nullptr};
        return factory(_broker.cmpi(), _broker.newContext("root/mwq", 0)->cmpi(), name, &status);
    }

    Tables createAll(char const* name) {
        Tables t;
        t.instance = create<CMPIInstanceMI>("_Generic_Create_InstanceMI", name);
        t.association = create<CMPIAssociationMI>("_Generic_Create_AssociationMI", name);
        t.method = create<CMPIMethodMI>("_Generic_Create_MethodMI", name);
        t.indication = create<CMPIIndicationMI>("_Generic_Create_IndicationMI", name);
        return t;
    }

    CMPIObjectPath* path(char const* className) {
        CimObjectPath p("root/mwq", className);
        p.addKey("Name", CimValue::string("nothing-here"));
        return _broker.registry().make<BrokerObjectPath>(p)->cmpi();
    }

    void cleanupAll(Tables const& t) {
        ObjectRegistry::Scope scope(_broker.registry());
        CMPIContext* context = _broker.newContext("root/mwq", 0)->cmpi();
        EXPECT_EQ(t.instance->ft->cleanup(t.instance, context, true).rc, CMPI_RC_OK);
        EXPECT_EQ(t.association->ft->cleanup(t.association, context, true).rc, CMPI_RC_OK);
        EXPECT_EQ(t.method->ft->cleanup(t.method, context, true).rc, CMPI_RC_OK);
        EXPECT_EQ(t.indication->ft->cleanup(t.indication, context, true).rc, CMPI_RC_OK);
    }

    Broker _broker;
    void* _library = nullptr;
};

TEST_F(EntryPoints, AnotherProviderNameGetsNothingAndLeavesNoTrace) {
    LogCapture log;
    useScenario("demo.yaml");
    Tables const t = createAll("SomeoneElse");
    EXPECT_EQ(t.instance, nullptr);
    EXPECT_EQ(t.association, nullptr);
    EXPECT_EQ(t.method, nullptr);
    EXPECT_EQ(t.indication, nullptr);
    EXPECT_EQ(log.text(), "");
}

TEST_F(EntryPoints, FailedConstructionIsLoggedAndTheNextCallBuildsAnew) {
    LogCapture log;
    useScenario("no-such-scenario.yaml");
    EXPECT_EQ(create<CMPIInstanceMI>("_Generic_Create_InstanceMI", "QLNVeldra"), nullptr);
    EXPECT_EQ(create<CMPIMethodMI>("_Generic_Create_MethodMI", "QLNVeldra"), nullptr);
    EXPECT_EQ(log.count("_Generic_Create_InstanceMI: QLNVeldra constructor threw std::exception: "
                        "storage access could not be started"),
              1)
        << log.text();
    EXPECT_EQ(log.count("_Generic_Create_MethodMI: QLNVeldra constructor threw std::exception: "),
              1);

    useScenario("demo.yaml");
    int const builtBefore = log.count("QLNVeldra: cxtor()");
    Tables const t = createAll("QLNVeldra");
    ASSERT_NE(t.instance, nullptr);
    ASSERT_NE(t.association, nullptr);
    ASSERT_NE(t.method, nullptr);
    ASSERT_NE(t.indication, nullptr);
    EXPECT_EQ(log.count("QLNVeldra: cxtor()"), builtBefore + 1)
        << "four entry points, one provider";

    {
        ObjectRegistry::Scope scope(_broker.registry());
        BrokerResult* result = _broker.registry().make<BrokerResult>();
        CMPIStatus const status =
            t.instance->ft->getInstance(t.instance, _broker.newContext("root/mwq", 0)->cmpi(),
                                        result->cmpi(), path("QLN_VDDiskDrive"), nullptr);
        EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
    }
    {
        ObjectRegistry::Scope scope(_broker.registry());
        BrokerResult* result = _broker.registry().make<BrokerResult>();
        CMPIArgs* in = _broker.cmpi()->eft->newArgs(_broker.cmpi(), nullptr);
        CMPIArgs* out = _broker.cmpi()->eft->newArgs(_broker.cmpi(), nullptr);
        CMPIStatus const status = t.method->ft->invokeMethod(
            t.method, _broker.newContext("root/mwq", 0)->cmpi(), result->cmpi(),
            path("QLN_VDStorageEnclosure"), "Identify", in, out);
        EXPECT_EQ(status.rc, CMPI_RC_OK) << "an unknown method is a return value, not an error";
        std::vector<CimValue> const data = result->takeData();
        ASSERT_EQ(data.size(), 1u);
        EXPECT_EQ(data[0].type(), CMPI_uint32);
        EXPECT_EQ(data[0].asUnsigned(), 17u);
    }

    // Each table holds a reference; the last cleanup unloads the provider.
    cleanupAll(t);
    EXPECT_EQ(log.count("dxtor() unloading provider"), 1) << log.text();
}

// SFCB makes one table per registered class (105 instance, 66 association
// and 4 method interfaces on this provider) and at shutdown cleans up once
// per interface type, terminating. The first such cleanup must unload the
// provider; the tables cleaned up after it, or asked for anything, must not
// touch the deleted provider; and a later start builds a new one.
TEST_F(EntryPoints, TerminatingCleanupUnloadsWhateverReferencesRemain) {
    LogCapture log;
    useScenario("demo.yaml");
    std::vector<CMPIInstanceMI*> instances;
    std::vector<CMPIAssociationMI*> associations;
    std::vector<CMPIMethodMI*> methods;
    for (int i = 0; i < 105; ++i)
        instances.push_back(create<CMPIInstanceMI>("_Generic_Create_InstanceMI", "QLNVeldra"));
    for (int i = 0; i < 66; ++i) {
        associations.push_back(
            create<CMPIAssociationMI>("_Generic_Create_AssociationMI", "QLNVeldra"));
    }
    for (int i = 0; i < 4; ++i)
        methods.push_back(create<CMPIMethodMI>("_Generic_Create_MethodMI", "QLNVeldra"));
    EXPECT_EQ(log.count("QLNVeldra: cxtor()"), 1);

    ObjectRegistry::Scope scope(_broker.registry());
    CMPIContext* context = _broker.newContext("root/mwq", 0)->cmpi();
    EXPECT_EQ(instances[0]->ft->cleanup(instances[0], context, true).rc, CMPI_RC_OK);
    EXPECT_EQ(log.count("dxtor() unloading provider"), 1) << "torn down with 174 references left";
    EXPECT_EQ(associations[0]->ft->cleanup(associations[0], context, true).rc, CMPI_RC_OK);
    EXPECT_EQ(methods[0]->ft->cleanup(methods[0], context, true).rc, CMPI_RC_OK);
    BrokerResult* result = _broker.registry().make<BrokerResult>();
    EXPECT_EQ(
        instances[1]
            ->ft
            ->getInstance(instances[1], context, result->cmpi(), path("QLN_VDDiskDrive"), nullptr)
            .rc,
        CMPI_RC_ERR_INVALID_HANDLE);
    EXPECT_EQ(log.count("dxtor() unloading provider"), 1);

    Tables const again = createAll("QLNVeldra");
    ASSERT_NE(again.instance, nullptr);
    EXPECT_EQ(log.count("QLNVeldra: cxtor()"), 2) << "a start after the teardown builds anew";
    cleanupAll(again);
    EXPECT_EQ(log.count("dxtor() unloading provider"), 2);
}

} // namespace
