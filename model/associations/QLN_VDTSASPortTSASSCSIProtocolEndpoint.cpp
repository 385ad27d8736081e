#include "QLN_VDTSASPortTSASSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDTSASPortTSASSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDTSASPortTSASSCSIProtocolEndpoint::QLN_VDTSASPortTSASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* tsasPort,
    CmpiManagedInstance* tsasscsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, tsasPort, tsasscsiProtocolEndpoint) {}

} // namespace QLN
