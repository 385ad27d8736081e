#pragma once
// What every enclosure class does first at a request: find its enclosure, by
// enclosure box number, in the controller's last accepted snapshot.
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <string>

namespace QLN {

class EnclosureSnapshot {
public:
    // The enclosure's stored record. When it has left the snapshot, logs
    // `missingText` at error level and throws CmpiStatus 100 with that text.
    static VeldraEnclosure find(VeldraController* controller, u32 enclosureBoxNumber,
                                Logger const& logger, char const* missingText);

    // Enclosures often leave texts empty; clients want "N/A" rather than a
    // blank or a missing property.
    static std::string orNotAvailable(std::string const& text);
};

} // namespace QLN
