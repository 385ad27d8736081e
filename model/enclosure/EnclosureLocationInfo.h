#pragma once
// The LocationInformation / LocationInfoDesc pair of the enclosure location
// classes: the controller's own place (when the platform knows it) with the
// box behind it, outermost first, e.g. ("PCI Slot", 3), ("Box", 1).
#include "CmpiInstance.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class EnclosureLocationInfo {
public:
    // "Box 1 on PCI Slot 3", or "Box 1" for a controller without a known place.
    static std::string text(VeldraController* controller, int boxNumber);
    // Adds the two parallel arrays made from text().
    static void add(CmpiCpp::CmpiInstance& instance, VeldraController* controller, int boxNumber);
};

} // namespace QLN
