#pragma once
// The owning container of every managed instance, and the answer to every
// CMPI read request.
//
// Instances keep the order they were added in (getManagedInstance(index)).
// A path finds its instance through a hash of the path's canonical key text;
// an association is found from either end through a second index from each
// end path to the associations whose reference keys name it. Both indexes
// are built when an instance is added, from its getPath() at that moment, so
// deleting an association never has to ask its (possibly gone) ends again.
//
// The collection guards its containers with a shared mutex of its own:
// requests read beside each other, and a lookup made outside the provider's
// lock (method dispatch beside a worker pass) is safe. Instances' own
// getInstance() runs under the shared lock; results are handed to the result
// object after the lock is released.
#include "CmpiContext.h"
#include "CmpiInstanceResult.h"
#include "CmpiManagedInstance.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"
#include "CmpiObjectPathResult.h"
#include "Logger.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace QLN {

class CmpiManagedInstanceCollection {
public:
    explicit CmpiManagedInstanceCollection(Logger& logger);
    CmpiManagedInstanceCollection(CmpiManagedInstanceCollection const&) = delete;
    CmpiManagedInstanceCollection& operator=(CmpiManagedInstanceCollection const&) = delete;
    ~CmpiManagedInstanceCollection();

    // Takes ownership. An instance whose path is already held replaces the
    // old one at its place (the old one is deleted, and a warning logged) and
    // the call returns false; otherwise the instance goes to the end and the
    // call returns true. Null is refused with false.
    bool createInstance(CmpiManagedInstance* instance);
    // Removes and deletes; false (and nothing else) when no instance has the path.
    bool deleteInstance(CmpiCpp::CmpiObjectPath const& path);
    CmpiManagedInstance* getManagedInstance(CmpiCpp::CmpiObjectPath const& path) const;
    // For callers without the provider lock (methods): the instance stays
    // alive as long as they hold it, even when a worker pass deletes it.
    std::shared_ptr<CmpiManagedInstance>
    shareManagedInstance(CmpiCpp::CmpiObjectPath const& path) const;
    // Null past the end, since the size may have changed under the caller.
    CmpiManagedInstance* getManagedInstance(unsigned int index) const;
    unsigned int size() const;
    // Changes whenever an instance is added, replaced or removed, so that a
    // caller may keep what it found by walking the collection until then.
    std::uint64_t generation() const;
    // Removes and deletes every invisible instance; returns how many went.
    unsigned int cleanup();

    void enumInstanceNames(CmpiCpp::CmpiObjectPathResult& result,
                           CmpiCpp::CmpiContext const& context,
                           CmpiCpp::CmpiObjectPath const& path) const;
    void enumInstances(CmpiCpp::CmpiInstanceResult& result, CmpiCpp::CmpiContext const& context,
                       CmpiCpp::CmpiObjectPath const& path, char const** properties) const;
    bool getInstance(CmpiCpp::CmpiInstanceResult& result, CmpiCpp::CmpiContext const& context,
                     CmpiCpp::CmpiObjectPath const& path, char const** properties) const;

    // Whether a class of this namespace is the filter's class or one of its
    // subclasses. Only the object manager knows the hierarchy; the provider
    // sets a test that asks it.
    using ClassTest =
        std::function<bool(std::string const& nameSpace, CmpiCpp::CmpiName const& className,
                           CmpiCpp::CmpiName const& filter)>;
    // Without a test, a class filter takes only its own class.
    void setClassTest(ClassTest test);

    // Filters as DSP0200 defines them; an empty name is no filter. `role` is
    // the reference of the association that names the source, `resultRole`
    // the one that names the far end. Names compare without regard to case;
    // a class filter takes subclasses too, through the class test.
    void associators(CmpiCpp::CmpiInstanceResult& result, CmpiCpp::CmpiContext const& context,
                     CmpiCpp::CmpiObjectPath const& path, CmpiCpp::CmpiName const& assocClass,
                     CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                     CmpiCpp::CmpiName const& resultRole, char const** properties) const;

    // Associators in two steps, for a caller that holds a lock of its own
    // across the first: the object manager may route a far-end request back
    // into the same provider, so the second step, which asks it, must run
    // with no provider lock held.
    struct Associators {
        std::vector<CmpiCpp::CmpiInstance> found;       // ends served here
        std::vector<CmpiCpp::CmpiObjectPath> elsewhere; // ends another provider serves
    };
    Associators findAssociators(CmpiCpp::CmpiObjectPath const& path,
                                CmpiCpp::CmpiName const& assocClass,
                                CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                                CmpiCpp::CmpiName const& resultRole, char const** properties) const;
    void resolveElsewhere(Associators& answer, CmpiCpp::CmpiContext const& context,
                          char const** properties) const;
    void associatorNames(CmpiCpp::CmpiObjectPathResult& result, CmpiCpp::CmpiContext const& context,
                         CmpiCpp::CmpiObjectPath const& path, CmpiCpp::CmpiName const& assocClass,
                         CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                         CmpiCpp::CmpiName const& resultRole) const;
    // `resultClass` here filters the association class, as DSP0200 has it.
    void references(CmpiCpp::CmpiInstanceResult& result, CmpiCpp::CmpiContext const& context,
                    CmpiCpp::CmpiObjectPath const& path, CmpiCpp::CmpiName const& resultClass,
                    CmpiCpp::CmpiName const& role, char const** properties) const;
    void referenceNames(CmpiCpp::CmpiObjectPathResult& result, CmpiCpp::CmpiContext const& context,
                        CmpiCpp::CmpiObjectPath const& path, CmpiCpp::CmpiName const& resultClass,
                        CmpiCpp::CmpiName const& role) const;

private:
    struct Entry;
    // One end that associations name, kept once however many name it: in a
    // large graph most associations point at a few thousand ends.
    struct End {
        CmpiCpp::CmpiObjectPath path;
        std::string const* key = nullptr; // the index's own key text
        std::vector<Entry*> associations; // each at most once
    };
    struct Reference {
        CmpiCpp::CmpiName const* role; // one of _names
        End const* end;                // valid while the entry is indexed
    };
    // A reference as read from an association's path, before it is indexed.
    struct NamedEnd {
        CmpiCpp::CmpiName role;
        CmpiCpp::CmpiObjectPath path;
        std::string key;
    };
    struct Entry {
        std::shared_ptr<CmpiManagedInstance> instance;
        CmpiCpp::CmpiName const* className = &noName; // one of _names
        // The path's canonical key text, left empty where the references
        // make it again: most of the graph is associations whose keys are
        // all references, and their text would be a fifth of its memory.
        std::string key;
        std::size_t keyHash = 0;
        bool reachable = false;            // getPath() worked at insertion
        std::vector<Reference> references; // reference keys, for associations only
    };
    // A far end that fits the filters: its path, and the entry serving it
    // here (null when it is not held here).
    struct FarEnd {
        CmpiCpp::CmpiObjectPath path;
        Entry const* entry;
    };

    void _index(Entry* entry, std::vector<NamedEnd>& ends);
    // The collection's one copy of a class or role name.
    CmpiCpp::CmpiName const* _intern(CmpiCpp::CmpiName const& name);
    // The entry whose path has this canonical key text, or null.
    Entry* _find(std::string_view key) const;
    // An entry's canonical key text: its own, or made into `scratch`.
    std::string_view _keyText(Entry const* entry, std::string& scratch) const;
    // For log lines: the key text, made for the line when not kept.
    std::string _describe(Entry const* entry) const;
    void _unindex(Entry* entry);
    // Visits the entries of one class (all of them for an empty name) in the
    // collection's order.
    template <typename Visit>
    void _forClass(CmpiCpp::CmpiName const& className, Visit&& visit) const;
    void _rebuildClassLists();
    std::size_t _positionOf(Entry const* entry) const;
    std::vector<Entry const*> _fittingAssociations(CmpiCpp::CmpiObjectPath const& path,
                                                   CmpiCpp::CmpiName const& assocClass,
                                                   CmpiCpp::CmpiName const& role) const;
    std::vector<FarEnd> _farEnds(CmpiCpp::CmpiObjectPath const& path,
                                 CmpiCpp::CmpiName const& assocClass,
                                 CmpiCpp::CmpiName const& resultClass,
                                 CmpiCpp::CmpiName const& role,
                                 CmpiCpp::CmpiName const& resultRole) const;
    bool _instanceOf(Entry const* entry, CmpiCpp::CmpiInstance& out, char const* what) const;

    Logger _logger;
    ClassTest _classTest;
    mutable std::shared_mutex _mutex;
    std::vector<std::unique_ptr<Entry>> _entries;
    std::uint64_t _generation = 0;
    // By the hash of the entries' key texts; the texts decide between
    // entries that share a hash. An entry never changes its key and leaves
    // this index before it is deleted.
    std::unordered_multimap<std::size_t, Entry*> _byPath;
    std::unordered_map<std::string, End> _byEnd;
    // Each class's entries by lower-cased class name: an enumeration of one
    // class would otherwise walk the whole graph, some forty entries for
    // each one it answers with.
    std::unordered_map<std::string, std::vector<Entry*>> _byClass;
    // Class and role names, once each by spelling: a graph has a few hundred
    // names over a few hundred thousand entries and references.
    std::unordered_map<std::string, CmpiCpp::CmpiName> _names;
    static inline CmpiCpp::CmpiName const noName{};
    // Lower-cased names of every class this collection has held. A missing
    // end of one of them is gone (or never was), and asking the object
    // manager would only route the request back here.
    std::unordered_set<std::string> _servedClasses;
};

} // namespace QLN
