#include "QLN_VDArraySystemFirmware.h"

namespace {
char const* const className = "QLN_VDArraySystemFirmware";
}

namespace QLN {

QLN_VDArraySystemFirmware::QLN_VDArraySystemFirmware(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* arraySystem,
                                                     CmpiManagedInstance* firmware)
    : VeldraAssociation({className, "System", "InstalledSoftware", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, firmware) {}

} // namespace QLN
