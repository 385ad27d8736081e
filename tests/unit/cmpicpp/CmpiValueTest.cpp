// Value semantics of the CmpiCpp layer: the matching rules that path lookup,
// property order and argument access rely on.
#include "CmpiCpp.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <unordered_set>

using namespace CmpiCpp;

namespace {

CmpiBroker const noBroker;

// Runs body and returns the rc of the CmpiStatus it throws; fails if none.
template <typename Body> CMPIrc rcOf(Body&& body) {
    try {
        body();
    } catch (CmpiStatus const& s) {
        return s.rc();
    }
    ADD_FAILURE() << "no CmpiStatus thrown";
    return CMPI_RC_OK;
}

CmpiObjectPath diskPath(char const* id) {
    CmpiObjectPath p = makeCmpiObjectPath(noBroker, "root/mwq", "QLN_VDDiskDrive");
    p.addKey("CreationClassName", "QLN_VDDiskDrive");
    p.addKey("DeviceID", id);
    return p;
}

} // namespace

// Catches: a case-sensitive name compare, which would make a client's
// "performwork" or "qln_vddiskdrive" miss.
TEST(CmpiName, ComparesOrdersAndHashesWithoutCase) {
    EXPECT_EQ(CmpiName("PerformWork"), CmpiName(std::string("performWORK")));
    EXPECT_FALSE(CmpiName("PerformWork") == CmpiName("PerformWorks"));
    EXPECT_FALSE(CmpiName("abc") < CmpiName("ABC"));
    EXPECT_FALSE(CmpiName("ABC") < CmpiName("abc"));
    EXPECT_TRUE(CmpiName("abc") < CmpiName("ABD"));
    EXPECT_EQ(CmpiName("Root/MWQ").hash(), CmpiName("root/mwq").hash());
    EXPECT_EQ(CmpiName("MixedCase").str(), "MixedCase"); // spelling kept for output
    EXPECT_TRUE(CmpiName(static_cast<char const*>(nullptr)).empty());
}

// Catches: paths that differ only in key order, name case or integer width
// failing to match, and paths with different values matching.
TEST(CmpiObjectPath, EqualityIgnoresKeyOrderNameCaseNamespaceAndIntegerWidth) {
    CmpiObjectPath a = diskPath("0:1:2");
    CmpiObjectPath b("other/ns", "qln_vddiskdrive");
    b.setHost("somehost");
    b.addKey("deviceid", "0:1:2");
    b.addKey("CREATIONCLASSNAME", "QLN_VDDiskDrive");
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.canonicalKey(), b.canonicalKey());
    EXPECT_EQ(a.hash(), b.hash());

    EXPECT_FALSE(a == diskPath("0:1:3"));
    // Key values are data: their case matters.
    EXPECT_FALSE(diskPath("abc") == diskPath("ABC"));
    CmpiObjectPath fewer("root/mwq", "QLN_VDDiskDrive");
    fewer.addKey("DeviceID", "0:1:2");
    EXPECT_FALSE(a == fewer);
    EXPECT_FALSE(fewer == a);

    CmpiObjectPath n16("ns", "C"), n64("ns", "C"), text("ns", "C");
    n16.addKey("Id", static_cast<unsigned short>(5));
    n64.addKey("Id", static_cast<long long>(5));
    text.addKey("Id", "5");
    EXPECT_EQ(n16, n64);
    EXPECT_EQ(n16.canonicalKey(), n64.canonicalKey());
    EXPECT_FALSE(n16 == text);
}

// Catches: reference keys compared by text, so that an association's end
// written with other case or key order fails to match.
TEST(CmpiObjectPath, ReferenceKeysCompareAsPaths) {
    CmpiObjectPath disk2("root/mwq", "qln_vddiskdrive");
    disk2.addKey("DEVICEID", "7");
    disk2.addKey("creationclassname", "QLN_VDDiskDrive");
    CmpiObjectPath assocA("root/mwq", "QLN_Assoc"), assocB("root/mwq", "QLN_Assoc");
    assocA.addKey("Antecedent", diskPath("7"));
    assocB.addKey("antecedent", disk2);
    EXPECT_EQ(assocA, assocB);
    EXPECT_EQ(assocA.canonicalKey(), assocB.canonicalKey());
    CmpiObjectPath assocC("root/mwq", "QLN_Assoc");
    assocC.addKey("Antecedent", diskPath("8"));
    EXPECT_FALSE(assocA == assocC);

    std::unordered_set<CmpiObjectPath> index{assocA};
    EXPECT_EQ(index.count(assocB), 1u);
    EXPECT_EQ(index.count(assocC), 0u);
}

// Catches: the key an association's index entry makes from its ends
// differing from the key of the association's own path, so that a request
// naming the path no longer finds it.
TEST(CmpiObjectPath, ReferenceKeysMakeTheSameCanonicalKeyAsThePath) {
    CmpiObjectPath assoc("root/mwq", "QLN_VDStoragePoolStorageExtent");
    CmpiObjectPath pool("root/mwq", "QLN_VDStoragePool");
    pool.addKey("InstanceID", "0:pool");
    assoc.addKey("PartComponent", diskPath("0:1:2"));
    assoc.addKey("GroupComponent", pool);
    std::string const diskKey = diskPath("0:1:2").canonicalKey();
    std::string const poolKey = pool.canonicalKey();
    CmpiName const part("PartComponent"), group("GroupComponent");
    // In the path's order and the other way round: the text sorts by name.
    for (bool swapped : {false, true}) {
        CmpiObjectPath::ReferenceKey keys[2] = {{&part, &diskKey}, {&group, &poolKey}};
        if (swapped)
            std::swap(keys[0], keys[1]);
        std::string made;
        CmpiObjectPath::appendCanonicalKey(made, CmpiName("QLN_VDStoragePoolStorageExtent"), keys,
                                           2);
        EXPECT_EQ(made, assoc.canonicalKey());
    }
}

// Catches: a duplicated key on re-add, lost key order, a wrong text form and
// a lookup of a missing key that returns garbage instead of throwing.
TEST(CmpiObjectPath, KeysReplaceInPlaceAndRenderInOrder) {
    CmpiObjectPath p = diskPath("old");
    p.addKey("deviceID", "new \"quoted\"");
    ASSERT_EQ(p.getKeyCount(), 2u);
    EXPECT_EQ(p.getKeyNameAt(1).str(), "DeviceID");
    EXPECT_EQ(p.getKey("DEVICEID").getString(), "new \"quoted\"");
    EXPECT_EQ(p.str(), "root/mwq:QLN_VDDiskDrive.CreationClassName=\"QLN_VDDiskDrive\","
                       "DeviceID=\"new \\\"quoted\\\"\"");
    p.setHost("h1");
    p.addKey("Slot", 3u);
    p.addKey("Present", true);
    EXPECT_EQ(p.str().substr(0, 14), "//h1/root/mwq:");
    EXPECT_NE(p.str().find(",Slot=3,Present=true"), std::string::npos);

    EXPECT_EQ(rcOf([&] { p.getKey("Missing"); }), CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(rcOf([&] { p.getKeyAt(4); }), CMPI_RC_ERR_NOT_FOUND);

    EXPECT_TRUE(makeCmpiObjectPath(noBroker).empty());
    EXPECT_FALSE(makeCmpiObjectPath(noBroker, "root/mwq", "X").empty());
    CmpiObjectPath copy;
    copy = p;
    EXPECT_EQ(copy.str(), p.str());
}

// Catches: an overload that picks the wrong CIM type, which a client sees as
// a wrong TYPE in the returned XML.
TEST(CmpiInstance, AddPropertyOverloadFixesTheType) {
    CmpiInstance inst = makeCmpiInstance(noBroker, makeCmpiObjectPath(noBroker, "ns", "C"));
    CmpiArray arr = makeCmpiArray(noBroker, 1, CMPI_uint16);
    inst.addProperty("S", std::string("s"));
    inst.addProperty("C", "c");
    inst.addProperty("B", true);
    inst.addProperty("U8", static_cast<unsigned char>(1));
    inst.addProperty("U16", static_cast<unsigned short>(1));
    inst.addProperty("U32", 1u);
    inst.addProperty("S32", -1);
    inst.addProperty("U64", 1ull);
    inst.addProperty("U64t", std::uint64_t{1});
    inst.addProperty("R32", 1.5f);
    inst.addProperty("Ref", diskPath("1"));
    inst.addProperty("Arr", arr);
    inst.addProperty("DT", makeCmpiDateTime(noBroker, 0L));
    struct Expect {
        char const* name;
        CMPIType type;
    } const expected[] = {{"S", CMPI_string},   {"C", CMPI_string},   {"B", CMPI_boolean},
                          {"U8", CMPI_uint8},   {"U16", CMPI_uint16}, {"U32", CMPI_uint32},
                          {"S32", CMPI_sint32}, {"U64", CMPI_uint64}, {"U64t", CMPI_uint64},
                          {"R32", CMPI_real32}, {"Ref", CMPI_ref},    {"Arr", CMPI_uint16A},
                          {"DT", CMPI_dateTime}};
    for (auto const& e : expected)
        EXPECT_EQ(inst.getProperty(e.name).getType(), e.type) << e.name;
    EXPECT_EQ(inst.getProperty("S32").getSint32(), -1);
    EXPECT_FLOAT_EQ(inst.getProperty("R32").getReal32(), 1.5f);
    EXPECT_EQ(inst.getProperty("Ref").getObjectPath(), diskPath("1"));
}

// Catches: a second copy of a property on re-add, a re-add moving to the end,
// and key properties missing from a new instance.
TEST(CmpiInstance, KeepsOrderAndReplacesInPlace) {
    CmpiInstance inst = makeCmpiInstance(noBroker, diskPath("d1"));
    ASSERT_EQ(inst.getPropertyCount(), 2u);
    EXPECT_EQ(inst.getPropertyNameAt(0).str(), "CreationClassName");
    inst.addProperty("Name", "first");
    inst.addProperty("OperationalStatus", static_cast<unsigned short>(2));
    inst.addProperty("NAME", static_cast<unsigned short>(7));
    inst.addProperty("deviceid", "d1");
    ASSERT_EQ(inst.getPropertyCount(), 4u);
    EXPECT_EQ(inst.getPropertyNameAt(1).str(), "DeviceID");
    EXPECT_EQ(inst.getPropertyNameAt(2).str(), "Name");
    EXPECT_EQ(inst.getPropertyAt(2).getType(), CMPI_uint16);
    EXPECT_EQ(inst.getProperty("name").getUint16(), 7);
    EXPECT_EQ(inst.getPropertyNameAt(3).str(), "OperationalStatus");
    EXPECT_EQ(rcOf([&] { inst.getProperty("Nope"); }), CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

// Catches: a property list applied with case, dropping the keys, or a null
// list treated as "nothing".
TEST(CmpiInstance, FilterByPropertyList) {
    CmpiInstance inst = makeCmpiInstance(noBroker, diskPath("d1"));
    inst.addProperty("Name", "n");
    inst.addProperty("Status", 2u);
    inst.addProperty("Caption", "c");

    EXPECT_EQ(inst.filtered(nullptr).getPropertyCount(), 5u);

    char const* some[] = {"caption", "NAME", "NotThere", nullptr};
    CmpiInstance cut = inst.filtered(some);
    ASSERT_EQ(cut.getPropertyCount(), 4u);
    EXPECT_EQ(cut.getPropertyNameAt(0).str(), "CreationClassName");
    EXPECT_EQ(cut.getPropertyNameAt(1).str(), "DeviceID");
    EXPECT_EQ(cut.getPropertyNameAt(2).str(), "Name");
    EXPECT_EQ(cut.getPropertyNameAt(3).str(), "Caption");
    EXPECT_EQ(cut.getPath(), inst.getPath());

    char const* none[] = {nullptr};
    EXPECT_EQ(inst.filtered(none).getPropertyCount(), 2u);
}

// Catches: arrays that lose their element type, accept values that do not
// fit, or half-write an element on a refused value.
TEST(CmpiArray, TypesBoundsAndConversions) {
    CmpiArray a = makeCmpiArray(noBroker, 3, CMPI_uint16);
    EXPECT_EQ(a.size(), 3u);
    EXPECT_EQ(a.getElementType(), CMPI_uint16);
    EXPECT_EQ(a.getType(), CMPI_uint16A);
    EXPECT_EQ(makeCmpiArray(noBroker, 1, CMPI_uint16A).getElementType(), CMPI_uint16);
    EXPECT_TRUE(a.getElementAt(2).isNull());
    EXPECT_EQ(a.getElementAt(2).getType(), CMPI_uint16);

    a.setElementAt(0, static_cast<unsigned short>(2));
    a.setElementAt(1, 3); // an int literal that fits
    EXPECT_EQ(a.getElementAt(1).getType(), CMPI_uint16);
    EXPECT_EQ(a.getElementAt(1).getUint16(), 3);
    EXPECT_EQ(rcOf([&] { a.setElementAt(1, 70000); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { a.setElementAt(1, -1); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { a.setElementAt(1, "text"); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(a.getElementAt(1).getUint16(), 3); // unchanged by the refusals
    EXPECT_EQ(rcOf([&] { a.setElementAt(3, 1); }), CMPI_RC_ERR_NO_SUCH_PROPERTY);
    EXPECT_EQ(rcOf([&] { a.getElementAt(3); }), CMPI_RC_ERR_NO_SUCH_PROPERTY);

    CmpiArray s = makeCmpiArray(noBroker, 2, CMPI_string);
    s.setElementAt(0, std::string("a"));
    s.setElementAt(1, "b");
    EXPECT_EQ(CmpiData(s).str(), "{a,b}");
    EXPECT_EQ(rcOf([&] { s.setElementAt(0, 1u); }), CMPI_RC_ERR_TYPE_MISMATCH);
    // A chars array holds strings.
    EXPECT_EQ(makeCmpiArray(noBroker, 1, CMPI_chars).getElementType(), CMPI_string);
    EXPECT_EQ(rcOf([&] { makeCmpiArray(noBroker, -1, CMPI_string); }),
              CMPI_RC_ERR_INVALID_PARAMETER);
}

// Catches: getters that read a value of another type or width as if it
// were theirs, and a raw CMPI form with the wrong code or state.
TEST(CmpiData, GettersCheckTypeAndRangeAndRawFormIsTyped) {
    CmpiData u(300u);
    EXPECT_EQ(u.getUint16(), 300);
    EXPECT_EQ(u.getSint64(), 300);
    EXPECT_EQ(rcOf([&] { u.getUint8(); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { u.getString(); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { CmpiData(-1).getUint32(); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { CmpiData(std::uint64_t{1} << 63).getSint64(); }),
              CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { CmpiData::null(CMPI_uint32).getUint32(); }), CMPI_RC_ERR_TYPE_MISMATCH);
    EXPECT_EQ(rcOf([&] { CmpiData(true).getUint8(); }), CMPI_RC_ERR_TYPE_MISMATCH);

    CMPIData raw = CmpiData(static_cast<unsigned short>(0xBEEF)).toCMPI();
    EXPECT_EQ(raw.type, CMPI_uint16);
    EXPECT_EQ(raw.state, CMPI_goodValue);
    EXPECT_EQ(raw.value.uint16, 0xBEEF);
    raw = CmpiData(-5).toCMPI();
    EXPECT_EQ(raw.type, CMPI_sint32);
    EXPECT_EQ(raw.value.sint32, -5);
    raw = CmpiData(2.5f).toCMPI();
    EXPECT_EQ(raw.type, CMPI_real32);
    EXPECT_FLOAT_EQ(raw.value.real32, 2.5f);
    CmpiData text("abc");
    raw = text.toCMPI();
    EXPECT_EQ(raw.type, CMPI_chars);
    EXPECT_STREQ(raw.value.chars, "abc");
    raw = CmpiData::null(CMPI_string).toCMPI();
    EXPECT_EQ(raw.state, CMPI_nullValue);
    EXPECT_EQ(raw.type, CMPI_string);
    EXPECT_EQ(rcOf([&] { CmpiData(diskPath("x")).toCMPI(); }), CMPI_RC_ERR_NOT_SUPPORTED);
    EXPECT_EQ(rcOf([&] { CmpiData(diskPath("x")).toCMPI(noBroker); }), CMPI_RC_ERR_INVALID_HANDLE);

    EXPECT_EQ(CmpiData::char16('A').getType(), CMPI_char16);
    EXPECT_FALSE(CmpiData(5u) == CmpiData(5)); // same number, other type
    EXPECT_TRUE(CmpiData(diskPath("a")) == CmpiData(diskPath("a")));
}

// Catches: a missing argument read as a default instead of refused, and
// argument names matched with case.
TEST(CmpiArgs, LookupByNameWithoutCaseAndMissingThrows) {
    CmpiArgs args;
    args.addArg("Duration", 30u);
    args.setArg("DURATION", 60u);
    ASSERT_EQ(args.getArgCount(), 1u);
    EXPECT_EQ(args.getArg(std::string("duration")).getUint32(), 60u);
    EXPECT_EQ(args.getArg("Duration").getType(), CMPI_uint32);
    try {
        args.getArg(std::string("Mode"));
        FAIL() << "missing argument did not throw";
    } catch (CmpiStatus const& s) {
        EXPECT_EQ(s.rc(), CMPI_RC_ERR_INVALID_PARAMETER);
        EXPECT_NE(s.msg().find("Mode"), std::string::npos);
    }
}

TEST(CmpiStatus, TextNamesCodeNumberAndMessage) {
    CmpiStatus plain(CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(plain.rc(), CMPI_RC_ERR_NOT_FOUND);
    EXPECT_EQ(plain.msg(), "");
    EXPECT_EQ(plain.str(), "CMPI_RC_ERR_NOT_FOUND (6)");
    CmpiStatus withMsg(CMPI_RC_ERR_FAILED, "disk gone");
    EXPECT_EQ(withMsg.str(), "CMPI_RC_ERR_FAILED (1): disk gone");
    EXPECT_STREQ(withMsg.what(), "CMPI_RC_ERR_FAILED (1): disk gone");
    EXPECT_EQ(CmpiStatus(static_cast<CMPIrc>(250)).str(), "CMPI_RC_UNKNOWN (250)");
}

TEST(CmpiDateTime, TextFormsOfTimeStampAndInterval) {
    EXPECT_EQ(makeCmpiDateTime(noBroker, 0L).str(), "19700101000000.000000+000");
    EXPECT_EQ(makeCmpiDateTime(noBroker, 1700000000L).str(), "20231114221320.000000+000");
    std::uint64_t const usec = ((26ull * 3600 + 3 * 60 + 4) * 1000000ull) + 500000ull;
    CmpiDateTime iv = makeCmpiDateTime(noBroker, static_cast<unsigned long long>(usec), true);
    EXPECT_TRUE(iv.isInterval());
    EXPECT_EQ(iv.str(), "00000001020304.500000:000");
}
