#include "QLN_VDArraySystemDAPort.h"

namespace {
char const* const className = "QLN_VDArraySystemDAPort";
}

namespace QLN {

QLN_VDArraySystemDAPort::QLN_VDArraySystemDAPort(Logger& logger, std::string const& nameSpace,
                                                 CmpiManagedInstance* arraySystem,
                                                 CmpiManagedInstance* daPort)
    : VeldraAssociation({className, "GroupComponent", "PartComponent", WrittenFirst::FirstEnd},
                        logger, nameSpace, arraySystem, daPort) {}

} // namespace QLN
