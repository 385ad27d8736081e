#include "QLN_VDDAPortSCSIProtocolEndpoint.h"

namespace {
char const* const className = "QLN_VDDAPortSCSIProtocolEndpoint";
}

namespace QLN {

QLN_VDDAPortSCSIProtocolEndpoint::QLN_VDDAPortSCSIProtocolEndpoint(
    Logger& logger, std::string const& nameSpace, CmpiManagedInstance* daPort,
    CmpiManagedInstance* scsiProtocolEndpoint)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, daPort, scsiProtocolEndpoint) {}

} // namespace QLN
