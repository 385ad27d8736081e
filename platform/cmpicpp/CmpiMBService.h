#pragma once
// Broker services a provider calls on its own initiative: today the delivery
// of indications.
#include "CmpiContext.h"
#include "CmpiInstance.h"
#include "CmpiName.h"
#include "cmpift.h"

class Logger;

namespace CmpiCpp {

class CmpiMBService {
public:
    // The logger is taken for the callers' sake; the service itself reports
    // failure only by throwing.
    CmpiMBService(CMPIBroker const* broker, Logger& logger);

    // Hands the indication to the object manager in that namespace. A null
    // broker or a failure status from the broker throws CmpiStatus.
    void deliverIndication(CmpiContext const& context, CmpiName const& nameSpace,
                           CmpiInstance const& indication) const;

private:
    CMPIBroker const* _broker;
};

} // namespace CmpiCpp
