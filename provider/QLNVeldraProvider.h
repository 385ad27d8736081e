#pragma once
// The one object that answers every CMPI request of the provider. It owns the
// instance graph and the storage-access root, forwards reads to the graph
// under one mutex, keeps the indication switch, and splits method calls
// between the background worker and the classes with extrinsic methods.
#include "CmpiAssociationProvider.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiManagedInstanceCollection.h"
#include "CmpiMethodProvider.h"
#include "InternalVeldraControllerMRA.h"
#include "Logger.h"

#include <pthread.h>
#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

namespace QLN {

class QLNVeldraProvider : public CmpiCpp::CmpiInstanceProvider,
                          public CmpiCpp::CmpiAssociationProvider,
                          public CmpiCpp::CmpiIndicationProvider,
                          public CmpiCpp::CmpiMethodProvider {
public:
    QLNVeldraProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger);
    ~QLNVeldraProvider() override;

    void enumInstanceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override;
    void enumInstances(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void getInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;

    CmpiCpp::CmpiBroker getBroker() override;
    void cleanup(CmpiCpp::CmpiContext const& context, bool terminating) override;

    void associators(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                     CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole, char const** properties,
                     CmpiCpp::CmpiInstanceResult& result) override;
    void associatorNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                         CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                         CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                         CmpiCpp::CmpiObjectPathResult& result) override;
    void references(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                    CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role, char const** properties,
                    CmpiCpp::CmpiInstanceResult& result) override;
    void referenceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                        CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                        CmpiCpp::CmpiObjectPathResult& result) override;

    void authorizeFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                         CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                         std::string const& owner) override;
    void mustPoll(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                  CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path) override;
    void activateFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                        CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                        bool firstActivation) override;
    void deActivateFilter(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiSelectExp const& filter,
                          CmpiCpp::CmpiName const& className, CmpiCpp::CmpiObjectPath const& path,
                          bool lastActivation) override;
    void enableIndications() override;
    void disableIndications() override;

    void invokeMethod(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                      CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in,
                      CmpiCpp::CmpiMethodResult& result) override;

    int getProviderKind() override;

    // Read-only views for the worker and for tests.
    bool indicationsEnabled() const { return _indicationsEnabled; }
    bool heartbeatEnabled() const { return _heartbeatEnabled; }
    unsigned int instanceCount() const { return _managedInstances.size(); }

private:
    // Fields that were kept in the provider's layout; nothing reads them.
    struct ReservedRecord {
        std::string first;
        std::string second;
        std::string third;
    };

    void _cmpiManagedInstanceFactory();
    std::uint32_t _backgroundWorker(CmpiCpp::CmpiContext const& context);
    std::uint32_t _invokeMethodOnInstance(CmpiCpp::CmpiObjectPath const& path, CmpiCpp::CmpiName const& method,
                                          CmpiCpp::CmpiArgs const& in);

    Logger _logger;
    CmpiManagedInstanceCollection _managedInstances;
    std::vector<std::string> _reservedVector;
    ReservedRecord _reservedRecord;
    std::vector<VeldraController*> _controllers;
    // Set and read without the provider mutex (filter calls, the worker's
    // heartbeat), so atomic; relaxed order is enough for a switch.
    std::atomic<bool> _indicationsEnabled;
    std::atomic<bool> _workerEnteredWithIndications;
    bool _heartbeatEnabled;
    InternalVeldraControllerMRA* _internalVDControllerMRA;
    pthread_mutex_t _providerMutex;
};

} // namespace QLN
