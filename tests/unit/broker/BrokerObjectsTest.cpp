// The broker's CMPI objects and services driven through their C tables, as
// a provider sees them.
#include <gtest/gtest.h>

#include <cstring>

#include "Broker.h"
#include "BrokerContext.h"
#include "BrokerInstance.h"
#include "CimDateTime.h"
#include "CimError.h"

using namespace Cimom;

namespace {

class BrokerObjectsTest : public ::testing::Test {
protected:
    Broker _broker;
    CMPIBroker const* mb = _broker.cmpi();
    CMPIStatus rc{CMPI_RC_ERR_FAILED, nullptr};

    std::string str(CMPIString* s) { return s ? s->ft->getCharPtr(s, nullptr) : "(null)"; }

    CMPIObjectPath* path(char const* cls) {
        return mb->eft->newObjectPath(mb, "root/test", cls, &rc);
    }
};

} // namespace

TEST_F(BrokerObjectsTest, InstancePropertiesKeepOrderAndReplaceInPlace) {
    ObjectRegistry::Scope request(_broker.registry());
    CMPIObjectPath* op = path("Test_Disk");
    op->ft->addKey(op, "Name", reinterpret_cast<CMPIValue const*>("d1"), CMPI_chars);
    CMPIInstance* inst = mb->eft->newInstance(mb, op, &rc);
    ASSERT_EQ(rc.rc, CMPI_RC_OK);
    CMPIValue v;
    v.uint16 = 4;
    inst->ft->setProperty(inst, "Slot", &v, CMPI_uint16);
    v.uint64 = 10;
    inst->ft->setProperty(inst, "Size", &v, CMPI_uint64);
    v.uint16 = 5;
    inst->ft->setProperty(inst, "SLOT", &v, CMPI_uint16);

    ASSERT_EQ(inst->ft->getPropertyCount(inst, &rc), 3u);
    CMPIString* name = nullptr;
    char const* order[] = {"Name", "Slot", "Size"};
    for (CMPICount i = 0; i < 3; ++i) {
        inst->ft->getPropertyAt(inst, i, &name, &rc);
        EXPECT_EQ(str(name), order[i]);
    }
    CMPIData d = inst->ft->getProperty(inst, "slot", &rc);
    EXPECT_EQ(rc.rc, CMPI_RC_OK);
    EXPECT_EQ(d.type, CMPI_uint16);
    EXPECT_EQ(d.value.uint16, 5);

    d = inst->ft->getProperty(inst, "Missing", &rc);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    EXPECT_TRUE(d.state & CMPI_notFound);

    // A key property set later moves the instance's path with it.
    inst->ft->setProperty(inst, "Name", reinterpret_cast<CMPIValue const*>("d9"), CMPI_chars);
    CMPIObjectPath* got = inst->ft->getObjectPath(inst, &rc);
    d = got->ft->getKey(got, "name", &rc);
    EXPECT_EQ(d.type, CMPI_string);
    EXPECT_TRUE(d.state & CMPI_keyValue);
    EXPECT_EQ(str(d.value.string), "d9");

    // A filter drops what is not listed, keys excepted.
    char const* only[] = {"Size", nullptr};
    inst->ft->setPropertyFilter(inst, only, nullptr);
    v.boolean = 1;
    inst->ft->setProperty(inst, "Healthy", &v, CMPI_boolean);
    inst->ft->getProperty(inst, "Healthy", &rc);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

TEST_F(BrokerObjectsTest, ArenaFreesRequestObjectsClonesLiveUntilReleased) {
    CMPIInstance* kept = nullptr;
    {
        ObjectRegistry::Scope request(_broker.registry());
        CMPIInstance* inst = mb->eft->newInstance(mb, path("Test_Disk"), &rc);
        mb->eft->newString(mb, "scratch", &rc);
        kept = inst->ft->clone(inst, &rc);
        EXPECT_EQ(_broker.registry().liveObjects(), 4u); // path, instance, string, clone
    }
    EXPECT_EQ(_broker.registry().liveObjects(), 1u);
    EXPECT_EQ(kept->ft->getPropertyCount(kept, &rc), 0u);
    EXPECT_EQ(rc.rc, CMPI_RC_OK);
    EXPECT_EQ(kept->ft->release(kept).rc, CMPI_RC_OK);
    EXPECT_EQ(_broker.registry().liveObjects(), 0u);

    // mark/release frees what was made in between, nothing before.
    ObjectRegistry::Scope request(_broker.registry());
    CMPIString* before = mb->eft->newString(mb, "before", &rc);
    CMPIGcStat* gc = mb->mft->mark(mb, &rc);
    mb->eft->newString(mb, "after", &rc);
    void* block = mb->mft->cmpiMalloc(mb, 64);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(_broker.registry().liveBlocks(), 1u);
    EXPECT_EQ(mb->mft->release(mb, gc).rc, CMPI_RC_OK);
    EXPECT_EQ(_broker.registry().liveObjects(), 1u);
    EXPECT_EQ(_broker.registry().liveBlocks(), 0u);
    EXPECT_EQ(str(before), "before");
    EXPECT_EQ(mb->mft->release(mb, gc).rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(BrokerObjectsTest, ArraysCheckTypesBoundsAndNulls) {
    ObjectRegistry::Scope request(_broker.registry());
    CMPIArray* a = mb->eft->newArray(mb, 2, CMPI_uint16, &rc);
    EXPECT_EQ(a->ft->getSimpleType(a, &rc), CMPI_uint16);
    EXPECT_EQ(a->ft->getSize(a, &rc), 2u);
    CMPIValue v;
    v.uint16 = 7;
    EXPECT_EQ(a->ft->setElementAt(a, 1, &v, CMPI_uint16).rc, CMPI_RC_OK);
    EXPECT_EQ(a->ft->setElementAt(a, 2, &v, CMPI_uint16).rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    EXPECT_EQ(a->ft->setElementAt(a, 0, &v, CMPI_uint32).rc, CMPI_RC_ERR_TYPE_MISMATCH);
    CMPIData d = a->ft->getElementAt(a, 0, &rc);
    EXPECT_TRUE(d.state & CMPI_nullValue);
    d = a->ft->getElementAt(a, 1, &rc);
    EXPECT_EQ(d.value.uint16, 7);

    CMPIArray* s = mb->eft->newArray(mb, 1, CMPI_string, &rc);
    EXPECT_EQ(s->ft->setElementAt(s, 0, reinterpret_cast<CMPIValue const*>("x"), CMPI_chars).rc,
              CMPI_RC_OK);
    CMPIInstance* inst = mb->eft->newInstance(mb, path("Test_Disk"), &rc);
    v.array = s;
    inst->ft->setProperty(inst, "Tags", &v, CMPI_stringA);
    s->ft->release(s); // the instance holds its own copy
    d = inst->ft->getProperty(inst, "Tags", &rc);
    ASSERT_EQ(d.type, CMPI_stringA);
    CMPIData e = d.value.array->ft->getElementAt(d.value.array, 0, &rc);
    EXPECT_EQ(e.type, CMPI_string);
    EXPECT_EQ(str(e.value.string), "x");
}

TEST_F(BrokerObjectsTest, DateTimeRoundTripsBinaryAndText) {
    ObjectRegistry::Scope request(_broker.registry());
    CMPIUint64 const t = 1767312000123456ULL; // 2026-01-02 00:00:00.123456 UTC
    CMPIDateTime* dt = mb->eft->newDateTimeFromBinary(mb, t, 0, &rc);
    EXPECT_EQ(str(dt->ft->getStringFormat(dt, &rc)), "20260102000000.123456+000");
    EXPECT_EQ(dt->ft->getBinaryFormat(dt, &rc), t);
    EXPECT_FALSE(dt->ft->isInterval(dt, &rc));

    CMPIDateTime* local = mb->eft->newDateTimeFromChars(mb, "20260102010000.123456+060", &rc);
    EXPECT_EQ(local->ft->getBinaryFormat(local, &rc), t);

    CMPIUint64 const span = (2ULL * 86400 + 3 * 3600 + 4 * 60 + 5) * 1000000ULL + 6;
    CMPIDateTime* iv = mb->eft->newDateTimeFromBinary(mb, span, 1, &rc);
    EXPECT_EQ(str(iv->ft->getStringFormat(iv, &rc)), "00000002030405.000006:000");
    EXPECT_TRUE(iv->ft->isInterval(iv, &rc));
    EXPECT_EQ(iv->ft->getBinaryFormat(iv, &rc), span);

    EXPECT_EQ(mb->eft->newDateTimeFromChars(mb, "yesterday", &rc), nullptr);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_INVALID_PARAMETER);
    CMPIDateTime* wild = mb->eft->newDateTimeFromChars(mb, "2026****000000.000000+000", &rc);
    ASSERT_NE(wild, nullptr);
    wild->ft->getBinaryFormat(wild, &rc);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_INVALID_PARAMETER);

    CMPIUint64 const now = CimDateTime::nowMicroseconds();
    CMPIDateTime* current = mb->eft->newDateTime(mb, &rc);
    EXPECT_LE(now / 1000000, current->ft->getBinaryFormat(current, &rc) / 1000000);
}

TEST_F(BrokerObjectsTest, ForeignHandlesAndUnsupportedServicesAnswerWithCodes) {
    ObjectRegistry::Scope request(_broker.registry());
    CMPIString fake{nullptr, nullptr};
    CMPIValue v;
    v.string = &fake;
    CMPIInstance* inst = mb->eft->newInstance(mb, path("Test_Disk"), &rc);
    EXPECT_EQ(inst->ft->setProperty(inst, "Name", &v, CMPI_string).rc, CMPI_RC_ERR_INVALID_HANDLE);
    EXPECT_EQ(mb->eft->newInstance(mb, nullptr, &rc), nullptr);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_INVALID_HANDLE);

    CMPIStatus st = mb->bft->modifyInstance(mb, nullptr, path("X"), inst, nullptr);
    EXPECT_EQ(st.rc, CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(mb->eft->newSelectExp(mb, "select * from X", "WQL", nullptr, &rc), nullptr);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_NOT_SUPPORTED);
    // No provider manager behind this broker: up-calls are refused, not crashed.
    EXPECT_EQ(mb->bft->enumerateInstanceNames(mb, nullptr, path("X"), &rc), nullptr);
    EXPECT_EQ(rc.rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(BrokerObjectsTest, TypeQueriesClassHierarchyAndMessages) {
    ObjectRegistry::Scope request(_broker.registry());
    CMPIObjectPath* op = path("Test_Disk");
    op->ft->addKey(op, "Name", reinterpret_cast<CMPIValue const*>("d\"1"), CMPI_chars);
    EXPECT_EQ(str(mb->eft->getType(mb, op, &rc)), "CMPIObjectPath");
    EXPECT_TRUE(mb->eft->isOfType(mb, op, "CMPIObjectPath", &rc));
    EXPECT_FALSE(mb->eft->isOfType(mb, op, "CMPIInstance", &rc));
    EXPECT_EQ(str(mb->eft->toString(mb, op, &rc)), "root/test:Test_Disk.Name=\"d\\\"1\"");

    EXPECT_TRUE(mb->eft->classPathIsA(mb, op, "test_disk", &rc));
    EXPECT_FALSE(mb->eft->classPathIsA(mb, op, "CIM_ManagedElement", &rc));
    _broker.setClassIsA([](std::string const& ns, std::string const& cls, std::string const& anc) {
        return ns == "root/test" && cls == "Test_Disk" && anc == "CIM_ManagedElement";
    });
    EXPECT_TRUE(mb->eft->classPathIsA(mb, op, "CIM_ManagedElement", &rc));

    CMPIString* msg = mb->eft->getMessage(mb, "ID1", "disk $0 in slot $1", &rc, 2, CMPI_chars, "d1",
                                          CMPI_uint32, 4UL);
    EXPECT_EQ(str(msg), "disk d1 in slot 4");

    CMPIContext* ctx = _broker.newContext("root/test", CMPI_FLAG_DeepInheritance)->cmpi();
    CMPIData d = ctx->ft->getEntry(ctx, CMPIInvocationFlags, &rc);
    EXPECT_EQ(d.value.uint32, static_cast<CMPIUint32>(CMPI_FLAG_DeepInheritance));
    d = ctx->ft->getEntry(ctx, CMPIInitNameSpace, &rc);
    EXPECT_EQ(str(d.value.string), "root/test");
}

TEST(BrokerVersions, AnOlderObjectManagerCanBeStoodInFor) {
    Broker old;
    Broker current;
    old.reportVersions(0, 1); // what SFCB 1.3 reports
    CMPIBroker const* mb = old.cmpi();
    EXPECT_EQ(mb->bft->brokerVersion, 0u);
    EXPECT_EQ(mb->eft->ftVersion, 1);
    EXPECT_EQ(current.cmpi()->bft->brokerVersion, static_cast<unsigned>(CMPICurrentVersion));
    EXPECT_EQ(current.cmpi()->eft->ftVersion, CMPICurrentVersion);
    // Still recognised as ours, and each broker keeps its own objects.
    ObjectRegistry::Scope request(old.registry());
    CMPIStatus rc{CMPI_RC_ERR_FAILED, nullptr};
    EXPECT_NE(mb->eft->newString(mb, "x", &rc), nullptr);
    EXPECT_EQ(rc.rc, CMPI_RC_OK);
    EXPECT_EQ(old.registry().liveObjects(), 1u);
    EXPECT_EQ(current.registry().liveObjects(), 0u);
}
