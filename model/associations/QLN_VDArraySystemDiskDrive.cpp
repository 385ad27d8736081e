#include "QLN_VDArraySystemDiskDrive.h"

namespace {
char const* const className = "QLN_VDArraySystemDiskDrive";
}

namespace QLN {

QLN_VDArraySystemDiskDrive::QLN_VDArraySystemDiskDrive(Logger& logger, std::string const& nameSpace,
                                                       CmpiManagedInstance* arraySystem,
                                                       CmpiManagedInstance* diskDrive)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, diskDrive) {}

} // namespace QLN
