#pragma once
// Common ground of the provider decorators: a provider with all four
// interfaces that builds the provider it wraps through an inner factory,
// forwards every operation to it, and deletes it at the end. Subclasses watch
// the traffic through two hooks around each forwarded call.
#include "CmpiAssociationProvider.h"
#include "CmpiBroker.h"
#include "CmpiIndicationProvider.h"
#include "CmpiInstanceProvider.h"
#include "CmpiMethodProvider.h"
#include "Logger.h"

#include <chrono>

namespace QLN {

using ProviderFactory = CmpiCpp::CmpiProvider* (*)(CmpiCpp::CmpiBroker const&, Logger&);

class ProviderDecorator : public CmpiCpp::CmpiInstanceProvider,
                          public CmpiCpp::CmpiAssociationProvider,
                          public CmpiCpp::CmpiIndicationProvider,
                          public CmpiCpp::CmpiMethodProvider {
public:
    enum class Operation {
        EnumInstanceNames,
        EnumInstances,
        GetInstance,
        CreateInstance,
        ModifyInstance,
        DeleteInstance,
        ExecQuery,
        Associators,
        AssociatorNames,
        References,
        ReferenceNames,
        AuthorizeFilter,
        MustPoll,
        ActivateFilter,
        DeActivateFilter,
        EnableIndications,
        DisableIndications,
        InvokeMethod,
        Cleanup,
    };
    static constexpr int operationCount = static_cast<int>(Operation::Cleanup) + 1;
    static char const* operationName(Operation operation);

    // Calls the factory with the same broker and logger; a null result throws
    // CmpiStatus(CMPI_RC_ERR_FAILED).
    ProviderDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger, ProviderFactory factory);
    ~ProviderDecorator() override;

    CmpiCpp::CmpiBroker getBroker() override;
    void cleanup(CmpiCpp::CmpiContext const& context, bool terminating) override;
    int getProviderKind() override;

    void enumInstanceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override;
    void enumInstances(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void getInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void createInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                        CmpiCpp::CmpiInstance const& instance,
                        CmpiCpp::CmpiObjectPathResult& result) override;
    void modifyInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                        CmpiCpp::CmpiInstance const& instance, char const** properties) override;
    void deleteInstance(CmpiCpp::CmpiContext const& context,
                        CmpiCpp::CmpiObjectPath const& path) override;
    void execQuery(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                   std::string const& query, std::string const& language,
                   CmpiCpp::CmpiInstanceResult& result) override;

    void associators(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                     CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void associatorNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                         CmpiCpp::CmpiName const& assocClass, CmpiCpp::CmpiName const& resultClass,
                         CmpiCpp::CmpiName const& role, CmpiCpp::CmpiName const& resultRole,
                         CmpiCpp::CmpiObjectPathResult& result) override;
    void references(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                    CmpiCpp::CmpiName const& resultClass, CmpiCpp::CmpiName const& role,
                    char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
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

protected:
    // What a forwarded call is about: the path (null when the operation has
    // none) and a name (the method, filter class or query; null if none).
    struct Call {
        Operation operation;
        CmpiCpp::CmpiContext const* context;
        CmpiCpp::CmpiObjectPath const* path;
        CmpiCpp::CmpiName const* name;
    };
    // Run around every forwarded call on the caller's thread; they must be
    // thread-safe. _callEnded also runs when the call throws (failed = true).
    virtual void _callStarted(Call const& call);
    virtual void _callEnded(Call const& call, std::chrono::nanoseconds elapsed, bool failed);

    CmpiCpp::CmpiInstanceProvider& _instanceProvider();
    CmpiCpp::CmpiAssociationProvider& _associationProvider();
    CmpiCpp::CmpiIndicationProvider& _indicationProvider();
    CmpiCpp::CmpiMethodProvider& _methodProvider();

    CmpiCpp::CmpiBroker _broker;
    Logger _logger;

private:
    template <typename Forward> void _forward(Call const& call, Forward&& forward);

    CmpiCpp::CmpiProvider* _wrapped = nullptr;
    CmpiCpp::CmpiInstanceProvider* _instance = nullptr;
    CmpiCpp::CmpiAssociationProvider* _association = nullptr;
    CmpiCpp::CmpiIndicationProvider* _indication = nullptr;
    CmpiCpp::CmpiMethodProvider* _method = nullptr;
};

} // namespace QLN
