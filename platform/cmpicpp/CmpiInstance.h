#pragma once
// A CIM instance as a plain value: its path and its properties in the order
// they were added. Adding a property name again replaces the value in place,
// so an instance never holds the same property twice.
#include "CmpiArray.h"
#include "CmpiData.h"
#include "CmpiDateTime.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"
#include <string>
#include <utility>
#include <vector>

namespace CmpiCpp {

class CmpiBroker;

class CmpiInstance {
public:
    CmpiInstance() = default;
    // An instance on this path; the path's keys become its first properties.
    explicit CmpiInstance(CmpiObjectPath const& path);

    CmpiObjectPath const& getPath() const { return _path; }
    void setPath(CmpiObjectPath const& path) { _path = path; }
    CmpiName const& getClassName() const { return _path.getClassName(); }

    // The overload fixes the CIM type of the property.
    void addProperty(CmpiName name, std::string const& value);
    void addProperty(CmpiName name, char const* value);
    void addProperty(CmpiName name, bool value);
    void addProperty(CmpiName name, unsigned char value);
    void addProperty(CmpiName name, unsigned short value);
    void addProperty(CmpiName name, unsigned int value);
    void addProperty(CmpiName name, int value);
    void addProperty(CmpiName name, unsigned long value);
    void addProperty(CmpiName name, unsigned long long value);
    void addProperty(CmpiName name, long value);
    void addProperty(CmpiName name, long long value);
    void addProperty(CmpiName name, float value);
    void addProperty(CmpiName name, double value);
    void addProperty(CmpiName name, CmpiObjectPath const& value);
    void addProperty(CmpiName name, CmpiArray const& value);
    void addProperty(CmpiName name, CmpiDateTime const& value);
    void addProperty(CmpiName name, CmpiData const& value);

    unsigned int getPropertyCount() const { return static_cast<unsigned int>(_properties.size()); }
    bool hasProperty(CmpiName const& name) const;
    // A missing property throws CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY).
    CmpiData const& getProperty(CmpiName const& name) const;
    // Index at or past getPropertyCount() throws CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY).
    CmpiName const& getPropertyNameAt(unsigned int index) const;
    CmpiData const& getPropertyAt(unsigned int index) const;

    // A copy that keeps only the listed properties (names without regard to
    // case) and the path's key properties, in their order. A null list keeps
    // everything; an empty list (just the terminating null) keeps the keys.
    CmpiInstance filtered(char const* const* propertyList) const;

    bool operator==(CmpiInstance const& other) const;

private:
    void _set(CmpiName name, CmpiData value);

    CmpiObjectPath _path;
    std::vector<std::pair<CmpiName, CmpiData>> _properties;
};

// An instance on this path, with the path's keys as its properties.
CmpiInstance makeCmpiInstance(CmpiBroker const& broker, CmpiObjectPath const& path);

} // namespace CmpiCpp
