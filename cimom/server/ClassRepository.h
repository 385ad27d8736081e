#pragma once

#include "CimClassDecl.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Cimom {

// Classes by namespace, read from MOF files at start-up and then read-only,
// so request threads share it without locking.
class ClassRepository {
public:
    // Reads every *.mof of a folder (sorted) and the extra files given.
    // Throws MofError naming file and line.
    void loadDirectory(std::string const& dir, std::string const& defaultNamespace);
    void loadFile(std::string const& path, std::string const& defaultNamespace);
    void loadText(std::string const& text, std::string const& fileName,
                  std::string const& defaultNamespace);

    // Merges inherited features into subclasses whose parents we hold.
    // Call once after loading; throws MofError on an inheritance cycle.
    void resolve();

    void addNamespace(std::string const& nameSpace);
    bool hasNamespace(std::string const& nameSpace) const;
    std::vector<std::string> namespaces() const;

    CimClassDecl const* find(std::string const& nameSpace, std::string const& className) const;

    // True when the name is a class we hold or a superclass one of ours names.
    bool knowsClassName(std::string const& nameSpace, std::string const& className) const;

    // EnumerateClassNames semantics: with no base, the roots (or all, deep);
    // with a base, its direct subclasses (or all descendants, deep).
    std::vector<CimClassDecl const*> subclasses(std::string const& nameSpace,
                                                std::string const& base, bool deep) const;

    // The class itself (when held) and all its held descendants.
    std::vector<std::string> selfAndDescendants(std::string const& nameSpace,
                                                std::string const& className) const;

    bool isA(std::string const& nameSpace, std::string const& className,
             std::string const& base) const;

private:
    struct Space {
        std::string name;
        std::map<std::string, CimClassDecl> classes; // by lower-case class name
    };

    void _add(CimClassDecl&& cls);
    Space const* _space(std::string const& nameSpace) const;
    void _resolveOne(Space& space, CimClassDecl& cls, std::vector<std::string>& chain);

    std::map<std::string, Space> _spaces; // by lower-case namespace
    std::map<std::string, bool> _loadedFiles;
};

} // namespace Cimom
