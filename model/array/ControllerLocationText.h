#pragma once
// ElementName texts of the controller's classes: a prefix that says how the
// controller is attached, and the location for people. Two families exist:
// some classes call a controller without a known location "External", the
// others don't; both are kept because clients match on these texts.
#include "VeldraControllerData.h"

#include <string>

namespace QLN {

class ControllerLocationText {
public:
    // "Veldra Unknown ", "Veldra in ", "Veldra External " or "Veldra ", then the location.
    static std::string withExternal(VeldraControllerData const& data);
    // The same without the "External" case: "Veldra " for every location not in a PCI slot.
    static std::string withoutExternal(VeldraControllerData const& data);
};

} // namespace QLN
