#include "QLN_VDArraySystemISASSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDArraySystemISASSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDArraySystemISASSCSIProtocolEndpoint::QLN_VDArraySystemISASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* isasscsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, isasscsiProtocolEndpoint) {}

} // namespace QLN
