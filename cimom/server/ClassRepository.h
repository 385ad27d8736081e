#pragma once

#include "CimClassDecl.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// Classes by namespace, read from MOF files at start-up and then read-only,
// so request threads share it without locking.
class ClassRepository {
public:
    // Reads every *.mof of a folder (sorted) and the extra files given.
    // Throws MofError naming file and line.
    void loadDirectory(const std::string& dir, const std::string& defaultNamespace);
    void loadFile(const std::string& path, const std::string& defaultNamespace);
    void loadText(const std::string& text, const std::string& fileName, const std::string& defaultNamespace);

    // Merges inherited features into subclasses whose parents we hold.
    // Call once after loading; throws MofError on an inheritance cycle.
    void resolve();

    void addNamespace(const std::string& nameSpace);
    bool hasNamespace(const std::string& nameSpace) const;
    std::vector<std::string> namespaces() const;

    const CimClassDecl* find(const std::string& nameSpace, const std::string& className) const;

    // True when the name is a class we hold or a superclass one of ours names.
    bool knowsClassName(const std::string& nameSpace, const std::string& className) const;

    // EnumerateClassNames semantics: with no base, the roots (or all, deep);
    // with a base, its direct subclasses (or all descendants, deep).
    std::vector<const CimClassDecl*> subclasses(const std::string& nameSpace, const std::string& base,
                                                bool deep) const;

    // The class itself (when held) and all its held descendants.
    std::vector<std::string> selfAndDescendants(const std::string& nameSpace, const std::string& className) const;

    bool isA(const std::string& nameSpace, const std::string& className, const std::string& base) const;

private:
    struct Space {
        std::string name;
        std::map<std::string, CimClassDecl> classes;  // by lower-case class name
    };

    void _add(CimClassDecl&& cls);
    const Space* _space(const std::string& nameSpace) const;
    void _resolveOne(Space& space, CimClassDecl& cls, std::vector<std::string>& chain);

    std::map<std::string, Space> _spaces;  // by lower-case namespace
    std::map<std::string, bool> _loadedFiles;
};
