#include "QLN_VDDiskDriveMediaAccessStatData.h"

namespace {
char const* const className = "QLN_VDDiskDriveMediaAccessStatData";
}

namespace QLN {

QLN_VDDiskDriveMediaAccessStatData::QLN_VDDiskDriveMediaAccessStatData(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* diskDrive,
    CmpiManagedInstance* mediaAccessStatData)
    : VeldraAssociation({className, "ManagedElement", "Stats", WrittenFirst::FirstEnd}, logger,
                        nameSpace, diskDrive, mediaAccessStatData) {}

} // namespace QLN
