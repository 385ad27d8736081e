#include "CmpiInstance.h"

#include "CmpiStatus.h"

#include <algorithm>
#include <utility>

namespace CmpiCpp {

CmpiInstance::CmpiInstance(CmpiObjectPath const& path) : _path(path) {
    // Instances are built property by property; room for a typical class
    // spares the vector most of its regrowth.
    _properties.reserve(32);
    for (unsigned int i = 0; i < path.getKeyCount(); ++i)
        _set(path.getKeyNameAt(i), path.getKeyAt(i));
}

void CmpiInstance::addProperty(CmpiName name, std::string const& value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, char const* value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, bool value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, unsigned char value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, unsigned short value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, unsigned int value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, int value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, unsigned long value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, unsigned long long value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, long value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, long long value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, float value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, double value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, CmpiObjectPath const& value) {
    _set(std::move(name), CmpiData(value));
}
void CmpiInstance::addProperty(CmpiName name, CmpiArray const& value) {
    _set(std::move(name), CmpiData(value));
}
void CmpiInstance::addProperty(CmpiName name, CmpiDateTime const& value) {
    _set(std::move(name), value);
}
void CmpiInstance::addProperty(CmpiName name, CmpiData const& value) {
    _set(std::move(name), value);
}

void CmpiInstance::_set(CmpiName name, CmpiData value) {
    for (auto& property : _properties) {
        if (property.first == name) {
            property.second = std::move(value);
            return;
        }
    }
    _properties.emplace_back(std::move(name), std::move(value));
}

bool CmpiInstance::hasProperty(CmpiName const& name) const {
    return std::any_of(_properties.begin(), _properties.end(),
                       [&](auto const& p) { return p.first == name; });
}

CmpiData const& CmpiInstance::getProperty(CmpiName const& name) const {
    for (auto const& property : _properties)
        if (property.first == name)
            return property.second;
    throw CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                     "no property " + name.str() + " in " + _path.getClassName().str());
}

CmpiName const& CmpiInstance::getPropertyNameAt(unsigned int index) const {
    if (index >= _properties.size())
        throw CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                         "no property at index " + std::to_string(index));
    return _properties[index].first;
}

CmpiData const& CmpiInstance::getPropertyAt(unsigned int index) const {
    if (index >= _properties.size())
        throw CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                         "no property at index " + std::to_string(index));
    return _properties[index].second;
}

CmpiInstance CmpiInstance::filtered(char const* const* propertyList) const {
    if (!propertyList)
        return *this;
    CmpiInstance out;
    out._path = _path;
    for (auto const& property : _properties) {
        bool keep = _path.hasKey(property.first);
        for (char const* const* p = propertyList; !keep && *p; ++p)
            keep = property.first == CmpiName(*p);
        if (keep)
            out._properties.push_back(property);
    }
    return out;
}

bool CmpiInstance::operator==(CmpiInstance const& other) const {
    return _path == other._path && _properties == other._properties;
}

CmpiInstance makeCmpiInstance(CmpiBroker const&, CmpiObjectPath const& path) {
    return CmpiInstance(path);
}

} // namespace CmpiCpp
