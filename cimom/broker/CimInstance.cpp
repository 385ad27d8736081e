#include "CimInstance.h"

#include <algorithm>

#include "CimName.h"

namespace Cimom {

void CimInstance::setProperty(std::string_view name, CimValue value) {
    for (Property& p : _properties) {
        if (CimName::equal(p.name, name)) {
            p.value = std::move(value);
            return;
        }
    }
    _properties.push_back(Property{std::string(name), std::move(value)});
}

CimValue const* CimInstance::property(std::string_view name) const {
    for (Property const& p : _properties) {
        if (CimName::equal(p.name, name)) {
            return &p.value;
        }
    }
    return nullptr;
}

bool CimInstance::removeProperty(std::string_view name) {
    auto const it = std::find_if(_properties.begin(), _properties.end(),
                                 [&](Property const& p) { return CimName::equal(p.name, name); });
    if (it == _properties.end()) {
        return false;
    }
    _properties.erase(it);
    return true;
}

CimInstance CimInstance::filtered(std::vector<std::string> const* propertyList) const {
    if (propertyList == nullptr) {
        return *this;
    }
    CimInstance out(_path);
    for (Property const& p : _properties) {
        bool const wanted =
            std::any_of(propertyList->begin(), propertyList->end(),
                        [&](std::string const& n) { return CimName::equal(n, p.name); });
        if (wanted) {
            out._properties.push_back(p);
        }
    }
    return out;
}

bool CimInstance::operator==(CimInstance const& other) const {
    if (_path != other._path || _properties.size() != other._properties.size()) {
        return false;
    }
    return std::all_of(_properties.begin(), _properties.end(), [&](Property const& p) {
        CimValue const* v = other.property(p.name);
        return v != nullptr && *v == p.value;
    });
}

} // namespace Cimom
