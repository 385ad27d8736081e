#pragma once
// A CIM name (class, property, key, method, namespace). CIM names match
// without regard to case, so equality, ordering and hashing all fold ASCII case;
// the spelling given at construction is kept for output.
#include <cstddef>
#include <string>

namespace CmpiCpp {

class CmpiName {
public:
    CmpiName() = default;
    // A null pointer gives the empty name: the object manager passes null for
    // filters that a client left out.
    CmpiName(char const* name);
    CmpiName(std::string const& name);

    std::string const& str() const { return _name; }
    char const* c_str() const { return _name.c_str(); }
    bool empty() const { return _name.empty(); }

    bool operator==(CmpiName const& other) const;
    // Case-folded ordering, so a CmpiName can key an ordered map.
    bool operator<(CmpiName const& other) const;
    // The case-folded spelling: the form used in index keys.
    std::string folded() const;
    std::size_t hash() const;

private:
    std::string _name;
};

} // namespace CmpiCpp

template <> struct std::hash<CmpiCpp::CmpiName> {
    std::size_t operator()(CmpiCpp::CmpiName const& name) const { return name.hash(); }
};
