#include "LocationInfoProperties.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"

namespace QLN {

void LocationInfoProperties::add(CmpiCpp::CmpiInstance& instance, physloc_t const& location) {
    std::vector<std::string> names;
    std::vector<unsigned short> numbers;
    QLNPhysloc::createLocationInfoVectors(location, names, numbers);
    _add(instance, names, numbers);
}

void LocationInfoProperties::add(CmpiCpp::CmpiInstance& instance, std::string const& location) {
    std::vector<std::string> names;
    std::vector<unsigned short> numbers;
    QLNPhysloc::createLocationInfoVectors(location, names, numbers);
    _add(instance, names, numbers);
}

void LocationInfoProperties::_add(CmpiCpp::CmpiInstance& instance,
                                  std::vector<std::string> const& names,
                                  std::vector<unsigned short> const& numbers) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiArray codes =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(numbers.size()), CMPI_uint16);
    CmpiCpp::CmpiArray texts =
        CmpiCpp::makeCmpiArray(broker, static_cast<int>(names.size()), CMPI_string);
    for (unsigned int i = 0; i < numbers.size(); ++i)
        codes.setElementAt(i, numbers[i]);
    for (unsigned int i = 0; i < names.size(); ++i)
        texts.setElementAt(i, names[i]);
    instance.addProperty("LocationInformation", codes);
    instance.addProperty("LocationInfoDesc", texts);
}

} // namespace QLN
