#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "BrokerUpcalls.h"
#include "IndicationSink.h"
#include "ObjectRegistry.h"
#include "cmpift.h"

namespace Cimom {

class BrokerContext;

// The object manager's CMPIBroker: the four function tables (main,
// encapsulated, extended, memory) over the registry of CMPI objects.
// Up-calls go to a BrokerUpcalls (the provider manager), indications to an
// IndicationSink, class hierarchy questions to a callback of the server.
// Services we do not offer answer CMPI_RC_ERR_NOT_SUPPORTED.
class Broker {
public:
    // True when className is ancestor or derives from it in nameSpace.
    using ClassIsA = std::function<bool(std::string const& nameSpace, std::string const& className,
                                        std::string const& ancestor)>;
    // severity: CMPI_SEV_ERROR, CMPI_SEV_INFO, CMPI_SEV_WARNING, CMPI_DEV_DEBUG.
    using LogFunction = std::function<void(int severity, std::string const& text)>;

    static constexpr char const* name = "veldra-cimd";

    Broker();
    ~Broker();
    Broker(Broker const&) = delete;
    Broker& operator=(Broker const&) = delete;

    CMPIBroker const* cmpi() const { return &_cmpi; }

    // The versions this broker reports: CMPI 2.0 (200) in both by default.
    // Lower ones let tests stand in for an older object manager (SFCB 1.3
    // reports a broker version of 0 and an encapsulated table version of 1).
    // Set them before any provider sees the broker.
    void reportVersions(unsigned int brokerVersion, int encapsulatedVersion);
    ObjectRegistry& registry() { return _registry; }

    void setUpcalls(BrokerUpcalls* upcalls);
    void setIndicationSink(std::shared_ptr<IndicationSink> sink);
    void setClassIsA(ClassIsA isA);
    void setLog(LogFunction log);

    // A context of the current arena carrying the invocation flags, the
    // namespace (as CMPIInitNameSpace) and the principal.
    BrokerContext* newContext(std::string const& nameSpace, CMPIFlags flags,
                              std::string const& principal = std::string());

    // Used by the table functions.
    static Broker* from(CMPIBroker const* mb);
    BrokerUpcalls& upcalls();
    void deliver(std::string const& nameSpace, CimInstance const& indication);
    bool isA(std::string const& nameSpace, std::string const& className,
             std::string const& ancestor);
    void log(int severity, std::string const& text);

private:
    CMPIBrokerFT _mainTable;
    CMPIBrokerEncFT _encTable;
    CMPIBroker _cmpi;
    ObjectRegistry _registry;
    mutable std::mutex _mutex;
    BrokerUpcalls* _upcalls = nullptr;
    std::shared_ptr<IndicationSink> _sink;
    ClassIsA _isA;
    LogFunction _log;
};

} // namespace Cimom
