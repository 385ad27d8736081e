#pragma once

#include "CimInstance.h"
#include "CimObjectPath.h"
#include "CimRequest.h"
#include "CimXmlWriter.h"
#include "InstanceXml.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace Cimom {

class ClassRepository;
class CimOperationHandler;
class ProviderManager;
class SubscriptionOperations;

// The instance, association and method operations: reads their parameters,
// asks the providers of the class and its subclasses through the
// ProviderManager, and writes the results in the shapes wbemcli reads.
class InstanceOperations {
public:
    InstanceOperations(ClassRepository const& classes, ProviderManager& providers);

    // HOST written into INSTANCEPATHs ("127.0.0.1:5988").
    void setHost(std::string host) { _host = std::move(host); }

    // The subscription classes of root/interop, which the object manager
    // serves itself; without them CreateInstance and DeleteInstance are refused.
    void setSubscriptions(SubscriptionOperations* subscriptions) { _subscriptions = subscriptions; }

    // Adds the instance, association and method operations to the handler's table.
    void registerWith(CimOperationHandler& handler) const;

    void invokeMethod(CimRequest const& request, CimXmlWriter& out) const;

    // The classic operations name instances as their clients expect;
    // pulled enumerations give every instance its full path, and the
    // associations take their object as InstanceName.
    enum class Form { classic, pulled };
    // Each writes an IRETURNVALUE with one element per result.
    void enumerateInstanceNames(CimRequest const& request, CimXmlWriter& out, Form form) const;
    void enumerateInstances(CimRequest const& request, CimXmlWriter& out, Form form) const;
    void associators(CimRequest const& request, CimXmlWriter& out, bool names, Form form) const;
    void references(CimRequest const& request, CimXmlWriter& out, bool names, Form form) const;

private:
    void _getInstance(CimRequest const& request, CimXmlWriter& out) const;
    void _createInstance(CimRequest const& request, CimXmlWriter& out) const;
    void _deleteInstance(CimRequest const& request, CimXmlWriter& out) const;
    // True when the subscription classes answered the enumeration.
    bool _enumerateSubscriptions(CimRequest const& request, std::string const& className,
                                 bool names, Form form, CimXmlWriter& out) const;

    std::string _requireClass(CimRequest const& request, char const* param) const;
    CimObjectPath _objectName(CimRequest const& request, char const* param) const;
    InstanceXml::InstanceOptions _instanceOptions(CimRequest const& request, bool flags) const;
    // Association classes to ask: the given one and its subclasses, or every
    // association class of the namespace.
    std::vector<std::string> _associationClasses(std::string const& nameSpace,
                                                 std::string const& assocClass) const;

    // Results of several providers may overlap; each path is written once.
    using PathSet = std::unordered_set<CimObjectPath, CimObjectPathHash>;
    void _writeName(CimXmlWriter& out, CimObjectPath const& path, std::string const& nameSpace,
                    Form form) const;
    void _writeObjectPath(CimXmlWriter& out, CimObjectPath& path, std::string const& nameSpace,
                          Form form, PathSet& seen) const;
    void _writeObjectWithPath(CimXmlWriter& out, CimInstance const& instance,
                              std::string const& nameSpace, InstanceXml::InstanceOptions& options,
                              Form form, PathSet& seen) const;

    ClassRepository const& _classes;
    ProviderManager& _providers;
    SubscriptionOperations* _subscriptions = nullptr;
    std::string _host = "localhost";
};

} // namespace Cimom
