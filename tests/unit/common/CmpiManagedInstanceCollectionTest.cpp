#include "CmpiManagedInstanceCollection.h"
#include "ResultSinks.h"
#include "TestAssociation.h"
#include "TestInstance.h"
#include "TestTernaryAssociation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;
using QLN::CmpiManagedInstanceCollection;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

CmpiObjectPath classPath(std::string const& className) {
    return CmpiObjectPath("root/mwq", className);
}

class Collection : public testing::Test {
protected:
    Logger logger{"test"};
    CmpiManagedInstanceCollection collection{logger};
    std::atomic<int> destroyed{0};
    CmpiContext context;

    TestInstance* add(std::string const& className, std::string const& name) {
        auto* instance = new TestInstance(className, name, &destroyed);
        collection.createInstance(instance);
        return instance;
    }
};

} // namespace

// Faults: lookups that depend on key order or letter case, index order lost,
// class filter of enumerations ignored or case-sensitive.
TEST_F(Collection, FindsByPathAndIndexInOrder) {
    auto* a1 = add("QLN_Disk", "a1");
    auto* b1 = add("QLN_Volume", "b1");
    auto* a2 = add("QLN_Disk", "a2");
    ASSERT_EQ(collection.size(), 3u);
    EXPECT_EQ(collection.getManagedInstance(0u), a1);
    EXPECT_EQ(collection.getManagedInstance(1u), b1);
    EXPECT_EQ(collection.getManagedInstance(2u), a2);
    EXPECT_EQ(collection.getManagedInstance(3u), nullptr);

    CmpiObjectPath asked("root/mwq", "qln_disk");
    asked.addKey("name", "a2");
    asked.addKey("CREATIONCLASSNAME", "QLN_Disk");
    EXPECT_EQ(collection.getManagedInstance(asked), a2);
    EXPECT_EQ(collection.getManagedInstance(TestInstance::pathOf("QLN_Disk", "zz")), nullptr);
    // Same keys, other class: a different path.
    CmpiObjectPath otherClass = TestInstance::pathOf("QLN_Disk", "b1");
    EXPECT_EQ(collection.getManagedInstance(otherClass), nullptr);

    PathSink names;
    collection.enumInstanceNames(names, context, classPath("QLN_DISK"));
    EXPECT_THAT(names.names(), ElementsAre("a1", "a2"));
}

// Faults: a replaced instance leaks or is kept twice; a second delete of the
// same path crashes or removes something else.
TEST_F(Collection, ReplaceKeepsPlaceAndDeleteTwiceIsHarmless) {
    add("QLN_Disk", "a1");
    auto* old = add("QLN_Disk", "a2");
    add("QLN_Disk", "a3");
    auto* fresh = new TestInstance("QLN_Disk", "a2", &destroyed);
    EXPECT_FALSE(collection.createInstance(fresh));
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(collection.size(), 3u);
    EXPECT_EQ(collection.getManagedInstance(1u), fresh);
    EXPECT_NE(collection.getManagedInstance(TestInstance::pathOf("QLN_Disk", "a2")), old);
    EXPECT_FALSE(collection.createInstance(nullptr));

    EXPECT_TRUE(collection.deleteInstance(TestInstance::pathOf("QLN_Disk", "a2")));
    EXPECT_FALSE(collection.deleteInstance(TestInstance::pathOf("QLN_Disk", "a2")));
    EXPECT_EQ(destroyed, 2);
    EXPECT_EQ(collection.size(), 2u);
    PathSink names;
    collection.enumInstanceNames(names, context, classPath("QLN_Disk"));
    EXPECT_THAT(names.names(), ElementsAre("a1", "a3"));
}

// Faults: invisible instances still served, cleanup deletes visible ones or
// leaves the path index pointing at freed memory.
TEST_F(Collection, CleanupRemovesOnlyInvisible) {
    add("QLN_Disk", "a1");
    auto* hidden = add("QLN_Disk", "a2");
    add("QLN_Disk", "a3");
    auto* hidden2 = add("QLN_Volume", "v1");
    hidden->setVisible(false);
    hidden2->setVisible(false);

    InstanceSink rows;
    collection.enumInstances(rows, context, classPath("QLN_Disk"), nullptr);
    EXPECT_THAT(rows.names(), ElementsAre("a1", "a3"));
    InstanceSink single;
    EXPECT_FALSE(
        collection.getInstance(single, context, TestInstance::pathOf("QLN_Disk", "a2"), nullptr));

    EXPECT_EQ(collection.cleanup(), 2u);
    EXPECT_EQ(destroyed, 2);
    EXPECT_EQ(collection.size(), 2u);
    EXPECT_EQ(collection.getManagedInstance(TestInstance::pathOf("QLN_Disk", "a2")), nullptr);
    EXPECT_EQ(collection.getManagedInstance(1u)->getPath().getKey("Name").getString(), "a3");
    EXPECT_EQ(collection.cleanup(), 0u);
}

// Faults: a change that leaves the generation as it was lets a caller keep
// pointers to freed instances; a read that moves it wastes every cache.
TEST_F(Collection, GenerationMovesWithEveryChangeAndOnlyThen) {
    auto moved = [this, last = collection.generation()]() mutable {
        auto const now = collection.generation();
        bool const changed = now != last;
        last = now;
        return changed;
    };
    add("QLN_Disk", "a1");
    EXPECT_TRUE(moved()) << "add";
    collection.createInstance(new TestInstance("QLN_Disk", "a1", &destroyed));
    EXPECT_TRUE(moved()) << "replace";
    auto* hidden = add("QLN_Disk", "a2");
    moved();
    InstanceSink rows;
    collection.enumInstances(rows, context, classPath("QLN_Disk"), nullptr);
    collection.getManagedInstance(0u);
    EXPECT_EQ(collection.cleanup(), 0u);
    EXPECT_FALSE(collection.deleteInstance(TestInstance::pathOf("QLN_Disk", "gone")));
    EXPECT_FALSE(moved()) << "reads, an empty cleanup and a delete of nothing";
    hidden->setVisible(false);
    EXPECT_EQ(collection.cleanup(), 1u);
    EXPECT_TRUE(moved()) << "cleanup";
    EXPECT_TRUE(collection.deleteInstance(TestInstance::pathOf("QLN_Disk", "a1")));
    EXPECT_TRUE(moved()) << "delete";
}

// Faults: the property list is not applied (or drops keys); a failing
// instance ends the enumeration; a failing single get is swallowed.
TEST_F(Collection, PropertyListsAndFailingInstances) {
    add("QLN_Disk", "a1");
    auto* broken = add("QLN_Disk", "a2");
    add("QLN_Disk", "a3");
    broken->failing = true;

    char const* onlyStatus[] = {"operationalstatus", nullptr};
    InstanceSink rows;
    collection.enumInstances(rows, context, classPath("QLN_Disk"), onlyStatus);
    ASSERT_THAT(rows.names(), ElementsAre("a1", "a3"));
    EXPECT_TRUE(rows.instances[0].hasProperty("OperationalStatus"));
    EXPECT_TRUE(rows.instances[0].hasProperty("Name"));
    EXPECT_FALSE(rows.instances[0].hasProperty("ElementName"));

    InstanceSink all;
    EXPECT_TRUE(
        collection.getInstance(all, context, TestInstance::pathOf("QLN_Disk", "a1"), nullptr));
    ASSERT_EQ(all.instances.size(), 1u);
    EXPECT_TRUE(all.instances[0].hasProperty("ElementName"));

    InstanceSink none;
    EXPECT_THROW(
        collection.getInstance(none, context, TestInstance::pathOf("QLN_Disk", "a2"), nullptr),
        CmpiCpp::CmpiStatus);
}

namespace {

// A system with two disks and a volume, a computer system served elsewhere,
// and a three-ended path.
class Associations : public Collection {
protected:
    void SetUp() override {
        system = add("QLN_System", "s");
        disk1 = add("QLN_Disk", "d1");
        disk2 = add("QLN_Disk", "d2");
        volume = add("QLN_Volume", "v");
        collection.createInstance(new TestAssociation("QLN_SystemDisk", "GroupComponent", system,
                                                      "PartComponent", disk1));
        collection.createInstance(new TestAssociation("QLN_SystemDisk", "GroupComponent", system,
                                                      "PartComponent", disk2));
        collection.createInstance(new TestAssociation("QLN_SystemVolume", "GroupComponent", system,
                                                      "PartComponent", volume));
        collection.createInstance(
            new TestAssociation("QLN_VolumeDisk", "Dependent", volume, "Antecedent", disk1));
        host = TestInstance::pathOf("QLN_ComputerSystem", "host");
        collection.createInstance(
            new TestAssociation("QLN_HostSystem", "GroupComponent", host, "PartComponent", system));
    }

    std::vector<std::string> associatorNames(CmpiObjectPath const& from, CmpiName assocClass,
                                             CmpiName resultClass, CmpiName role,
                                             CmpiName resultRole) {
        PathSink sink;
        collection.associatorNames(sink, context, from, assocClass, resultClass, role, resultRole);
        return sink.names();
    }
    std::vector<std::string> referenceClasses(CmpiObjectPath const& from, CmpiName resultClass,
                                              CmpiName role) {
        PathSink sink;
        collection.referenceNames(sink, context, from, resultClass, role);
        std::vector<std::string> out;
        for (auto const& each : sink.paths) {
            out.push_back(each.getClassName().str());
        }
        return out;
    }

    TestInstance* system = nullptr;
    TestInstance* disk1 = nullptr;
    TestInstance* disk2 = nullptr;
    TestInstance* volume = nullptr;
    CmpiObjectPath host;
};

} // namespace

// Faults: any of the four filters ignored, applied to the wrong end, or
// compared with letter case; an end served elsewhere lost from names.
TEST_F(Associations, AssociatorFilters) {
    CmpiObjectPath s = system->getPath();
    EXPECT_THAT(associatorNames(s, {}, {}, {}, {}), UnorderedElementsAre("d1", "d2", "v", "host"));
    EXPECT_THAT(associatorNames(s, "qln_systemdisk", {}, {}, {}), UnorderedElementsAre("d1", "d2"));
    EXPECT_THAT(associatorNames(s, {}, "QLN_VOLUME", {}, {}), ElementsAre("v"));
    // From the system, it is the group; the host association names it as part.
    EXPECT_THAT(associatorNames(s, {}, {}, "GroupComponent", {}),
                UnorderedElementsAre("d1", "d2", "v"));
    EXPECT_THAT(associatorNames(s, {}, {}, "partcomponent", {}), ElementsAre("host"));
    EXPECT_THAT(associatorNames(s, {}, {}, {}, "GroupComponent"), ElementsAre("host"));
    EXPECT_THAT(associatorNames(s, {}, {}, "GroupComponent", "GroupComponent"), IsEmpty());
    EXPECT_THAT(associatorNames(disk1->getPath(), {}, {}, "Antecedent", "Dependent"),
                ElementsAre("v"));
    EXPECT_THAT(associatorNames(disk1->getPath(), {}, "QLN_System", {}, {}), ElementsAre("s"));
    EXPECT_THAT(associatorNames(TestInstance::pathOf("QLN_Disk", "nobody"), {}, {}, {}, {}),
                IsEmpty());

    // Instances only for ends served here, with the property list applied.
    InstanceSink rows;
    char const* onlyStatus[] = {"OperationalStatus", nullptr};
    collection.associators(rows, context, s, {}, {}, "PartComponent", {}, onlyStatus);
    EXPECT_THAT(rows.names(), IsEmpty());
    collection.associators(rows, context, s, "QLN_SystemDisk", {}, {}, {}, onlyStatus);
    EXPECT_THAT(rows.names(), UnorderedElementsAre("d1", "d2"));
    EXPECT_FALSE(rows.instances[0].hasProperty("ElementName"));
}

// Faults: references ignore the class or role filter, or return an
// association once per matching end.
TEST_F(Associations, ReferenceFilters) {
    CmpiObjectPath s = system->getPath();
    EXPECT_THAT(referenceClasses(s, {}, {}),
                UnorderedElementsAre("QLN_SystemDisk", "QLN_SystemDisk", "QLN_SystemVolume",
                                     "QLN_HostSystem"));
    EXPECT_THAT(referenceClasses(s, "qln_systemvolume", {}), ElementsAre("QLN_SystemVolume"));
    EXPECT_THAT(referenceClasses(s, {}, "PartComponent"), ElementsAre("QLN_HostSystem"));
    EXPECT_THAT(referenceClasses(disk1->getPath(), {}, "Antecedent"),
                ElementsAre("QLN_VolumeDisk"));
    EXPECT_THAT(referenceClasses(host, {}, {}), ElementsAre("QLN_HostSystem"));

    InstanceSink rows;
    char const* onlyIsCurrent[] = {"IsCurrent", nullptr};
    collection.references(rows, context, volume->getPath(), "QLN_VolumeDisk", {}, onlyIsCurrent);
    ASSERT_EQ(rows.instances.size(), 1u);
    EXPECT_TRUE(rows.instances[0].hasProperty("IsCurrent"));
    EXPECT_TRUE(rows.instances[0].hasProperty("Antecedent")); // a key stays
}

// Faults: a class filter that ignores subclasses, asks the object manager
// once per instance instead of once per class, or fails the request when
// the object manager cannot answer.
TEST_F(Associations, ClassFiltersTakeSubclassesThroughTheTest) {
    CmpiObjectPath s = system->getPath();
    EXPECT_THAT(associatorNames(s, {}, "CIM_LogicalDevice", {}, {}), IsEmpty())
        << "no test, no hierarchy";

    int asked = 0;
    collection.setClassTest(
        [&](std::string const& nameSpace, CmpiName const& className, CmpiName const& filter) {
            ++asked;
            EXPECT_EQ(nameSpace, "root/mwq");
            if (className == CmpiName("QLN_ComputerSystem"))
                throw std::runtime_error("repository gone");
            std::string const& c = className.str();
            if (filter == CmpiName("CIM_LogicalDevice"))
                return c == "QLN_Disk" || c == "QLN_Volume";
            if (filter == CmpiName("CIM_Component"))
                return c.rfind("QLN_System", 0) == 0;
            return false;
        });
    EXPECT_THAT(associatorNames(s, {}, "cim_logicaldevice", {}, {}),
                UnorderedElementsAre("d1", "d2", "v"));
    EXPECT_EQ(asked, 3) << "disk, volume and the host's class, each once";
    EXPECT_THAT(associatorNames(s, "CIM_Component", {}, {}, {}),
                UnorderedElementsAre("d1", "d2", "v"));
    EXPECT_THAT(referenceClasses(s, "CIM_Component", {}),
                UnorderedElementsAre("QLN_SystemDisk", "QLN_SystemDisk", "QLN_SystemVolume"));
    EXPECT_THAT(associatorNames(s, {}, "QLN_Volume", {}, {}), ElementsAre("v"))
        << "the own class needs no test";
}

// Faults: deleting an association leaves it in the end index (use after
// free), or deleting an end shows a stale far end instance.
TEST_F(Associations, DeletionUpdatesEndIndex) {
    CmpiObjectPath link = collection.getManagedInstance(4u)->getPath(); // system - disk1
    EXPECT_TRUE(collection.deleteInstance(link));
    EXPECT_THAT(associatorNames(system->getPath(), "QLN_SystemDisk", {}, {}, {}),
                ElementsAre("d2"));
    EXPECT_THAT(associatorNames(disk1->getPath(), {}, {}, {}, {}), ElementsAre("v"));

    volume->setVisible(false);
    EXPECT_THAT(associatorNames(disk1->getPath(), {}, {}, {}, {}), IsEmpty());
}

// Faults: ends are shared records, so an association naming one end twice,
// or replaced by one with the same ends, must leave that record whole for
// the other associations (ASan runs catch a freed one being read).
TEST_F(Associations, SharedEndsOutliveEachAssociation) {
    auto* self = new TestAssociation("QLN_DiskPeer", "First", disk1, "Second", disk1);
    collection.createInstance(self);
    EXPECT_THAT(associatorNames(disk1->getPath(), "QLN_DiskPeer", {}, "First", {}),
                ElementsAre("d1"));
    EXPECT_TRUE(collection.deleteInstance(self->getPath()));
    EXPECT_THAT(associatorNames(disk1->getPath(), {}, {}, {}, {}), UnorderedElementsAre("s", "v"));

    // The same path again: the old association goes, its ends stay indexed.
    EXPECT_FALSE(collection.createInstance(
        new TestAssociation("QLN_VolumeDisk", "Dependent", volume, "Antecedent", disk1)));
    EXPECT_THAT(associatorNames(disk1->getPath(), "QLN_VolumeDisk", {}, {}, {}), ElementsAre("v"));
    EXPECT_THAT(associatorNames(volume->getPath(), {}, {}, {}, {}),
                UnorderedElementsAre("s", "d1"));
}

// Faults: a three-ended association gives one far end only, or the result
// role does not pick among them.
TEST_F(Collection, ThreeEndedAssociation) {
    auto* initiator = add("QLN_Initiator", "i");
    auto* target = add("QLN_Target", "t");
    auto* unit = add("QLN_Extent", "u");
    auto* path = new TestTernaryAssociation(initiator, target, unit);
    collection.createInstance(path);

    PathSink all;
    collection.associatorNames(all, context, target->getPath(), {}, {}, {}, {});
    EXPECT_THAT(all.names(), UnorderedElementsAre("i", "u"));
    PathSink one;
    collection.associatorNames(one, context, target->getPath(), {}, {}, "Target", "LogicalUnit");
    EXPECT_THAT(one.names(), ElementsAre("u"));
    PathSink refs;
    collection.referenceNames(refs, context, unit->getPath(), "QLN_TestPath", "LogicalUnit");
    EXPECT_EQ(refs.paths.size(), 1u);
}
