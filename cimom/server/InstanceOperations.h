#pragma once

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimRequest.h"
#include "CimXmlWriter.h"
#include "InstanceXml.h"

#include <string>
#include <unordered_set>
#include <vector>

class ClassRepository;
class CimOperationHandler;
class ProviderManager;
class SubscriptionOperations;

// The instance, association and method operations: reads their parameters,
// asks the providers of the class and its subclasses through the
// ProviderManager, and writes the results in the shapes wbemcli reads.
class InstanceOperations {
public:
    InstanceOperations(const ClassRepository& classes, ProviderManager& providers);

    // HOST written into INSTANCEPATHs ("127.0.0.1:5988").
    void setHost(std::string host) { _host = std::move(host); }

    // The subscription classes of root/interop, which the object manager
    // serves itself; without them CreateInstance and DeleteInstance are refused.
    void setSubscriptions(SubscriptionOperations* subscriptions) { _subscriptions = subscriptions; }

    // Adds the instance, association and method operations to the handler's table.
    void registerWith(CimOperationHandler& handler) const;

    void invokeMethod(const CimRequest& request, CimXmlWriter& out) const;

    // The classic operations name instances as their clients expect;
    // pulled enumerations give every instance its full path, and the
    // associations take their object as InstanceName.
    enum class Form { classic, pulled };
    // Each writes an IRETURNVALUE with one element per result.
    void enumerateInstanceNames(const CimRequest& request, CimXmlWriter& out, Form form) const;
    void enumerateInstances(const CimRequest& request, CimXmlWriter& out, Form form) const;
    void associators(const CimRequest& request, CimXmlWriter& out, bool names, Form form) const;
    void references(const CimRequest& request, CimXmlWriter& out, bool names, Form form) const;

private:
    void _getInstance(const CimRequest& request, CimXmlWriter& out) const;
    void _createInstance(const CimRequest& request, CimXmlWriter& out) const;
    void _deleteInstance(const CimRequest& request, CimXmlWriter& out) const;
    // True when the subscription classes answered the enumeration.
    bool _enumerateSubscriptions(const CimRequest& request, const std::string& className, bool names, Form form,
                                 CimXmlWriter& out) const;

    std::string _requireClass(const CimRequest& request, const char* param) const;
    CimObjectPath _objectName(const CimRequest& request, const char* param) const;
    InstanceXml::InstanceOptions _instanceOptions(const CimRequest& request, bool flags) const;
    // Association classes to ask: the given one and its subclasses, or every
    // association class of the namespace.
    std::vector<std::string> _associationClasses(const std::string& nameSpace, const std::string& assocClass) const;

    // Results of several providers may overlap; each path is written once.
    using PathSet = std::unordered_set<CimObjectPath, CimObjectPathHash>;
    void _writeName(CimXmlWriter& out, const CimObjectPath& path, const std::string& nameSpace, Form form) const;
    void _writeObjectPath(CimXmlWriter& out, CimObjectPath& path, const std::string& nameSpace, Form form,
                          PathSet& seen) const;
    void _writeObjectWithPath(CimXmlWriter& out, const CimInstance& instance, const std::string& nameSpace,
                              InstanceXml::InstanceOptions& options, Form form, PathSet& seen) const;

    const ClassRepository& _classes;
    ProviderManager& _providers;
    SubscriptionOperations* _subscriptions = nullptr;
    std::string _host = "localhost";
};
