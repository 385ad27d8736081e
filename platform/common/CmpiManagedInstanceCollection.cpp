#include "CmpiManagedInstanceCollection.h"

#include "QLNUtil.h"

#include "CmpiManagedInstanceAssociation.h"
#include "CmpiManagedInstanceMultiAssociation.h"

#include <algorithm>
#include <cctype>
#include <exception>
#include <mutex>
#include <unordered_set>

using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiInstanceResult;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;
using CmpiCpp::CmpiObjectPathResult;

namespace QLN {

namespace {
// Associations have two or three ends; one with more keeps its key text.
constexpr std::size_t maxReferenceKeys = 8;

bool fits(CmpiName const& filter, CmpiName const& name) {
    return filter.empty() || filter == name;
}

// A class filter for one request: the same name fits at once, any other is
// put to the class test once and its answer kept, since one request meets
// only a few classes but may walk thousands of instances of them.
class ClassFilter {
public:
    ClassFilter(CmpiName const& filter, std::string const& nameSpace,
                CmpiManagedInstanceCollection::ClassTest const& test, Logger const& logger)
        : _filter(filter), _nameSpace(nameSpace), _test(test), _logger(logger) {}

    bool fits(CmpiName const& className) {
        if (_filter.empty() || _filter == className) {
            return true;
        }
        if (!_test) {
            return false;
        }
        for (auto const& [name, answer] : _known) {
            if (name == className) {
                return answer;
            }
        }
        bool answer = false;
        try {
            answer = _test(_nameSpace, className, _filter);
        } catch (std::exception const& e) {
            _logger.warn("class filter %s: cannot tell whether %s is one: %s", _filter.c_str(),
                         className.c_str(), e.what());
        }
        _known.emplace_back(className, answer);
        return answer;
    }

private:
    CmpiName const& _filter;
    std::string const& _nameSpace;
    CmpiManagedInstanceCollection::ClassTest const& _test;
    Logger const& _logger;
    std::vector<std::pair<CmpiName, bool>> _known;
};

std::string lowered(CmpiName const& name) {
    std::string text(name.c_str());
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool isAssociation(CmpiManagedInstance const* instance) {
    return dynamic_cast<CmpiManagedInstanceAssociation const*>(instance) != nullptr ||
           dynamic_cast<CmpiManagedInstanceMultiAssociation const*>(instance) != nullptr;
}

} // namespace

CmpiManagedInstanceCollection::CmpiManagedInstanceCollection(Logger& logger) : _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("CmpiManagedInstanceCollection");
}

CmpiManagedInstanceCollection::~CmpiManagedInstanceCollection() {
    // Newest first: associations usually come after their ends.
    while (!_entries.empty()) {
        _entries.pop_back();
    }
}

void CmpiManagedInstanceCollection::_index(Entry* entry, std::vector<NamedEnd>& ends) {
    if (!entry->reachable) {
        return;
    }
    _byPath.emplace(entry->keyHash, entry);
    entry->references.clear();
    for (auto& named : ends) {
        auto [at, added] = _byEnd.try_emplace(std::move(named.key));
        End& end = at->second;
        if (added) {
            end.path = std::move(named.path);
            end.key = &at->first;
        }
        if (std::find(end.associations.begin(), end.associations.end(), entry) ==
            end.associations.end()) {
            end.associations.push_back(entry);
        }
        entry->references.push_back({_intern(named.role), &end});
    }
}

void CmpiManagedInstanceCollection::_unindex(Entry* entry) {
    if (!entry->reachable) {
        return;
    }
    auto [first, last] = _byPath.equal_range(entry->keyHash);
    for (auto at = first; at != last; ++at) {
        if (at->second == entry) {
            _byPath.erase(at);
            break;
        }
    }
    auto const& references = entry->references;
    for (std::size_t i = 0; i < references.size(); ++i) {
        // Two references to one end: that end may be gone after the first.
        End const* end = references[i].end;
        if (std::any_of(references.begin(), references.begin() + static_cast<std::ptrdiff_t>(i),
                        [end](Reference const& r) { return r.end == end; })) {
            continue;
        }
        auto byEnd = _byEnd.find(*end->key);
        if (byEnd == _byEnd.end()) {
            continue;
        }
        auto& list = byEnd->second.associations;
        list.erase(std::remove(list.begin(), list.end(), entry), list.end());
        if (list.empty()) {
            _byEnd.erase(byEnd);
        }
    }
    // The ends may be gone now; the entry is on its way out.
    entry->references.clear();
}

CmpiManagedInstanceCollection::Entry*
CmpiManagedInstanceCollection::_find(std::string_view key) const {
    auto [first, last] = _byPath.equal_range(std::hash<std::string_view>{}(key));
    std::string scratch;
    for (auto at = first; at != last; ++at) {
        if (_keyText(at->second, scratch) == key) {
            return at->second;
        }
    }
    return nullptr;
}

std::string_view CmpiManagedInstanceCollection::_keyText(Entry const* entry,
                                                         std::string& scratch) const {
    if (!entry->key.empty() || !entry->reachable) {
        return entry->key;
    }
    CmpiObjectPath::ReferenceKey keys[maxReferenceKeys];
    std::size_t const count = std::min(entry->references.size(), maxReferenceKeys);
    for (std::size_t i = 0; i < count; ++i) {
        keys[i] = {entry->references[i].role, entry->references[i].end->key};
    }
    scratch.clear();
    CmpiObjectPath::appendCanonicalKey(scratch, *entry->className, keys, count);
    return scratch;
}

std::string CmpiManagedInstanceCollection::_describe(Entry const* entry) const {
    std::string scratch;
    return std::string(_keyText(entry, scratch));
}

template <typename Visit>
void CmpiManagedInstanceCollection::_forClass(CmpiName const& className, Visit&& visit) const {
    if (className.empty()) {
        for (auto const& entry : _entries) {
            visit(*entry);
        }
        return;
    }
    auto found = _byClass.find(lowered(className));
    if (found != _byClass.end()) {
        for (Entry const* entry : found->second) {
            visit(*entry);
        }
    }
}

void CmpiManagedInstanceCollection::_rebuildClassLists() {
    _byClass.clear();
    for (auto const& entry : _entries) {
        _byClass[lowered(*entry->className)].push_back(entry.get());
    }
}

CmpiName const* CmpiManagedInstanceCollection::_intern(CmpiName const& name) {
    return &_names.try_emplace(name.str(), name).first->second;
}

std::size_t CmpiManagedInstanceCollection::_positionOf(Entry const* entry) const {
    for (std::size_t i = 0; i < _entries.size(); ++i) {
        if (_entries[i].get() == entry) {
            return i;
        }
    }
    return _entries.size();
}

bool CmpiManagedInstanceCollection::createInstance(CmpiManagedInstance* instance) {
    if (!instance) {
        _logger.error("createInstance: refused a null instance");
        return false;
    }
    auto entry = std::make_unique<Entry>();
    entry->instance.reset(instance);
    std::vector<NamedEnd> ends;
    // Path and references are read before the lock: nobody else sees the
    // instance yet, and getPath() of an association asks its ends.
    std::string key;
    CmpiName className;
    try {
        CmpiObjectPath path = instance->getPath();
        className = instance->getClassName();
        key = path.canonicalKey();
        if (isAssociation(instance)) {
            for (unsigned int i = 0; i < path.getKeyCount(); ++i) {
                auto const& value = path.getKeyAt(i);
                if (value.getType() == CMPI_ref && !value.isNull()) {
                    CmpiObjectPath const& end = value.getObjectPath();
                    ends.push_back({path.getKeyNameAt(i), end, end.canonicalKey()});
                }
            }
        }
        entry->keyHash = std::hash<std::string_view>{}(key);
        entry->reachable = true;
        // The text is made again from the class the instance names, so that
        // must be its path's class.
        bool const fromReferences = !ends.empty() && ends.size() == path.getKeyCount() &&
                                    ends.size() <= maxReferenceKeys &&
                                    path.getClassName() == className;
        if (!fromReferences) {
            entry->key = key;
        }
    } catch (std::exception const& e) {
        // Ownership was handed over, so the instance stays (and is freed with
        // the collection), but without a path nobody can find it.
        entry->reachable = false;
        entry->key.clear();
        ends.clear();
        _logger.error("createInstance: getPath failed, instance kept but not reachable by path: %s",
                      e.what());
    }

    std::unique_ptr<Entry> replaced;
    {
        std::unique_lock lock(_mutex);
        ++_generation;
        entry->className = _intern(className);
        if (entry->reachable) {
            _servedClasses.insert(lowered(className));
        }
        Entry* existing = entry->reachable ? _find(key) : nullptr;
        if (existing == nullptr) {
            _byClass[lowered(className)].push_back(entry.get());
            _entries.push_back(std::move(entry));
            _index(_entries.back().get(), ends);
            return true;
        }
        std::size_t position = _positionOf(existing);
        _unindex(existing);
        replaced = std::move(_entries[position]);
        _entries[position] = std::move(entry);
        _index(_entries[position].get(), ends);
        if (*replaced->className == *_entries[position]->className) {
            auto& list = _byClass[lowered(className)];
            std::replace(list.begin(), list.end(), replaced.get(), _entries[position].get());
        } else {
            _rebuildClassLists();
        }
    }
    _logger.warn("createInstance: %s replaces an instance with the same path", key.c_str());
    return false;
}

bool CmpiManagedInstanceCollection::deleteInstance(CmpiObjectPath const& path) {
    std::string key = path.canonicalKey();
    std::unique_ptr<Entry> gone;
    {
        std::unique_lock lock(_mutex);
        Entry* found = _find(key);
        if (found == nullptr) {
            return false;
        }
        ++_generation;
        std::size_t position = _positionOf(found);
        _unindex(found);
        gone = std::move(_entries[position]);
        _entries.erase(_entries.begin() + static_cast<std::ptrdiff_t>(position));
        auto list = _byClass.find(lowered(*gone->className));
        if (list != _byClass.end()) {
            std::erase(list->second, gone.get());
        }
    }
    // The destructor runs outside the lock: it may log, and may be slow.
    gone.reset();
    return true;
}

CmpiManagedInstance*
CmpiManagedInstanceCollection::getManagedInstance(CmpiObjectPath const& path) const {
    std::string key = path.canonicalKey();
    std::shared_lock lock(_mutex);
    Entry const* found = _find(key);
    return found == nullptr ? nullptr : found->instance.get();
}

std::shared_ptr<CmpiManagedInstance>
CmpiManagedInstanceCollection::shareManagedInstance(CmpiObjectPath const& path) const {
    std::string key = path.canonicalKey();
    std::shared_lock lock(_mutex);
    Entry const* found = _find(key);
    return found == nullptr ? nullptr : found->instance;
}

CmpiManagedInstance* CmpiManagedInstanceCollection::getManagedInstance(unsigned int index) const {
    std::shared_lock lock(_mutex);
    return index < _entries.size() ? _entries[index]->instance.get() : nullptr;
}

std::uint64_t CmpiManagedInstanceCollection::generation() const {
    std::shared_lock lock(_mutex);
    return _generation;
}

unsigned int CmpiManagedInstanceCollection::size() const {
    std::shared_lock lock(_mutex);
    return static_cast<unsigned int>(_entries.size());
}

unsigned int CmpiManagedInstanceCollection::cleanup() {
    std::vector<std::unique_ptr<Entry>> gone;
    {
        std::unique_lock lock(_mutex);
        std::vector<std::unique_ptr<Entry>> kept;
        kept.reserve(_entries.size());
        for (auto& entry : _entries) {
            if (entry->instance->visible()) {
                kept.push_back(std::move(entry));
            } else {
                _unindex(entry.get());
                gone.push_back(std::move(entry));
            }
        }
        _entries = std::move(kept);
        if (!gone.empty()) {
            ++_generation;
            _rebuildClassLists();
        }
    }
    return static_cast<unsigned int>(gone.size());
}

bool CmpiManagedInstanceCollection::_instanceOf(Entry const* entry, CmpiInstance& out,
                                                char const* what) const {
    try {
        out = entry->instance->getInstance();
        return true;
    } catch (std::exception const& e) {
        _logger.warn("%s: skipped %s, getInstance failed: %s", what, _describe(entry).c_str(),
                     e.what());
    } catch (...) {
        _logger.warn("%s: skipped %s, getInstance failed", what, _describe(entry).c_str());
    }
    return false;
}

void CmpiManagedInstanceCollection::enumInstanceNames(CmpiObjectPathResult& result,
                                                      CmpiContext const&,
                                                      CmpiObjectPath const& path) const {
    CmpiName const& className = path.getClassName();
    std::vector<CmpiObjectPath> found;
    {
        std::shared_lock lock(_mutex);
        _forClass(className, [&](Entry const& entry) {
            if (!entry.instance->visible()) {
                return;
            }
            try {
                found.push_back(entry.instance->getPath());
            } catch (std::exception const& e) {
                _logger.warn("enumInstanceNames: skipped an instance of %s, getPath failed: %s",
                             entry.className->c_str(), e.what());
            }
        });
    }
    for (auto const& each : found) {
        result.returnObjectPath(each);
    }
}

void CmpiManagedInstanceCollection::enumInstances(CmpiInstanceResult& result, CmpiContext const&,
                                                  CmpiObjectPath const& path,
                                                  char const** properties) const {
    CmpiName const& className = path.getClassName();
    std::vector<CmpiInstance> found;
    {
        std::shared_lock lock(_mutex);
        _forClass(className, [&](Entry const& entry) {
            CmpiInstance instance;
            if (entry.instance->visible() && _instanceOf(&entry, instance, "enumInstances")) {
                found.push_back(properties ? instance.filtered(properties) : std::move(instance));
            }
        });
    }
    for (auto& each : found) {
        result.returnInstance(std::move(each));
    }
}

bool CmpiManagedInstanceCollection::getInstance(CmpiInstanceResult& result, CmpiContext const&,
                                                CmpiObjectPath const& path,
                                                char const** properties) const {
    std::string key = path.canonicalKey();
    CmpiInstance instance;
    {
        std::shared_lock lock(_mutex);
        Entry const* found = _find(key);
        if (found == nullptr || !found->instance->visible()) {
            return false;
        }
        // A failure here is the caller's to see: one instance was asked for.
        instance = found->instance->getInstance();
    }
    result.returnInstance(instance.filtered(properties));
    return true;
}

void CmpiManagedInstanceCollection::setClassTest(ClassTest test) {
    std::unique_lock lock(_mutex);
    _classTest = std::move(test);
}

std::vector<CmpiManagedInstanceCollection::Entry const*>
CmpiManagedInstanceCollection::_fittingAssociations(CmpiObjectPath const& path,
                                                    CmpiName const& assocClass,
                                                    CmpiName const& role) const {
    std::vector<Entry const*> fitting;
    std::string const sourceKey = path.canonicalKey();
    auto found = _byEnd.find(sourceKey);
    if (found == _byEnd.end()) {
        return fitting;
    }
    End const* source = &found->second;
    ClassFilter classFilter(assocClass, path.getNameSpace().str(), _classTest, _logger);
    for (Entry const* entry : found->second.associations) {
        if (!classFilter.fits(*entry->className) || !entry->instance->visible()) {
            continue;
        }
        bool named =
            std::any_of(entry->references.begin(), entry->references.end(),
                        [&](Reference const& r) { return r.end == source && fits(role, *r.role); });
        if (named) {
            fitting.push_back(entry);
        }
    }
    return fitting;
}

// The far ends come from the association's reference keys rather than from
// otherEnd(): the keys carry the role names that the role filters need, and
// they serve two- and three-ended associations alike.
std::vector<CmpiManagedInstanceCollection::FarEnd>
CmpiManagedInstanceCollection::_farEnds(CmpiObjectPath const& path, CmpiName const& assocClass,
                                        CmpiName const& resultClass, CmpiName const& role,
                                        CmpiName const& resultRole) const {
    std::vector<FarEnd> ends;
    auto const found = _byEnd.find(path.canonicalKey());
    if (found == _byEnd.end()) {
        return ends;
    }
    End const* source = &found->second;
    // Ends are shared records, so one far end met twice is the same pointer.
    std::unordered_set<End const*> seen;
    ClassFilter classFilter(resultClass, path.getNameSpace().str(), _classTest, _logger);
    for (Entry const* association : _fittingAssociations(path, assocClass, role)) {
        auto const& references = association->references;
        for (std::size_t near = 0; near < references.size(); ++near) {
            if (references[near].end != source || !fits(role, *references[near].role)) {
                continue;
            }
            for (std::size_t far = 0; far < references.size(); ++far) {
                Reference const& reference = references[far];
                End const* end = reference.end;
                if (far == near || !fits(resultRole, *reference.role) ||
                    !classFilter.fits(end->path.getClassName()) || seen.count(end)) {
                    continue;
                }
                Entry const* entry = _find(*end->key);
                if (entry && !entry->instance->visible()) {
                    continue;
                }
                seen.insert(end);
                ends.push_back({end->path, entry});
            }
        }
    }
    return ends;
}

CmpiManagedInstanceCollection::Associators CmpiManagedInstanceCollection::findAssociators(
    CmpiObjectPath const& path, CmpiName const& assocClass, CmpiName const& resultClass,
    CmpiName const& role, CmpiName const& resultRole, char const** properties) const {
    Associators answer;
    std::shared_lock lock(_mutex);
    for (auto const& end : _farEnds(path, assocClass, resultClass, role, resultRole)) {
        CmpiInstance instance;
        if (end.entry) {
            if (_instanceOf(end.entry, instance, "associators")) {
                answer.found.push_back(instance.filtered(properties));
            }
        } else if (_servedClasses.count(lowered(end.path.getClassName())) == 0) {
            answer.elsewhere.push_back(end.path);
        }
        // An end of one of our own classes that is not held is left out:
        // its path still stands in References.
    }
    return answer;
}

void CmpiManagedInstanceCollection::resolveElsewhere(Associators& answer,
                                                     CmpiContext const& context,
                                                     char const** properties) const {
    CmpiCpp::CmpiBroker const broker(QLNUtil::getBroker());
    for (auto const& far : answer.elsewhere) {
        if (broker.isNull()) {
            break;
        }
        try {
            answer.found.push_back(
                broker.getInstance(context, far, properties).filtered(properties));
        } catch (std::exception const& e) {
            _logger.warn("associators: far end %s not available: %s", far.str().c_str(), e.what());
        }
    }
    answer.elsewhere.clear();
}

void CmpiManagedInstanceCollection::associators(
    CmpiInstanceResult& result, CmpiContext const& context, CmpiObjectPath const& path,
    CmpiName const& assocClass, CmpiName const& resultClass, CmpiName const& role,
    CmpiName const& resultRole, char const** properties) const {
    Associators answer =
        findAssociators(path, assocClass, resultClass, role, resultRole, properties);
    resolveElsewhere(answer, context, properties);
    for (auto& each : answer.found) {
        result.returnInstance(std::move(each));
    }
}

void CmpiManagedInstanceCollection::associatorNames(CmpiObjectPathResult& result,
                                                    CmpiContext const&, CmpiObjectPath const& path,
                                                    CmpiName const& assocClass,
                                                    CmpiName const& resultClass,
                                                    CmpiName const& role,
                                                    CmpiName const& resultRole) const {
    std::vector<CmpiObjectPath> found;
    {
        std::shared_lock lock(_mutex);
        for (auto const& end : _farEnds(path, assocClass, resultClass, role, resultRole)) {
            found.push_back(end.path);
        }
    }
    for (auto const& each : found) {
        result.returnObjectPath(each);
    }
}

void CmpiManagedInstanceCollection::references(CmpiInstanceResult& result, CmpiContext const&,
                                               CmpiObjectPath const& path,
                                               CmpiName const& resultClass, CmpiName const& role,
                                               char const** properties) const {
    std::vector<CmpiInstance> found;
    {
        std::shared_lock lock(_mutex);
        for (Entry const* association : _fittingAssociations(path, resultClass, role)) {
            CmpiInstance instance;
            if (_instanceOf(association, instance, "references")) {
                found.push_back(instance.filtered(properties));
            }
        }
    }
    for (auto& each : found) {
        result.returnInstance(std::move(each));
    }
}

void CmpiManagedInstanceCollection::referenceNames(CmpiObjectPathResult& result, CmpiContext const&,
                                                   CmpiObjectPath const& path,
                                                   CmpiName const& resultClass,
                                                   CmpiName const& role) const {
    std::vector<CmpiObjectPath> found;
    {
        std::shared_lock lock(_mutex);
        for (Entry const* association : _fittingAssociations(path, resultClass, role)) {
            try {
                found.push_back(association->instance->getPath());
            } catch (std::exception const& e) {
                _logger.warn("referenceNames: skipped %s, getPath failed: %s",
                             _describe(association).c_str(), e.what());
            }
        }
    }
    for (auto const& each : found) {
        result.returnObjectPath(each);
    }
}

} // namespace QLN
