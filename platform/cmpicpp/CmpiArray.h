#pragma once
// A CIM array value: a fixed size and one element type. New elements are
// null; setElementAt fills them.
#include "CmpiData.h"
#include <string>
#include <vector>

namespace CmpiCpp {

class CmpiBroker;
class CmpiObjectPath;

class CmpiArray {
public:
    CmpiArray() = default;
    // The type may be given with or without the CMPI_ARRAY bit.
    CmpiArray(unsigned int size, CMPIType type);

    unsigned int size() const { return static_cast<unsigned int>(_elements.size()); }
    // The element type (CMPI_uint16) and the array's own type (CMPI_uint16A).
    CMPIType getElementType() const { return _elementType; }
    CMPIType getType() const { return static_cast<CMPIType>(_elementType | CMPI_ARRAY); }

    // An index at or past size() throws CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY);
    // a value that does not fit the element type throws
    // CmpiStatus(CMPI_RC_ERR_TYPE_MISMATCH). Integers convert to the element's
    // integer type when the value fits, so a literal 3 can go into a uint16 array.
    void setElementAt(unsigned int index, std::string const& value);
    void setElementAt(unsigned int index, char const* value);
    void setElementAt(unsigned int index, bool value);
    void setElementAt(unsigned int index, unsigned char value);
    void setElementAt(unsigned int index, unsigned short value);
    void setElementAt(unsigned int index, unsigned int value);
    void setElementAt(unsigned int index, int value);
    void setElementAt(unsigned int index, unsigned long value);
    void setElementAt(unsigned int index, unsigned long long value);
    void setElementAt(unsigned int index, long value);
    void setElementAt(unsigned int index, long long value);
    void setElementAt(unsigned int index, float value);
    void setElementAt(unsigned int index, double value);
    void setElementAt(unsigned int index, CmpiDateTime const& value);
    void setElementAt(unsigned int index, CmpiObjectPath const& value);
    void setElementAt(unsigned int index, CmpiData const& value);

    CmpiData const& getElementAt(unsigned int index) const;

    bool operator==(CmpiArray const& other) const = default;

private:
    void _set(unsigned int index, CmpiData const& value);
    CmpiData _converted(CmpiData const& value) const;

    CMPIType _elementType = CMPI_null;
    std::vector<CmpiData> _elements;
};

CmpiArray makeCmpiArray(CmpiBroker const& broker, int size, unsigned short type);

} // namespace CmpiCpp
