#include "QLN_VDISASPortISASSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDISASPortISASSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDISASPortISASSCSIProtocolEndpoint::QLN_VDISASPortISASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* isasPort,
    CmpiManagedInstance* isasscsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, isasPort, isasscsiProtocolEndpoint) {}

} // namespace QLN
