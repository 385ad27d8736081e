#include "CimInstance.h"

#include <algorithm>

#include "CimName.h"

void CimInstance::setProperty(std::string_view name, CimValue value) {
    for (Property& p : _properties) {
        if (CimName::equal(p.name, name)) {
            p.value = std::move(value);
            return;
        }
    }
    _properties.push_back(Property{std::string(name), std::move(value)});
}

const CimValue* CimInstance::property(std::string_view name) const {
    for (const Property& p : _properties) {
        if (CimName::equal(p.name, name)) {
            return &p.value;
        }
    }
    return nullptr;
}

bool CimInstance::removeProperty(std::string_view name) {
    const auto it = std::find_if(_properties.begin(), _properties.end(),
                                 [&](const Property& p) { return CimName::equal(p.name, name); });
    if (it == _properties.end()) {
        return false;
    }
    _properties.erase(it);
    return true;
}

CimInstance CimInstance::filtered(const std::vector<std::string>* propertyList) const {
    if (propertyList == nullptr) {
        return *this;
    }
    CimInstance out(_path);
    for (const Property& p : _properties) {
        const bool wanted =
            std::any_of(propertyList->begin(), propertyList->end(),
                        [&](const std::string& n) { return CimName::equal(n, p.name); });
        if (wanted) {
            out._properties.push_back(p);
        }
    }
    return out;
}

bool CimInstance::operator==(const CimInstance& other) const {
    if (_path != other._path || _properties.size() != other._properties.size()) {
        return false;
    }
    return std::all_of(_properties.begin(), _properties.end(), [&](const Property& p) {
        const CimValue* v = other.property(p.name);
        return v != nullptr && *v == p.value;
    });
}
