#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "CimValue.h"

namespace Cimom {

// An instance path (or a class path, without keys): namespace, class, host
// and keys in the order they were added. Key values are typed: string,
// numeric, boolean or a reference to another path.
//
// Two paths are equal when their classes and their key sets are: names
// compare without regard to case, the order of the keys does not matter,
// integer keys compare by value whatever their width. Namespace and host do
// not take part, as a provider may leave them out of the paths it returns.
class CimObjectPath {
public:
    struct Key {
        std::string name;
        CimValue value;
    };

    CimObjectPath() = default;
    CimObjectPath(std::string nameSpace, std::string className);

    std::string const& nameSpace() const { return _nameSpace; }
    void setNameSpace(std::string ns) { _nameSpace = std::move(ns); }
    std::string const& host() const { return _host; }
    void setHost(std::string host) { _host = std::move(host); }
    std::string const& className() const { return _className; }
    void setClassName(std::string cn) { _className = std::move(cn); }

    std::vector<Key> const& keys() const { return _keys; }
    // Adds a key, or replaces the value of a key of that name in place.
    void addKey(std::string name, CimValue value);
    // The key's value, or null when there is no such key.
    CimValue const* key(std::string_view name) const;
    void clearKeys() { _keys.clear(); }

    // No class name: the empty path of "nothing found".
    bool empty() const { return _className.empty(); }

    bool operator==(CimObjectPath const& other) const;
    bool operator!=(CimObjectPath const& other) const { return !(*this == other); }
    // Consistent with operator== (class and key names only).
    std::size_t hash() const;

    // "//host/ns:Class.Key1="text",Key2=5" (host and namespace when set).
    // String values are quoted with \" and \\ escaped; references are
    // written as a quoted nested path.
    std::string toString() const;
    // Reads what toString writes. Quoted values become strings, TRUE/FALSE
    // booleans, other values integers (sint64, or uint64 above its range).
    // Throws CimError(CMPI_RC_ERR_INVALID_PARAMETER) on malformed text.
    static CimObjectPath parse(std::string_view text);

private:
    std::string _nameSpace;
    std::string _className;
    std::string _host;
    std::vector<Key> _keys;
};

} // namespace Cimom

// Kept with the class so that every user of paths can hash them.
#include "CimObjectPathHash.h"
