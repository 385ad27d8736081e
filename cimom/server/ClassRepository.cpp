#include "ClassRepository.h"

#include "MofError.h"
#include "MofParser.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <strings.h>

namespace Cimom {

namespace {

constexpr size_t maxInheritanceDepth = 32;

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

bool sameName(std::string const& a, std::string const& b) {
    return strcasecmp(a.c_str(), b.c_str()) == 0;
}

} // namespace

void ClassRepository::loadDirectory(std::string const& dir, std::string const& defaultNamespace) {
    std::vector<std::filesystem::path> files;
    for (auto const& entry : std::filesystem::directory_iterator(dir))
        if (entry.is_regular_file() && entry.path().extension() == ".mof")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (auto const& f : files)
        loadFile(f.string(), defaultNamespace);
}

void ClassRepository::loadFile(std::string const& path, std::string const& defaultNamespace) {
    // A file pulled in by #pragma include from another is read once only.
    std::string canonical = std::filesystem::weakly_canonical(path).string();
    if (_loadedFiles.count(canonical))
        return;
    MofParser parser(defaultNamespace, [this](CimClassDecl&& cls) {
        _loadedFiles[std::filesystem::weakly_canonical(cls.file).string()] = true;
        _add(std::move(cls));
    });
    parser.parseFile(path);
    _loadedFiles[canonical] = true;
}

void ClassRepository::loadText(std::string const& text, std::string const& fileName,
                               std::string const& defaultNamespace) {
    MofParser parser(defaultNamespace, [this](CimClassDecl&& cls) { _add(std::move(cls)); });
    parser.parseText(text, fileName);
}

void ClassRepository::_add(CimClassDecl&& cls) {
    addNamespace(cls.nameSpace);
    Space& space = _spaces[lower(cls.nameSpace)];
    std::string key = lower(cls.name);
    auto found = space.classes.find(key);
    if (found != space.classes.end())
        throw MofError(cls.file, cls.line,
                       "class " + cls.name + " already declared at " + found->second.file + ":" +
                           std::to_string(found->second.line));
    space.classes.emplace(key, std::move(cls));
}

void ClassRepository::resolve() {
    for (auto& [nsKey, space] : _spaces) {
        for (auto& [key, cls] : space.classes) {
            std::vector<std::string> chain;
            _resolveOne(space, cls, chain);
        }
    }
}

void ClassRepository::_resolveOne(Space& space, CimClassDecl& cls,
                                  std::vector<std::string>& chain) {
    std::string key = lower(cls.name);
    if (std::find(chain.begin(), chain.end(), key) != chain.end())
        throw MofError(cls.file, cls.line, "inheritance cycle through " + cls.name);
    if (cls.superClass.empty())
        return;
    // Real hierarchies are a dozen levels deep; a longer chain is a broken
    // file, and walking it would recurse once per level for every class.
    if (chain.size() >= maxInheritanceDepth)
        throw MofError(cls.file, cls.line,
                       "inheritance deeper than " + std::to_string(maxInheritanceDepth) +
                           " levels through " + cls.name);
    auto parentIt = space.classes.find(lower(cls.superClass));
    if (parentIt == space.classes.end())
        return; // a schema class we do not ship
    CimClassDecl& parent = parentIt->second;
    chain.push_back(key);
    _resolveOne(space, parent, chain);
    chain.pop_back();
    // Resolving twice must not duplicate what was merged the first time.
    bool merged = std::any_of(cls.properties.begin(), cls.properties.end(),
                              [](auto const& p) { return p.propagated; }) ||
                  std::any_of(cls.methods.begin(), cls.methods.end(),
                              [](auto const& m) { return m.propagated; });
    if (merged)
        return;
    // Inherited features come first, in the parent's order; a local override wins.
    std::vector<CimClassDecl::Property> properties;
    for (auto const& inherited : parent.properties) {
        if (auto const* local = cls.findProperty(inherited.name)) {
            properties.push_back(*local);
        } else {
            properties.push_back(inherited);
            properties.back().propagated = true;
        }
    }
    for (auto const& local : cls.properties)
        if (!parent.findProperty(local.name))
            properties.push_back(local);
    cls.properties = std::move(properties);
    for (auto const& inherited : parent.methods) {
        if (!cls.findMethod(inherited.name)) {
            cls.methods.push_back(inherited);
            cls.methods.back().propagated = true;
        }
    }
}

void ClassRepository::addNamespace(std::string const& nameSpace) {
    auto& space = _spaces[lower(nameSpace)];
    if (space.name.empty())
        space.name = nameSpace;
}

bool ClassRepository::hasNamespace(std::string const& nameSpace) const {
    return _space(nameSpace) != nullptr;
}

std::vector<std::string> ClassRepository::namespaces() const {
    std::vector<std::string> names;
    for (auto const& [key, space] : _spaces)
        names.push_back(space.name);
    return names;
}

ClassRepository::Space const* ClassRepository::_space(std::string const& nameSpace) const {
    auto found = _spaces.find(lower(nameSpace));
    return found == _spaces.end() ? nullptr : &found->second;
}

CimClassDecl const* ClassRepository::find(std::string const& nameSpace,
                                          std::string const& className) const {
    Space const* space = _space(nameSpace);
    if (!space)
        return nullptr;
    auto found = space->classes.find(lower(className));
    return found == space->classes.end() ? nullptr : &found->second;
}

bool ClassRepository::knowsClassName(std::string const& nameSpace,
                                     std::string const& className) const {
    Space const* space = _space(nameSpace);
    if (!space)
        return false;
    if (space->classes.count(lower(className)))
        return true;
    for (auto const& [key, cls] : space->classes)
        if (sameName(cls.superClass, className))
            return true;
    return false;
}

bool ClassRepository::isA(std::string const& nameSpace, std::string const& className,
                          std::string const& base) const {
    std::string current = className;
    for (int guard = 0; guard < 64 && !current.empty(); ++guard) {
        if (sameName(current, base))
            return true;
        CimClassDecl const* cls = find(nameSpace, current);
        if (!cls)
            return false;
        current = cls->superClass;
    }
    return false;
}

std::vector<CimClassDecl const*> ClassRepository::subclasses(std::string const& nameSpace,
                                                             std::string const& base,
                                                             bool deep) const {
    std::vector<CimClassDecl const*> result;
    Space const* space = _space(nameSpace);
    if (!space)
        return result;
    for (auto const& [key, cls] : space->classes) {
        bool take = false;
        if (base.empty()) {
            // Our classes derive from schema classes we do not hold; those count as roots here.
            take = deep || cls.superClass.empty() || !space->classes.count(lower(cls.superClass));
        } else if (deep) {
            take = !sameName(cls.name, base) && isA(nameSpace, cls.name, base);
        } else {
            take = sameName(cls.superClass, base);
        }
        if (take)
            result.push_back(&cls);
    }
    return result;
}

std::vector<std::string> ClassRepository::selfAndDescendants(std::string const& nameSpace,
                                                             std::string const& className) const {
    std::vector<std::string> names;
    if (CimClassDecl const* self = find(nameSpace, className))
        names.push_back(self->name);
    for (CimClassDecl const* sub : subclasses(nameSpace, className, true))
        names.push_back(sub->name);
    return names;
}

} // namespace Cimom
