#include "EnclosureLocationInfo.h"

#include "LocationInfoProperties.h"
#include "QLNPhysloc.h"

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
    LocationInfoProperties::add(instance, text(controller, boxNumber));
}

} // namespace QLN
