#include "QLN_VDArraySystemISASPort.h"

namespace {
char const* const className = "QLN_VDArraySystemISASPort";
}

namespace QLN {

QLN_VDArraySystemISASPort::QLN_VDArraySystemISASPort(Logger& logger, std::string const& nameSpace,
                                                     CmpiManagedInstance* arraySystem,
                                                     CmpiManagedInstance* isasPort)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, isasPort) {}

} // namespace QLN
