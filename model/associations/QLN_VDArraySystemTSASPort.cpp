#include "QLN_VDArraySystemTSASPort.h"

namespace {
char const* const className = "QLN_VDArraySystemTSASPort";
}

namespace QLN {

QLN_VDArraySystemTSASPort::QLN_VDArraySystemTSASPort(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* arraySystem,
                                                     CmpiManagedInstance* tsasPort)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, tsasPort) {}

} // namespace QLN
