#include "PhysicalDiskKey.h"

#include "CmpiStatus.h"
#include "IdentityHelpers.h"
#include "VeldraStorageFunctions.h"

#include <vector>

namespace QLN {

VeldraPhysicalDisk PhysicalDiskKey::find(VeldraController* controller, Logger const& logger,
                                         std::string const& serial, int box, int bay,
                                         char const* failure) {
    // Through the snapshot's index: this runs for every instance of every
    // disk class, and a scan would make an enumeration quadratic.
    std::optional<VeldraPhysicalDisk> disk = controller->findLastPhysicalDisk(serial, box, bay);
    if (!disk) {
        logger.error("%s", failure);
        throw CmpiCpp::CmpiStatus(CMPI_RC_ERROR_SYSTEM, failure);
    }
    return std::move(*disk);
}

std::string PhysicalDiskKey::systemName(VeldraController* controller,
                                        unsigned int controllerIndex) {
    return getControllerName(*controller->shareLastVDData(), static_cast<int>(controllerIndex));
}

} // namespace QLN
