#include "CmpiArray.h"

#include "CmpiObjectPath.h"
#include "CmpiStatus.h"

namespace CmpiCpp {

CmpiArray::CmpiArray(unsigned int size, CMPIType type) {
    CMPIType element = static_cast<CMPIType>(type & ~CMPI_ARRAY);
    // Strings passed as chars are strings once they are held.
    if (element == CMPI_chars)
        element = CMPI_string;
    _elementType = element;
    _elements.assign(size, CmpiData::null(element));
}

void CmpiArray::setElementAt(unsigned int index, std::string const& value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, char const* value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, bool value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, unsigned char value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, unsigned short value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, unsigned int value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, int value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, unsigned long value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, unsigned long long value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, long value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, long long value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, float value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, double value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, CmpiDateTime const& value) {
    _set(index, value);
}
void CmpiArray::setElementAt(unsigned int index, CmpiObjectPath const& value) {
    _set(index, CmpiData(value));
}
void CmpiArray::setElementAt(unsigned int index, CmpiData const& value) {
    _set(index, value);
}

CmpiData const& CmpiArray::getElementAt(unsigned int index) const {
    if (index >= _elements.size())
        throw CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY, "array index " + std::to_string(index) +
                                                           " past size " +
                                                           std::to_string(_elements.size()));
    return _elements[index];
}

void CmpiArray::_set(unsigned int index, CmpiData const& value) {
    if (index >= _elements.size())
        throw CmpiStatus(CMPI_RC_ERR_NO_SUCH_PROPERTY, "array index " + std::to_string(index) +
                                                           " past size " +
                                                           std::to_string(_elements.size()));
    // Convert first, so that a refused value leaves the element as it was.
    CmpiData converted = _converted(value);
    _elements[index] = std::move(converted);
}

CmpiData CmpiArray::_converted(CmpiData const& value) const {
    if (value.isNull())
        return CmpiData::null(_elementType);
    if (value.getType() == _elementType)
        return value;
    // The integer getters check the range and throw a type mismatch if the
    // value does not fit.
    switch (_elementType) {
    case CMPI_uint8:
        return CmpiData(static_cast<unsigned char>(value.getUint8()));
    case CMPI_uint16:
        return CmpiData(static_cast<unsigned short>(value.getUint16()));
    case CMPI_uint32:
        return CmpiData(static_cast<unsigned int>(value.getUint32()));
    case CMPI_uint64:
        return CmpiData(static_cast<unsigned long long>(value.getUint64()));
    case CMPI_sint8:
        return CmpiData(static_cast<signed char>(value.getSint8()));
    case CMPI_sint16:
        return CmpiData(static_cast<short>(value.getSint16()));
    case CMPI_sint32:
        return CmpiData(static_cast<int>(value.getSint32()));
    case CMPI_sint64:
        return CmpiData(static_cast<long long>(value.getSint64()));
    case CMPI_char16:
        return CmpiData::char16(value.getUint16());
    case CMPI_real32:
        return CmpiData(value.getReal32());
    case CMPI_real64:
        return CmpiData(value.getReal64());
    default:
        break;
    }
    throw CmpiStatus(CMPI_RC_ERR_TYPE_MISMATCH, "value of type " + std::to_string(value.getType()) +
                                                    " for an array of type " +
                                                    std::to_string(_elementType));
}

CmpiArray makeCmpiArray(CmpiBroker const&, int size, unsigned short type) {
    if (size < 0)
        throw CmpiStatus(CMPI_RC_ERR_INVALID_PARAMETER,
                         "negative array size " + std::to_string(size));
    return CmpiArray(static_cast<unsigned int>(size), type);
}

} // namespace CmpiCpp
