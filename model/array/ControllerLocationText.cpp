#include "ControllerLocationText.h"

#include "IdentityHelpers.h"
#include "QLNPhysloc.h"

namespace QLN {

std::string ControllerLocationText::withExternal(VeldraControllerData const& data) {
    return getControllerDisplayName(data);
}

std::string ControllerLocationText::withoutExternal(VeldraControllerData const& data) {
    // A failed read leaves the record alone; start from the null record so the
    // location text is defined.
    physloc_t location = BMC_physloc_NULL;
    std::string prefix;
    if (data.getPhysloc(location) != 0) {
        prefix = "Veldra Unknown ";
    } else if (QLNPhysloc::kindOf(location) == static_cast<int>(QLNPhysloc::Kind::PciSlot)) {
        prefix = "Veldra in ";
    } else {
        prefix = "Veldra ";
    }
    return prefix + QLNPhysloc::physlocToHWLocation(location);
}

} // namespace QLN
