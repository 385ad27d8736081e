#include "ProviderDecorator.h"

#include "CmpiStatus.h"

using CmpiCpp::CmpiArgs;
using CmpiCpp::CmpiContext;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiInstanceResult;
using CmpiCpp::CmpiMethodResult;
using CmpiCpp::CmpiName;
using CmpiCpp::CmpiObjectPath;
using CmpiCpp::CmpiObjectPathResult;
using CmpiCpp::CmpiSelectExp;
using CmpiCpp::CmpiStatus;

namespace QLN {

char const* ProviderDecorator::operationName(Operation operation) {
    switch (operation) {
    case Operation::EnumInstanceNames:
        return "enumInstanceNames";
    case Operation::EnumInstances:
        return "enumInstances";
    case Operation::GetInstance:
        return "getInstance";
    case Operation::CreateInstance:
        return "createInstance";
    case Operation::ModifyInstance:
        return "modifyInstance";
    case Operation::DeleteInstance:
        return "deleteInstance";
    case Operation::ExecQuery:
        return "execQuery";
    case Operation::Associators:
        return "associators";
    case Operation::AssociatorNames:
        return "associatorNames";
    case Operation::References:
        return "references";
    case Operation::ReferenceNames:
        return "referenceNames";
    case Operation::AuthorizeFilter:
        return "authorizeFilter";
    case Operation::MustPoll:
        return "mustPoll";
    case Operation::ActivateFilter:
        return "activateFilter";
    case Operation::DeActivateFilter:
        return "deActivateFilter";
    case Operation::EnableIndications:
        return "enableIndications";
    case Operation::DisableIndications:
        return "disableIndications";
    case Operation::InvokeMethod:
        return "invokeMethod";
    case Operation::Cleanup:
        return "cleanup";
    }
    return "unknown";
}

ProviderDecorator::ProviderDecorator(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                                     ProviderFactory factory)
    : _broker(broker), _logger(logger) {
    if (!factory) {
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "decorator built without an inner factory");
    }
    _wrapped = factory(broker, logger);
    if (!_wrapped) {
        throw CmpiStatus(CMPI_RC_ERR_FAILED, "inner factory gave no provider");
    }
    _instance = dynamic_cast<CmpiCpp::CmpiInstanceProvider*>(_wrapped);
    _association = dynamic_cast<CmpiCpp::CmpiAssociationProvider*>(_wrapped);
    _indication = dynamic_cast<CmpiCpp::CmpiIndicationProvider*>(_wrapped);
    _method = dynamic_cast<CmpiCpp::CmpiMethodProvider*>(_wrapped);
}

ProviderDecorator::~ProviderDecorator() {
    delete _wrapped;
}

CmpiCpp::CmpiInstanceProvider& ProviderDecorator::_instanceProvider() {
    if (!_instance) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "wrapped provider serves no instances");
    }
    return *_instance;
}

CmpiCpp::CmpiAssociationProvider& ProviderDecorator::_associationProvider() {
    if (!_association) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "wrapped provider serves no associations");
    }
    return *_association;
}

CmpiCpp::CmpiIndicationProvider& ProviderDecorator::_indicationProvider() {
    if (!_indication) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "wrapped provider serves no indications");
    }
    return *_indication;
}

CmpiCpp::CmpiMethodProvider& ProviderDecorator::_methodProvider() {
    if (!_method) {
        throw CmpiStatus(CMPI_RC_ERR_NOT_SUPPORTED, "wrapped provider serves no methods");
    }
    return *_method;
}

void ProviderDecorator::_callStarted(Call const&) {}

void ProviderDecorator::_callEnded(Call const&, std::chrono::nanoseconds, bool) {}

template <typename Forward> void ProviderDecorator::_forward(Call const& call, Forward&& forward) {
    _callStarted(call);
    auto started = std::chrono::steady_clock::now();
    try {
        forward();
    } catch (...) {
        _callEnded(call, std::chrono::steady_clock::now() - started, true);
        throw;
    }
    _callEnded(call, std::chrono::steady_clock::now() - started, false);
}

CmpiCpp::CmpiBroker ProviderDecorator::getBroker() {
    return _broker;
}

void ProviderDecorator::cleanup(CmpiContext const& context, bool terminating) {
    _forward({Operation::Cleanup, &context, nullptr, nullptr},
             [&] { _wrapped->cleanup(context, terminating); });
}

int ProviderDecorator::getProviderKind() {
    return _wrapped->getProviderKind();
}

void ProviderDecorator::enumInstanceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                          CmpiObjectPathResult& result) {
    _forward({Operation::EnumInstanceNames, &context, &path, nullptr},
             [&] { _instanceProvider().enumInstanceNames(context, path, result); });
}

void ProviderDecorator::enumInstances(CmpiContext const& context, CmpiObjectPath const& path,
                                      char const** properties, CmpiInstanceResult& result) {
    _forward({Operation::EnumInstances, &context, &path, nullptr},
             [&] { _instanceProvider().enumInstances(context, path, properties, result); });
}

void ProviderDecorator::getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                    char const** properties, CmpiInstanceResult& result) {
    _forward({Operation::GetInstance, &context, &path, nullptr},
             [&] { _instanceProvider().getInstance(context, path, properties, result); });
}

void ProviderDecorator::createInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                       CmpiInstance const& instance, CmpiObjectPathResult& result) {
    _forward({Operation::CreateInstance, &context, &path, nullptr},
             [&] { _instanceProvider().createInstance(context, path, instance, result); });
}

void ProviderDecorator::modifyInstance(CmpiContext const& context, CmpiObjectPath const& path,
                                       CmpiInstance const& instance, char const** properties) {
    _forward({Operation::ModifyInstance, &context, &path, nullptr},
             [&] { _instanceProvider().modifyInstance(context, path, instance, properties); });
}

void ProviderDecorator::deleteInstance(CmpiContext const& context, CmpiObjectPath const& path) {
    _forward({Operation::DeleteInstance, &context, &path, nullptr},
             [&] { _instanceProvider().deleteInstance(context, path); });
}

void ProviderDecorator::execQuery(CmpiContext const& context, CmpiObjectPath const& path,
                                  std::string const& query, std::string const& language,
                                  CmpiInstanceResult& result) {
    CmpiName queryName(query);
    _forward({Operation::ExecQuery, &context, &path, &queryName},
             [&] { _instanceProvider().execQuery(context, path, query, language, result); });
}

void ProviderDecorator::associators(CmpiContext const& context, CmpiObjectPath const& path,
                                    CmpiName const& assocClass, CmpiName const& resultClass,
                                    CmpiName const& role, CmpiName const& resultRole,
                                    char const** properties, CmpiInstanceResult& result) {
    _forward({Operation::Associators, &context, &path, &assocClass}, [&] {
        _associationProvider().associators(context, path, assocClass, resultClass, role, resultRole,
                                           properties, result);
    });
}

void ProviderDecorator::associatorNames(CmpiContext const& context, CmpiObjectPath const& path,
                                        CmpiName const& assocClass, CmpiName const& resultClass,
                                        CmpiName const& role, CmpiName const& resultRole,
                                        CmpiObjectPathResult& result) {
    _forward({Operation::AssociatorNames, &context, &path, &assocClass}, [&] {
        _associationProvider().associatorNames(context, path, assocClass, resultClass, role,
                                               resultRole, result);
    });
}

void ProviderDecorator::references(CmpiContext const& context, CmpiObjectPath const& path,
                                   CmpiName const& resultClass, CmpiName const& role,
                                   char const** properties, CmpiInstanceResult& result) {
    _forward({Operation::References, &context, &path, &resultClass}, [&] {
        _associationProvider().references(context, path, resultClass, role, properties, result);
    });
}

void ProviderDecorator::referenceNames(CmpiContext const& context, CmpiObjectPath const& path,
                                       CmpiName const& resultClass, CmpiName const& role,
                                       CmpiObjectPathResult& result) {
    _forward({Operation::ReferenceNames, &context, &path, &resultClass}, [&] {
        _associationProvider().referenceNames(context, path, resultClass, role, result);
    });
}

void ProviderDecorator::authorizeFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                        CmpiName const& className, CmpiObjectPath const& path,
                                        std::string const& owner) {
    _forward({Operation::AuthorizeFilter, &context, &path, &className}, [&] {
        _indicationProvider().authorizeFilter(context, filter, className, path, owner);
    });
}

void ProviderDecorator::mustPoll(CmpiContext const& context, CmpiSelectExp const& filter,
                                 CmpiName const& className, CmpiObjectPath const& path) {
    _forward({Operation::MustPoll, &context, &path, &className},
             [&] { _indicationProvider().mustPoll(context, filter, className, path); });
}

void ProviderDecorator::activateFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                       CmpiName const& className, CmpiObjectPath const& path,
                                       bool firstActivation) {
    _forward({Operation::ActivateFilter, &context, &path, &className}, [&] {
        _indicationProvider().activateFilter(context, filter, className, path, firstActivation);
    });
}

void ProviderDecorator::deActivateFilter(CmpiContext const& context, CmpiSelectExp const& filter,
                                         CmpiName const& className, CmpiObjectPath const& path,
                                         bool lastActivation) {
    _forward({Operation::DeActivateFilter, &context, &path, &className}, [&] {
        _indicationProvider().deActivateFilter(context, filter, className, path, lastActivation);
    });
}

void ProviderDecorator::enableIndications() {
    _forward({Operation::EnableIndications, nullptr, nullptr, nullptr},
             [&] { _indicationProvider().enableIndications(); });
}

void ProviderDecorator::disableIndications() {
    _forward({Operation::DisableIndications, nullptr, nullptr, nullptr},
             [&] { _indicationProvider().disableIndications(); });
}

void ProviderDecorator::invokeMethod(CmpiContext const& context, CmpiObjectPath const& path,
                                     CmpiName const& method, CmpiArgs const& in,
                                     CmpiMethodResult& result) {
    _forward({Operation::InvokeMethod, &context, &path, &method},
             [&] { _methodProvider().invokeMethod(context, path, method, in, result); });
}

} // namespace QLN
