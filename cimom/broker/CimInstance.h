#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "CimObjectPath.h"
#include "CimValue.h"

namespace Cimom {

// An instance: its path and its properties in the order they were set.
// Setting a property again replaces its value in place, so a property never
// appears twice. A property's type is its value's type (a null keeps one).
class CimInstance {
public:
    struct Property {
        std::string name;
        CimValue value;
    };

    CimInstance() = default;
    explicit CimInstance(CimObjectPath path) : _path(std::move(path)) {}

    CimObjectPath const& path() const { return _path; }
    void setPath(CimObjectPath path) { _path = std::move(path); }
    // Sets one key of the path in place.
    void setKey(std::string name, CimValue value) {
        _path.addKey(std::move(name), std::move(value));
    }
    std::string const& className() const { return _path.className(); }

    std::vector<Property> const& properties() const { return _properties; }
    void setProperty(std::string_view name, CimValue value);
    // Room for this many properties, for an instance built one by one.
    void reserve(std::size_t properties) { _properties.reserve(properties); }
    // The value, or null when the instance has no such property.
    CimValue const* property(std::string_view name) const;
    bool removeProperty(std::string_view name);

    // Only the named properties (names without regard to case), order kept.
    // A null list means all; an empty list means none.
    CimInstance filtered(std::vector<std::string> const* propertyList) const;

    // Same path, same properties in any order.
    bool operator==(CimInstance const& other) const;
    bool operator!=(CimInstance const& other) const { return !(*this == other); }

private:
    CimObjectPath _path;
    std::vector<Property> _properties;
};

} // namespace Cimom
