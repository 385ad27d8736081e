#include "ClassRepository.h"
#include "MofError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace Cimom;

namespace {

char const* diskMof = R"MOF(
// Qualifier declarations type the qualifiers used after them.
Qualifier Units : string = null, Scope(property);

#pragma namespace("root/mwq")

[Description("A disk " "in a bay"), Version("1.0.0")]
class QLN_TestDisk : CIM_DiskDrive
{
    [Key, MaxLen(256)] string DeviceID;
    [Units("Bytes")] uint64 Capacity = 0;
    uint16 OperationalStatus[] = {2, 3};
    string Names[4];
    real32 Temperature = -1.5e2;
    boolean Spare = false;
    char16 Letter = 'x';

    [Description("Flash the lights.")]
    uint32 Identify([IN, Description("Seconds")] uint32 Duration, [IN(false), OUT] string Messages[]);
    uint32 Reset();
};

[Association]
class QLN_TestDiskInBay
{
    [Key] QLN_TestDisk REF Antecedent;
    [Key] CIM_Slot REF Dependent;
};

instance of QLN_TestDisk { DeviceID = "d1"; OperationalStatus = {2}; };
)MOF";

struct TempDir {
    std::filesystem::path path;
    TempDir() {
        path = std::filesystem::temp_directory_path() /
               ("mof-test-" + std::to_string(getpid()) + "-" +
                std::to_string(reinterpret_cast<uintptr_t>(this)));
        std::filesystem::create_directories(path);
    }
    ~TempDir() { std::filesystem::remove_all(path); }
    void write(std::string const& name, std::string const& text) const {
        std::filesystem::create_directories((path / name).parent_path());
        std::ofstream(path / name) << text;
    }
};

} // namespace

// Catches features dropped or mis-typed by the reader: every declaration kind
// GetClass and method typing rely on.
TEST(MofReader, ReadsClassesWithAllFeatureKinds) {
    ClassRepository repo;
    repo.loadText(diskMof, "disk.mof", "root/other");
    repo.resolve();
    ASSERT_TRUE(repo.hasNamespace("ROOT/MWQ"));
    EXPECT_FALSE(repo.hasNamespace("root/other"))
        << "pragma namespace must apply before the first class";

    CimClassDecl const* disk = repo.find("root/mwq", "qln_testdisk");
    ASSERT_NE(disk, nullptr);
    EXPECT_EQ(disk->name, "QLN_TestDisk");
    EXPECT_EQ(disk->superClass, "CIM_DiskDrive");
    ASSERT_EQ(disk->qualifiers.size(), 2u);
    EXPECT_EQ(disk->qualifiers[0].value.items[0].text, "A disk in a bay");

    auto const* id = disk->findProperty("deviceid");
    ASSERT_NE(id, nullptr);
    ASSERT_EQ(id->qualifiers.size(), 2u);
    EXPECT_EQ(id->qualifiers[0].name, "Key");
    EXPECT_EQ(id->qualifiers[0].type, "boolean");
    EXPECT_EQ(id->qualifiers[1].type, "uint32");
    EXPECT_EQ(id->qualifiers[1].value.items[0].text, "256");

    auto const* capacity = disk->findProperty("Capacity");
    ASSERT_TRUE(capacity && capacity->defaultValue);
    EXPECT_EQ(capacity->type, "uint64");
    EXPECT_EQ(capacity->qualifiers[0].type, "string") << "declared qualifier type must be used";

    auto const* status = disk->findProperty("OperationalStatus");
    ASSERT_TRUE(status && status->isArray && status->defaultValue);
    EXPECT_EQ(status->defaultValue->items.size(), 2u);
    auto const* names = disk->findProperty("Names");
    ASSERT_TRUE(names && names->isArray);
    EXPECT_EQ(names->arraySize, 4);
    EXPECT_EQ(disk->findProperty("Temperature")->defaultValue->items[0].text, "-1.5e2");
    EXPECT_EQ(disk->findProperty("Letter")->defaultValue->items[0].text, "x");

    auto const* identify = disk->findMethod("IDENTIFY");
    ASSERT_NE(identify, nullptr);
    EXPECT_EQ(identify->returnType, "uint32");
    ASSERT_EQ(identify->parameters.size(), 2u);
    EXPECT_EQ(identify->parameters[0].name, "Duration");
    EXPECT_EQ(identify->parameters[0].type, "uint32");
    EXPECT_TRUE(identify->parameters[1].isArray);
    EXPECT_EQ(identify->parameters[1].qualifiers[0].value.items[0].text, "false");
    EXPECT_TRUE(disk->findMethod("Reset")->parameters.empty());

    CimClassDecl const* assoc = repo.find("root/mwq", "QLN_TestDiskInBay");
    ASSERT_NE(assoc, nullptr);
    EXPECT_TRUE(assoc->hasQualifier("association"));
    auto const* ref = assoc->findProperty("Dependent");
    ASSERT_NE(ref, nullptr);
    EXPECT_EQ(ref->type, "reference");
    EXPECT_EQ(ref->refClass, "CIM_Slot");
}

// Catches bad inheritance handling: schema superclasses we do not ship must
// still answer class-name queries, and held parents must pass their features down.
TEST(MofReader, RepositoryInheritanceAndClassNames) {
    ClassRepository repo;
    repo.loadText(R"(
        class Base_A : CIM_ManagedElement { [Key] string Id; string Shared = "base"; uint32 Ping(); };
        class Sub_B : Base_A { string Shared = "sub"; string Own; };
        class Sub_C : Sub_B { };
        class Other_D : CIM_LogicalDevice { };
        class Root_E { };
    )",
                  "inline.mof", "root/mwq");
    repo.resolve();
    repo.resolve(); // a second pass must not duplicate anything

    CimClassDecl const* c = repo.find("root/mwq", "Sub_C");
    ASSERT_NE(c, nullptr);
    ASSERT_EQ(c->properties.size(), 3u);
    EXPECT_EQ(c->properties[0].name, "Id");
    EXPECT_TRUE(c->properties[0].propagated);
    EXPECT_EQ(c->properties[0].classOrigin, "Base_A");
    EXPECT_EQ(c->properties[1].defaultValue->items[0].text, "sub")
        << "override from the nearer parent wins";
    EXPECT_EQ(c->properties[1].classOrigin, "Sub_B");
    ASSERT_NE(c->findMethod("ping"), nullptr);
    EXPECT_TRUE(c->findMethod("ping")->propagated);

    auto names = [](std::vector<CimClassDecl const*> const& list) {
        std::set<std::string> out;
        for (auto* cls : list)
            out.insert(cls->name);
        return out;
    };
    EXPECT_EQ(names(repo.subclasses("root/mwq", "", false)),
              (std::set<std::string>{"Base_A", "Other_D", "Root_E"}));
    EXPECT_EQ(names(repo.subclasses("root/mwq", "", true)).size(), 5u);
    EXPECT_EQ(names(repo.subclasses("root/mwq", "Base_A", false)),
              (std::set<std::string>{"Sub_B"}));
    EXPECT_EQ(names(repo.subclasses("root/mwq", "base_a", true)),
              (std::set<std::string>{"Sub_B", "Sub_C"}));
    EXPECT_EQ(names(repo.subclasses("root/mwq", "CIM_ManagedElement", true)),
              (std::set<std::string>{"Base_A", "Sub_B", "Sub_C"}));
    EXPECT_TRUE(repo.knowsClassName("root/mwq", "cim_logicaldevice"));
    EXPECT_FALSE(repo.knowsClassName("root/mwq", "CIM_Nothing"));
    EXPECT_FALSE(repo.knowsClassName("root/none", "Base_A"));
    EXPECT_TRUE(repo.isA("root/mwq", "Sub_C", "CIM_ManagedElement"));
    EXPECT_FALSE(repo.isA("root/mwq", "Other_D", "Base_A"));
    EXPECT_EQ(repo.selfAndDescendants("root/mwq", "Sub_B"),
              (std::vector<std::string>{"Sub_B", "Sub_C"}));
}

// Catches includes resolved against the wrong folder, files read twice, and
// namespace leaking between files.
TEST(MofReader, PragmaIncludeAndDirectoryLoading) {
    TempDir dir;
    dir.write("a_main.mof", "#pragma namespace(\"root/cimv2\")\n#pragma "
                            "include(\"sub/b_part.mof\")\nclass View_A : Part_B { };\n");
    dir.write("sub/b_part.mof", "class Part_B { string Name; };\n");
    dir.write("c_other.mof", "class Other_C { };\n");
    dir.write("sub/ignored.txt", "not mof");
    ClassRepository repo;
    repo.loadDirectory(dir.path.string(), "root/mwq");
    repo.loadFile((dir.path / "a_main.mof").string(),
                  "root/mwq"); // already read: no duplicate error
    repo.resolve();
    ASSERT_NE(repo.find("root/cimv2", "Part_B"), nullptr);
    ASSERT_NE(repo.find("root/cimv2", "View_A"), nullptr);
    EXPECT_EQ(repo.find("root/cimv2", "View_A")->properties.size(), 1u);
    EXPECT_NE(repo.find("root/mwq", "Other_C"), nullptr)
        << "each file starts in the default namespace";
}

// Catches start-up errors that do not say where the problem is.
TEST(MofReader, BadMofNamesFileAndLine) {
    // Oversized input must be refused before its cost grows with the square of its size.
    std::string deepChain = "class C0 { };\n";
    for (int i = 1; i <= 40; ++i)
        deepChain += "class C" + std::to_string(i) + " : C" + std::to_string(i - 1) + " { };\n";
    std::string manyFeatures = "class A {";
    for (int i = 0; i <= 1024; ++i)
        manyFeatures += " string P" + std::to_string(i) + ";";
    manyFeatures += " };";
    std::string const longInclude = "#pragma include(\"" + std::string(300, 'x') + ".mof\")";
    struct Case {
        char const* text;
        int line;
        char const* fragment;
    };
    Case const cases[] = {
        {"class A {\n  string X\n};", 3, "expected ';'"},
        {"class A {\n  strang X;\n};", 2, "unknown type 'strang'"},
        {"class A {\n string X;\n", 3, "not closed"},
        {"class A { };\n\nclass A { };", 3, "already declared at bad.mof:1"},
        {"[Description(\"open\n]", 1, "unterminated string"},
        {"/* never closed\n\n", 1, "unterminated comment"},
        {"class A { string X; string x; };", 1, "duplicate property x"},
        {"class A { uint8 V[] = 3; };", 1, "array-ness"},
        {"\n#define X", 2, "unknown directive"},
        {"\n\n@", 3, "unexpected character"},
        {"class A { uint32 M(uint32 a b); };", 1, "expected ')'"},
        {"class A : B { }; class B : A { };", 1, "inheritance cycle"},
        {"#pragma include(\"missing.mof\")", 1, "included file not found"},
        {"#pragma include(\".\")", 1, "included file not found"},
        {longInclude.c_str(), 1, "included file not found"},
        {"klass A { };", 1, "expected 'class'"},
        {"class A { uint8 V = 12abc; };", 1, "bad number"},
        {"class A {\n  uint8 V[99999999999];\n};", 2, "array size 99999999999 is out of range"},
        {deepChain.c_str(), 2, "inheritance deeper than 32 levels"},
        {manyFeatures.c_str(), 1, "more than 1024 properties"},
    };
    for (auto const& c : cases) {
        ClassRepository repo;
        try {
            repo.loadText(c.text, "bad.mof", "root/mwq");
            repo.resolve();
            ADD_FAILURE() << "accepted: " << c.text;
        } catch (MofError const& e) {
            EXPECT_EQ(e.line(), c.line) << c.text << " -> " << e.what();
            EXPECT_NE(std::string(e.what()).find(c.fragment), std::string::npos) << e.what();
            EXPECT_EQ(std::string(e.what()).rfind("bad.mof:", 0), 0u) << e.what();
        }
    }
}

// Catches an include loop that would recurse until the stack runs out.
TEST(MofReader, IncludeCycleIsAnError) {
    TempDir dir;
    dir.write("x.mof", "#pragma include(\"y.mof\")\n");
    dir.write("y.mof", "\n#pragma include(\"x.mof\")\n");
    ClassRepository repo;
    try {
        repo.loadFile((dir.path / "x.mof").string(), "root/mwq");
        FAIL() << "cycle accepted";
    } catch (MofError const& e) {
        EXPECT_NE(std::string(e.what()).find("y.mof:2"), std::string::npos) << e.what();
    }
}
