#include "VDArrayValues.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace QLN {

CmpiCpp::CmpiArray VDArrayValues::uint16s(std::initializer_list<unsigned short> values) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiArray array =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(values.size()), CMPI_uint16);
    unsigned int at = 0;
    for (unsigned short value : values)
        array.setElementAt(at++, value);
    return array;
}

CmpiCpp::CmpiArray VDArrayValues::strings(std::initializer_list<std::string> values) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiArray array =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(values.size()), CMPI_string);
    unsigned int at = 0;
    for (std::string const& value : values)
        array.setElementAt(at++, value);
    return array;
}

} // namespace QLN
