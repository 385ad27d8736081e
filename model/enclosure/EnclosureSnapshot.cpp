#include "EnclosureSnapshot.h"

#include "CmpiStatus.h"
#include "VeldraStorageFunctions.h"

#include <vector>

namespace {
// Not a CMPI code: the provider's own, so that a client can tell an enclosure
// that went away between enumeration and fetch from an ordinary miss.
int const enclosureGoneCode = 100;
} // namespace

namespace QLN {

VeldraEnclosure EnclosureSnapshot::find(VeldraController* controller, u32 enclosureBoxNumber,
                                        Logger const& logger, char const* missingText) {
    std::vector<VeldraEnclosure> enclosures = controller->getLastAllEnclosures();
    int const at = findEnclosureInVector(enclosureBoxNumber, enclosures);
    if (at < 0) {
        logger.error("%s", missingText);
        throw CmpiCpp::CmpiStatus(static_cast<CMPIrc>(enclosureGoneCode), missingText);
    }
    return enclosures[static_cast<size_t>(at)];
}

std::string EnclosureSnapshot::orNotAvailable(std::string const& text) {
    return text.empty() ? std::string("N/A") : text;
}

} // namespace QLN
