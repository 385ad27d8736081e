#include "QLN_VDPortControllerISASPort.h"

namespace {
char const* const className = "QLN_VDPortControllerISASPort";
}

namespace QLN {

QLN_VDPortControllerISASPort::QLN_VDPortControllerISASPort(Logger& logger,
                                                           std::string const& nameSpace,
                                                           CmpiManagedInstance* portController,
                                                           CmpiManagedInstance* isasPort)
    : VeldraAssociation({className, "Antecedent", "Dependent", WrittenFirst::SecondEnd}, logger,
                        nameSpace, portController, isasPort) {}

} // namespace QLN
