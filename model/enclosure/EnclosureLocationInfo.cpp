#include "EnclosureLocationInfo.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNPhysloc.h"
#include "QLNUtil.h"

#include <vector>

namespace QLN {

std::string EnclosureLocationInfo::text(VeldraController* controller, int boxNumber) {
    std::string box = "Box " + std::to_string(boxNumber);
    VeldraControllerData data;
    controller->getLastVDData(data);
    physloc_t location = BMC_physloc_NULL;
    // An external controller (kind none) or an unreadable location says
    // nothing about where the box hangs, so only the box is named.
    if (data.getPhysloc(location) != 0 ||
        QLNPhysloc::kindOf(location) == static_cast<int>(QLNPhysloc::Kind::None))
        return box;
    return box + " on " + QLNPhysloc::physlocToHWLocation(location);
}

void EnclosureLocationInfo::add(CmpiCpp::CmpiInstance& instance, VeldraController* controller,
                                int boxNumber) {
    std::vector<std::string> names;
    std::vector<unsigned short> numbers;
    QLNPhysloc::createLocationInfoVectors(text(controller, boxNumber), names, numbers);
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
