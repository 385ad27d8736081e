#include "QLN_VDArraySystemTSASSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDArraySystemTSASSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDArraySystemTSASSCSIProtocolEndpoint::QLN_VDArraySystemTSASSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* arraySystem,
    CmpiManagedInstance* tsasscsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::FirstEnd}, logger,
                        nameSpace, arraySystem, tsasscsiProtocolEndpoint) {}

} // namespace QLN
