// The provider function tables driven as an object manager drives them: with
// the object manager's own broker, its CMPI objects as arguments and its
// result objects as sinks.
#include "TestProvider.h"

#include "Broker.h"
#include "BrokerArgs.h"
#include "BrokerContext.h"
#include "BrokerObjectPath.h"
#include "BrokerResult.h"
#include "Logger.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace Cimom;

using namespace CmpiCpp;

namespace {

std::string textOf(CMPIStatus const& st) {
    if (!st.msg)
        return std::string();
    char const* s = st.msg->ft->getCharPtr(st.msg, nullptr);
    return s ? s : "";
}

class CmpiTable : public ::testing::Test {
protected:
    CmpiTable()
        : scope(broker.registry()), provider(broker.cmpi(), &destroyed, nullptr),
          ctx(broker.newContext("root/mwq", 0)->cmpi()) {}

    CMPIObjectPath* incoming(CimObjectPath path) {
        return broker.registry().make<BrokerObjectPath>(std::move(path))->cmpi();
    }
    CMPIObjectPath* diskClassPath() {
        return incoming(CimObjectPath("root/mwq", "QLN_VDDiskDrive"));
    }
    BrokerResult* newResult() { return broker.registry().make<BrokerResult>(); }

    // A disk as a model class would build it: keys, then properties of the
    // types the model uses.
    static CmpiInstance disk(char const* id) {
        CmpiObjectPath path("root/mwq", "QLN_VDDiskDrive");
        path.addKey("CreationClassName", "QLN_VDDiskDrive");
        path.addKey("DeviceID", id);
        CmpiInstance inst(path);
        inst.addProperty("Name", std::string("Disk ") + id);
        CmpiArray status(1, CMPI_uint16);
        status.setElementAt(0, static_cast<unsigned short>(2));
        inst.addProperty("OperationalStatus", status);
        inst.addProperty("BlockSize", 512ull);
        inst.addProperty("InstallDate", CmpiDateTime(1000000ull, false));
        CmpiObjectPath system("root/mwq", "QLN_VDArraySystem");
        system.addKey("Name", "sys0");
        inst.addProperty("System", system);
        inst.addProperty("Missing", CmpiData::null(CMPI_string));
        return inst;
    }

    Broker broker;
    ObjectRegistry::Scope scope;
    bool destroyed = false;
    TestProvider provider;
    CMPIContext const* ctx;
};

} // namespace

// Catches: paths or instances that lose namespace, key types, property order
// or property types on the way to the object manager, a missing "done", and an
// incoming path read wrongly.
TEST_F(CmpiTable, InstancesAndPathsCrossIntact) {
    provider.instances = {disk("0:1"), disk("0:2")};
    CMPIInstanceMI* mi = provider.getInstanceMI();

    CimObjectPath request("root/mwq", "QLN_VDDiskDrive");
    request.setHost("h");
    request.addKey("Slot", CimValue::uint16(7));
    BrokerResult* names = newResult();
    ASSERT_EQ(mi->ft->enumerateInstanceNames(mi, ctx, names->cmpi(), incoming(request)).rc,
              CMPI_RC_OK);
    EXPECT_EQ(provider.lastPath.getNameSpace().str(), "root/mwq");
    EXPECT_EQ(provider.lastPath.getHost().str(), "h");
    EXPECT_EQ(provider.lastPath.getClassName().str(), "QLN_VDDiskDrive");
    EXPECT_EQ(provider.lastPath.getKey("slot").getType(), CMPI_uint16);
    EXPECT_EQ(provider.lastPath.getKey("slot").getUint16(), 7);
    EXPECT_TRUE(names->done());
    std::vector<CimObjectPath> paths = names->takePaths();
    ASSERT_EQ(paths.size(), 2u);
    EXPECT_EQ(paths[1].nameSpace(), "root/mwq");
    EXPECT_EQ(paths[1].keys().size(), 2u);
    EXPECT_EQ(paths[1].key("DeviceID")->asString(), "0:2");

    BrokerResult* all = newResult();
    ASSERT_EQ(mi->ft->enumerateInstances(mi, ctx, all->cmpi(), diskClassPath(), nullptr).rc,
              CMPI_RC_OK);
    EXPECT_EQ(provider.lastProperties, nullptr);
    std::vector<CimInstance> got = all->takeInstances();
    ASSERT_EQ(got.size(), 2u);
    std::vector<CimInstance::Property> const& props = got[0].properties();
    ASSERT_EQ(props.size(), 8u);
    char const* order[] = {"CreationClassName", "DeviceID",    "Name",   "OperationalStatus",
                           "BlockSize",         "InstallDate", "System", "Missing"};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(props[i].name, order[i]);
    EXPECT_EQ(props[2].value.asString(), "Disk 0:1");
    EXPECT_EQ(props[3].value.type(), CMPI_uint16A);
    ASSERT_EQ(props[3].value.elements().size(), 1u);
    EXPECT_EQ(props[3].value.elements()[0].asUnsigned(), 2u);
    EXPECT_EQ(props[4].value.type(), CMPI_uint64);
    EXPECT_EQ(props[5].value.type(), CMPI_dateTime);
    EXPECT_EQ(props[5].value.asString(), "19700101000001.000000+000");
    EXPECT_EQ(props[6].value.type(), CMPI_ref);
    EXPECT_EQ(props[6].value.asReference().key("Name")->asString(), "sys0");
    EXPECT_TRUE(props[7].value.isNull());
    EXPECT_EQ(props[7].value.type(), CMPI_string);
    EXPECT_EQ(got[0].path().key("DeviceID")->asString(), "0:1");
}

// Catches: a property list ignored at the table (a client asking for two
// properties gets all), applied with case, or dropping the keys; and a null
// list read as "none".
TEST_F(CmpiTable, PropertyListCutsWhatReachesTheObjectManager) {
    provider.instances = {disk("0:1")};
    CMPIInstanceMI* mi = provider.getInstanceMI();
    char const* list[] = {"name", "BLOCKSIZE", nullptr};
    BrokerResult* cut = newResult();
    ASSERT_EQ(mi->ft->enumerateInstances(mi, ctx, cut->cmpi(), diskClassPath(), list).rc,
              CMPI_RC_OK);
    EXPECT_EQ(provider.lastProperties, list);
    std::vector<CimInstance> got = cut->takeInstances();
    ASSERT_EQ(got.size(), 1u);
    std::vector<std::string> names;
    for (auto const& p : got[0].properties())
        names.push_back(p.name);
    EXPECT_EQ(names,
              (std::vector<std::string>{"CreationClassName", "DeviceID", "Name", "BlockSize"}));

    CimObjectPath wanted("root/mwq", "qln_vddiskdrive");
    wanted.addKey("deviceid", CimValue::string("0:1"));
    wanted.addKey("CreationClassName", CimValue::string("QLN_VDDiskDrive"));
    char const* none[] = {nullptr};
    BrokerResult* one = newResult();
    ASSERT_EQ(mi->ft->getInstance(mi, ctx, one->cmpi(), incoming(wanted), none).rc, CMPI_RC_OK);
    got = one->takeInstances();
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].properties().size(), 2u);
}

// Catches: a thrown status that reaches the object manager as success or
// loses its code or message, and the unsupported write operations answering
// anything but "not supported".
TEST_F(CmpiTable, ThrownExceptionsBecomeStatusesWithMessages) {
    CMPIInstanceMI* mi = provider.getInstanceMI();
    CimObjectPath unknown("root/mwq", "QLN_VDDiskDrive");
    unknown.addKey("DeviceID", CimValue::string("nope"));
    BrokerResult* r = newResult();
    CMPIStatus st = mi->ft->getInstance(mi, ctx, r->cmpi(), incoming(unknown), nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(st.msg, nullptr); // thrown without a message
    EXPECT_FALSE(r->done());

    provider.before = [] { throw CmpiStatus(CMPI_RC_ERR_INVALID_CLASS, "no such class"); };
    st = mi->ft->enumerateInstanceNames(mi, ctx, newResult()->cmpi(), diskClassPath());
    EXPECT_EQ(st.rc, CMPI_RC_ERR_INVALID_CLASS);
    EXPECT_EQ(textOf(st), "no such class");
    provider.before = [] { throw std::out_of_range("index 9"); };
    st = mi->ft->enumerateInstances(mi, ctx, newResult()->cmpi(), diskClassPath(), nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(textOf(st), "index 9");
    provider.before = [] { throw "a C string"; };
    st = mi->ft->getInstance(mi, ctx, newResult()->cmpi(), diskClassPath(), nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    provider.before = [] {};

    CMPIInstance* inst = broker.cmpi()->eft->newInstance(broker.cmpi(), diskClassPath(), nullptr);
    EXPECT_EQ(mi->ft->createInstance(mi, ctx, newResult()->cmpi(), diskClassPath(), inst).rc,
              CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(
        mi->ft->modifyInstance(mi, ctx, newResult()->cmpi(), diskClassPath(), inst, nullptr).rc,
        CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(mi->ft->deleteInstance(mi, ctx, newResult()->cmpi(), diskClassPath()).rc,
              CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(
        mi->ft->execQuery(mi, ctx, newResult()->cmpi(), diskClassPath(), "SELECT * FROM X", "WQL")
            .rc,
        CMPI_RC_ERR_NOT_SUPPORTED);
}

// Catches: a provider that fails half-way through an enumeration handing
// the object manager a part of its answer as if it were the whole.
TEST_F(CmpiTable, AFailedEnumerationHandsOverNothing) {
    provider.instances = {disk("0:1"), disk("0:2")};
    provider.after = [] { throw CmpiStatus(CMPI_RC_ERR_FAILED, "lost the controller"); };
    CMPIInstanceMI* mi = provider.getInstanceMI();
    BrokerResult* all = newResult();
    CMPIStatus st = mi->ft->enumerateInstances(mi, ctx, all->cmpi(), diskClassPath(), nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    EXPECT_EQ(textOf(st), "lost the controller");
    EXPECT_TRUE(all->takeInstances().empty());
    EXPECT_FALSE(all->done());
    BrokerResult* names = newResult();
    st = mi->ft->enumerateInstanceNames(mi, ctx, names->cmpi(), diskClassPath());
    EXPECT_EQ(st.rc, CMPI_RC_ERR_FAILED);
    EXPECT_TRUE(names->takePaths().empty());
}

// Catches: association filters swapped or a null filter turned into a
// garbage name, and the association results not reaching the object manager.
TEST_F(CmpiTable, AssociationCallsPassFiltersAndReturnResults) {
    provider.instances = {disk("0:1")};
    CMPIAssociationMI* mi = provider.getAssociationMI();
    BrokerResult* r = newResult();
    char const* list[] = {"Name", nullptr};
    ASSERT_EQ(mi->ft
                  ->associators(mi, ctx, r->cmpi(), diskClassPath(), "QLN_Assoc", nullptr,
                                "Antecedent", nullptr, list)
                  .rc,
              CMPI_RC_OK);
    EXPECT_EQ(provider.lastNames, (std::vector<std::string>{"QLN_Assoc", "", "Antecedent", ""}));
    std::vector<CimInstance> got = r->takeInstances();
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].properties().size(), 3u);

    r = newResult();
    ASSERT_EQ(mi->ft
                  ->associatorNames(mi, ctx, r->cmpi(), diskClassPath(), nullptr, "QLN_R", nullptr,
                                    "Dependent")
                  .rc,
              CMPI_RC_OK);
    EXPECT_EQ(provider.lastNames, (std::vector<std::string>{"", "QLN_R", "", "Dependent"}));
    EXPECT_EQ(r->takePaths().size(), 1u);

    r = newResult();
    ASSERT_EQ(
        mi->ft->references(mi, ctx, r->cmpi(), diskClassPath(), "QLN_Assoc", "Role", nullptr).rc,
        CMPI_RC_OK);
    EXPECT_EQ(provider.lastNames, (std::vector<std::string>{"QLN_Assoc", "Role"}));
    EXPECT_EQ(r->takeInstances()[0].properties().size(), 8u);

    r = newResult();
    ASSERT_EQ(mi->ft->referenceNames(mi, ctx, r->cmpi(), diskClassPath(), nullptr, nullptr).rc,
              CMPI_RC_OK);
    EXPECT_TRUE(r->done());
    EXPECT_EQ(r->takePaths().size(), 1u);
}

// Catches: method arguments lost or mistyped on the way in, a return value
// not sent as uint32, and output arguments not reaching the out list.
TEST_F(CmpiTable, MethodCallCarriesArgumentsReturnValueAndOutArgs) {
    provider.methodValue = 17;
    CMPIMethodMI* mi = provider.getMethodMI();
    CimObjectPath target("root/mwq", "QLN_VDDiskDrive");
    target.addKey("DeviceID", CimValue::string("0:1"));
    auto* in = broker.registry().make<BrokerArgs>();
    in->add("Duration", CimValue::uint32(30));
    in->add("Tags", CimValue::array(CMPI_string, {CimValue::string("a"), CimValue::string("b")}));
    auto* out = broker.registry().make<BrokerArgs>();
    BrokerResult* r = newResult();
    ASSERT_EQ(
        mi->ft->invokeMethod(mi, ctx, r->cmpi(), incoming(target), "Echo", in->cmpi(), out->cmpi())
            .rc,
        CMPI_RC_OK);
    EXPECT_EQ(provider.lastNames, (std::vector<std::string>{"Echo"}));
    EXPECT_EQ(provider.lastPath.getKey("DeviceID").getString(), "0:1");
    EXPECT_EQ(provider.lastArgs.getArg("duration").getUint32(), 30u);
    EXPECT_EQ(provider.lastArgs.getArg("Tags").getArray().getElementAt(1).getString(), "b");
    std::vector<CimValue> data = r->takeData();
    ASSERT_EQ(data.size(), 1u);
    EXPECT_EQ(data[0].type(), CMPI_uint32);
    EXPECT_EQ(data[0].asUnsigned(), 17u);
    EXPECT_TRUE(r->done());
    ASSERT_EQ(out->args().size(), 1u);
    EXPECT_EQ(out->args()[0].first, "Echoed");
    EXPECT_EQ(out->args()[0].second.type(), CMPI_uint32);

    // No in-arguments at all is an empty list, not a failure.
    r = newResult();
    EXPECT_EQ(
        mi->ft->invokeMethod(mi, ctx, r->cmpi(), incoming(target), "Other", nullptr, out->cmpi())
            .rc,
        CMPI_RC_OK);
    EXPECT_EQ(provider.lastArgs.getArgCount(), 0u);
}

// Catches: an indication that never reaches the object manager, arrives in
// the wrong namespace or without its properties, leaves its CMPI objects
// behind, and a failed delivery that goes unreported.
TEST_F(CmpiTable, DeliverIndicationGoesThroughTheBroker) {
    auto sink = std::make_shared<MemoryIndicationSink>();
    broker.setIndicationSink(sink);
    Logger logger("cmpicpp-test");
    CmpiMBService service(broker.cmpi(), logger);
    CmpiInstance ind(CmpiObjectPath("root/mwq", "QLN_VeldraDiskDriveIndication"));
    ind.addProperty("AlertType", static_cast<unsigned short>(5));
    ind.addProperty("SourceInstance", CmpiData(disk("0:1")));
    std::size_t const before = broker.registry().liveObjects();
    service.deliverIndication(CmpiContext(ctx), "root/mwq", ind);
    ASSERT_EQ(sink->count(), 1u);
    // Nothing made for the delivery stays behind: an attached worker thread
    // would otherwise grow by every indication until it detaches.
    EXPECT_EQ(broker.registry().liveObjects(), before);
    MemoryIndicationSink::Delivered const got = sink->delivered()[0];
    EXPECT_EQ(got.nameSpace, "root/mwq");
    EXPECT_EQ(got.indication.className(), "QLN_VeldraDiskDriveIndication");
    EXPECT_EQ(got.indication.property("AlertType")->asUnsigned(), 5u);
    EXPECT_EQ(got.indication.property("SourceInstance")->asInstance().property("Name")->asString(),
              "Disk 0:1");

    CmpiMBService noBroker(nullptr, logger);
    EXPECT_THROW(noBroker.deliverIndication(CmpiContext(ctx), "root/mwq", ind), CmpiStatus);
}

// Catches: a provider thread that cannot get a context of its own, or whose
// attach and detach fail against a real broker.
TEST_F(CmpiTable, ThreadAttachThroughTheBrokerWrapper) {
    CmpiBroker wrapped(broker.cmpi());
    CmpiContext threadCtx = wrapped.prepareAttachThread(CmpiContext(ctx));
    ASSERT_FALSE(threadCtx.isNull());
    EXPECT_NO_THROW(wrapped.attachThread(threadCtx));
    EXPECT_NO_THROW(wrapped.detachThread(threadCtx));
    EXPECT_THROW(CmpiBroker().attachThread(threadCtx), CmpiStatus);
}
