#pragma once
// A CIM object path as a plain value: namespace, class, host and keys in the
// order they were added. Two paths are equal when their classes and keys
// are: names without regard to case, key order not significant, integer keys
// by value whatever their width. Namespace and host do not take part.
#include "CmpiData.h"
#include "CmpiName.h"
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace CmpiCpp {

class CmpiBroker;

class CmpiObjectPath {
public:
    CmpiObjectPath() = default;
    CmpiObjectPath(CmpiName const& nameSpace, CmpiName const& className);

    CmpiName const& getNameSpace() const { return _nameSpace; }
    CmpiName const& getClassName() const { return _className; }
    CmpiName const& getHost() const { return _host; }
    void setNameSpace(CmpiName const& nameSpace) { _nameSpace = nameSpace; }
    void setClassName(CmpiName const& className) { _className = className; }
    void setHost(CmpiName const& host) { _host = host; }

    // Adding a key name that is there already replaces its value in place.
    void addKey(CmpiName const& name, std::string const& value);
    void addKey(CmpiName const& name, char const* value);
    void addKey(CmpiName const& name, CmpiObjectPath const& value);
    void addKey(CmpiName const& name, bool value);
    void addKey(CmpiName const& name, unsigned char value);
    void addKey(CmpiName const& name, unsigned short value);
    void addKey(CmpiName const& name, unsigned int value);
    void addKey(CmpiName const& name, int value);
    void addKey(CmpiName const& name, unsigned long value);
    void addKey(CmpiName const& name, unsigned long long value);
    void addKey(CmpiName const& name, long value);
    void addKey(CmpiName const& name, long long value);
    void addKey(CmpiName const& name, CmpiData const& value);

    unsigned int getKeyCount() const { return static_cast<unsigned int>(_keys.size()); }
    bool hasKey(CmpiName const& name) const;
    // A missing key throws CmpiStatus(CMPI_RC_ERR_NOT_FOUND).
    CmpiData const& getKey(CmpiName const& name) const;
    // Index at or past getKeyCount() throws CmpiStatus(CMPI_RC_ERR_NOT_FOUND).
    CmpiName const& getKeyNameAt(unsigned int index) const;
    CmpiData const& getKeyAt(unsigned int index) const;

    // No namespace, no class and no keys: what makeCmpiObjectPath(broker) gives.
    bool empty() const;

    // The whole path as text, "//host/ns:Class.Key1="v",Key2=5", keys in their
    // order; stable for a given path value.
    std::string str() const;
    // The form equality rests on: folded class and key names, keys sorted by
    // name, values by CmpiData::keyText. Equal paths give equal keys; use it
    // to index paths.
    std::string canonicalKey() const;
    void appendCanonicalKey(std::string& out) const;
    // The canonical key of a path whose keys are all references, made from
    // its class, its key names and the canonical keys of what they point
    // at: the text appendCanonicalKey gives for that path, without the path.
    struct ReferenceKey {
        CmpiName const* name;
        std::string const* target; // the target's canonical key
    };
    static void appendCanonicalKey(std::string& out, CmpiName const& className,
                                   ReferenceKey const* keys, std::size_t count);
    std::size_t hash() const;

    bool operator==(CmpiObjectPath const& other) const;

private:
    void _setKey(CmpiName const& name, CmpiData const& value);

    CmpiName _nameSpace;
    CmpiName _className;
    CmpiName _host;
    std::vector<std::pair<CmpiName, CmpiData>> _keys;
};

// A path in this namespace and class, without keys.
CmpiObjectPath makeCmpiObjectPath(CmpiBroker const& broker, CmpiName const& nameSpace,
                                  CmpiName const& className);
// An empty path.
CmpiObjectPath makeCmpiObjectPath(CmpiBroker const& broker);

} // namespace CmpiCpp

template <> struct std::hash<CmpiCpp::CmpiObjectPath> {
    std::size_t operator()(CmpiCpp::CmpiObjectPath const& path) const { return path.hash(); }
};
