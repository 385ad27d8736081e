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

    // Inline: instances are built and matched by name, and most names differ
    // in length.
    bool operator==(CmpiName const& other) const {
        if (_name.size() != other._name.size())
            return false;
        for (std::size_t i = 0; i < _name.size(); ++i) {
            char const a = _name[i], b = other._name[i];
            if (a != b && _fold(a) != _fold(b))
                return false;
        }
        return true;
    }
    // Case-folded ordering, so a CmpiName can key an ordered map.
    bool operator<(CmpiName const& other) const;
    // The case-folded spelling: the form used in index keys.
    std::string folded() const;
    std::size_t hash() const;

private:
    static char _fold(char c) {
        return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    }

    std::string _name;
};

} // namespace CmpiCpp

template <> struct std::hash<CmpiCpp::CmpiName> {
    std::size_t operator()(CmpiCpp::CmpiName const& name) const { return name.hash(); }
};
