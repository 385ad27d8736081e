#include "InstanceOperations.h"

#include "CimError.h"
#include "CimName.h"
#include "CimOperationError.h"
#include "CimOperationHandler.h"
#include "ClassRepository.h"
#include "InstanceXml.h"
#include "ProviderManager.h"
#include "SubscriptionOperations.h"

#include <algorithm>
#include <unordered_set>

namespace Cimom {

namespace {

[[noreturn]] void fail(int code, std::string const& what) {
    throw CimOperationError(code, what);
}

// The provider manager speaks CimError; the answer to the client is the same code.
template <typename Call> auto viaProvider(Call&& call) -> decltype(call()) {
    try {
        return call();
    } catch (CimError const& e) {
        fail(static_cast<int>(e.code()),
             e.description().empty() ? CimError::codeName(e.code()) : e.description());
    }
}

// An enumeration over several classes skips classes whose provider has
// nothing for it, rather than failing the whole answer.
bool skippable(CimError const& e) {
    return e.code() == CMPI_RC_ERR_NOT_SUPPORTED || e.code() == CMPI_RC_ERR_NOT_FOUND ||
           e.code() == CMPI_RC_ERR_INVALID_CLASS;
}

std::optional<std::vector<std::string>> toList(std::optional<std::set<std::string>> const& names) {
    if (!names)
        return std::nullopt;
    return std::vector<std::string>(names->begin(), names->end());
}

} // namespace

InstanceOperations::InstanceOperations(ClassRepository const& classes, ProviderManager& providers)
    : _classes(classes), _providers(providers) {}

std::string InstanceOperations::_requireClass(CimRequest const& request, char const* param) const {
    std::string name = CimOperationHandler::classNameParam(request, param);
    if (name.empty())
        fail(CimOperationError::invalidParameter, request.methodName() + " needs " + param);
    // A schema superclass we do not ship still names our subclasses of it.
    if (!_classes.knowsClassName(request.nameSpace(), name))
        fail(CimOperationError::invalidClass, "class " + name + " does not exist");
    return name;
}

CimObjectPath InstanceOperations::_objectName(CimRequest const& request, char const* param) const {
    CimRequest::Param const* p = request.param(param);
    if (!p)
        fail(CimOperationError::invalidParameter, request.methodName() + " needs " + param);
    pugi::xml_node node = p->node.child("INSTANCENAME");
    if (!node) {
        if (p->node.child("CLASSNAME"))
            fail(CimOperationError::notSupported,
                 "class-level " + request.methodName() + " is not supported");
        fail(CimOperationError::invalidParameter, std::string(param) + " needs an INSTANCENAME");
    }
    CimObjectPath path = InstanceXml::readInstanceName(node, request.nameSpace(), &_classes);
    if (!_classes.find(request.nameSpace(), path.className()))
        fail(CimOperationError::invalidClass, "class " + path.className() + " does not exist");
    return path;
}

void InstanceOperations::registerWith(CimOperationHandler& handler) const {
    handler.addOperation("EnumerateInstanceNames",
                         [this](CimRequest const& request, CimXmlWriter& out) {
                             CimOperationHandler::checkParams(request, {"ClassName"});
                             enumerateInstanceNames(request, out, Form::classic);
                         });
    handler.addOperation(
        "EnumerateInstances", [this](CimRequest const& request, CimXmlWriter& out) {
            CimOperationHandler::checkParams(request, {"ClassName", "LocalOnly", "DeepInheritance",
                                                       "IncludeQualifiers", "IncludeClassOrigin",
                                                       "PropertyList"});
            enumerateInstances(request, out, Form::classic);
        });
    handler.addOperation("GetInstance", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"InstanceName", "LocalOnly", "IncludeQualifiers",
                                                   "IncludeClassOrigin", "PropertyList"});
        _getInstance(request, out);
    });
    handler.addOperation("Associators", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"ObjectName", "AssocClass", "ResultClass",
                                                   "Role", "ResultRole", "IncludeQualifiers",
                                                   "IncludeClassOrigin", "PropertyList"});
        associators(request, out, false, Form::classic);
    });
    handler.addOperation("AssociatorNames", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(
            request, {"ObjectName", "AssocClass", "ResultClass", "Role", "ResultRole"});
        associators(request, out, true, Form::classic);
    });
    handler.addOperation("References", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request,
                                         {"ObjectName", "ResultClass", "Role", "IncludeQualifiers",
                                          "IncludeClassOrigin", "PropertyList"});
        references(request, out, false, Form::classic);
    });
    handler.addOperation("ReferenceNames", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"ObjectName", "ResultClass", "Role"});
        references(request, out, true, Form::classic);
    });
    handler.addOperation("CreateInstance", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"NewInstance"});
        _createInstance(request, out);
    });
    handler.addOperation("DeleteInstance", [this](CimRequest const& request, CimXmlWriter& out) {
        CimOperationHandler::checkParams(request, {"InstanceName"});
        _deleteInstance(request, out);
    });
    handler.setMethodCall(
        [this](CimRequest const& request, CimXmlWriter& out) { invokeMethod(request, out); });
}

// How instances are written: the request's flags and property list, where
// the operation takes them (the name-only operations do not).
InstanceXml::InstanceOptions InstanceOperations::_instanceOptions(CimRequest const& request,
                                                                  bool flags) const {
    InstanceXml::InstanceOptions options;
    if (flags) {
        options.includeQualifiers =
            CimOperationHandler::boolParam(request, "IncludeQualifiers", false);
        options.includeClassOrigin =
            CimOperationHandler::boolParam(request, "IncludeClassOrigin", false);
        options.propertyList = CimOperationHandler::propertyListParam(request);
    }
    return options;
}

bool InstanceOperations::_enumerateSubscriptions(CimRequest const& request,
                                                 std::string const& className, bool names,
                                                 Form form, CimXmlWriter& out) const {
    if (!_subscriptions || !_subscriptions->serves(request.nameSpace(), className))
        return false;
    InstanceXml::InstanceOptions options = _instanceOptions(request, !names);
    out.open("IRETURNVALUE");
    for (CimInstance const& instance : _subscriptions->instances(className)) {
        if (names) {
            _writeName(out, instance.path(), request.nameSpace(), form);
            continue;
        }
        options.cls = _classes.find(request.nameSpace(), instance.className());
        out.open(form == Form::classic ? "VALUE.NAMEDINSTANCE" : "VALUE.INSTANCEWITHPATH");
        _writeName(out, instance.path(), request.nameSpace(), form);
        InstanceXml::writeInstance(out, instance, options);
        out.close();
    }
    out.close();
    return true;
}

void InstanceOperations::_createInstance(CimRequest const& request, CimXmlWriter& out) const {
    CimRequest::Param const* p = request.param("NewInstance");
    std::string cls = p ? p->node.child("INSTANCE").attribute("CLASSNAME").value() : "";
    if (!_subscriptions || !_subscriptions->serves(request.nameSpace(), cls))
        fail(CimOperationError::notSupported,
             "instances of " + (cls.empty() ? std::string("this class") : cls) + " in " +
                 request.nameSpace() + " cannot be created");
    CimObjectPath made = _subscriptions->create(request);
    out.open("IRETURNVALUE");
    InstanceXml::writeInstanceName(out, made);
    out.close();
}

void InstanceOperations::_deleteInstance(CimRequest const& request, CimXmlWriter& out) const {
    CimObjectPath path = _objectName(request, "InstanceName");
    if (!_subscriptions || !_subscriptions->serves(request.nameSpace(), path.className()))
        fail(CimOperationError::notSupported,
             "instances of " + path.className() + " cannot be deleted");
    _subscriptions->remove(path);
    (void)out; // DeleteInstance answers with no return value
}

void InstanceOperations::_writeName(CimXmlWriter& out, CimObjectPath const& path,
                                    std::string const& nameSpace, Form form) const {
    switch (form) {
    case Form::classic:
        InstanceXml::writeInstanceName(out, path);
        return;
    case Form::pulled: {
        if (!path.nameSpace().empty()) {
            InstanceXml::writeInstancePath(out, path, _host);
            return;
        }
        CimObjectPath full = path;
        full.setNameSpace(nameSpace);
        InstanceXml::writeInstancePath(out, full, _host);
        return;
    }
    }
}

void InstanceOperations::enumerateInstanceNames(CimRequest const& request, CimXmlWriter& out,
                                                Form form) const {
    std::string className = _requireClass(request, "ClassName");
    if (_enumerateSubscriptions(request, className, true, form, out))
        return;
    PathSet seen;
    out.open("IRETURNVALUE");
    for (std::string const& cls : _classes.selfAndDescendants(request.nameSpace(), className)) {
        if (!_providers.hasInstanceProvider(request.nameSpace(), cls))
            continue;
        std::vector<CimObjectPath> paths;
        try {
            paths = _providers.enumerateInstanceNames(CimObjectPath(request.nameSpace(), cls));
        } catch (CimError const& e) {
            if (!skippable(e))
                fail(static_cast<int>(e.code()), e.description());
        }
        for (CimObjectPath const& path : paths)
            if (seen.insert(path).second)
                _writeName(out, path, request.nameSpace(), form);
    }
    out.close();
}

void InstanceOperations::enumerateInstances(CimRequest const& request, CimXmlWriter& out,
                                            Form form) const {
    std::string className = _requireClass(request, "ClassName");
    if (_enumerateSubscriptions(request, className, false, form, out))
        return;
    bool deep = CimOperationHandler::boolParam(request, "DeepInheritance", true);
    CimOperationHandler::boolParam(request, "LocalOnly",
                                   false); // read for validation; deprecated, ignored
    InstanceXml::InstanceOptions options = _instanceOptions(request, true);
    CimClassDecl const* requested = _classes.find(request.nameSpace(), className);
    if (!deep && requested) {
        // Without deep inheritance only the requested class's properties are shown.
        std::set<std::string> own;
        for (auto const& p : requested->properties)
            own.insert(CimName::lower(p.name));
        if (options.propertyList) {
            std::set<std::string> both;
            for (auto const& n : *options.propertyList)
                if (own.count(n))
                    both.insert(n);
            own = std::move(both);
        }
        options.propertyList = std::move(own);
    }
    auto providerList = toList(options.propertyList);
    std::vector<std::string> served;
    for (std::string const& cls : _classes.selfAndDescendants(request.nameSpace(), className))
        if (_providers.hasInstanceProvider(request.nameSpace(), cls))
            served.push_back(cls);
    // Only instances of several classes can meet twice; one class's
    // provider names each of its instances once.
    PathSet seen;
    bool const dedupe = served.size() > 1;
    out.open("IRETURNVALUE");
    for (std::string const& cls : served) {
        // A class that fails takes back what it had written, unless part
        // of it has gone out already.
        CimXmlWriter::Mark const before = out.mark();
        try {
            _providers.enumerateInstances(
                CimObjectPath(request.nameSpace(), cls), providerList ? &*providerList : nullptr,
                [&](CimInstance const& instance) {
                    if (dedupe && !seen.insert(instance.path()).second)
                        return;
                    // One class answers with its own instances; the class is
                    // looked up again only when an instance of another comes.
                    if (!options.cls || !CimName::equal(options.cls->name, instance.className()))
                        options.cls = _classes.find(request.nameSpace(), instance.className());
                    out.open(form == Form::classic ? "VALUE.NAMEDINSTANCE"
                                                   : "VALUE.INSTANCEWITHPATH");
                    _writeName(out, instance.path(), request.nameSpace(), form);
                    InstanceXml::writeInstance(out, instance, options);
                    out.close();
                    out.commit();
                });
        } catch (CimError const& e) {
            if (!skippable(e))
                fail(static_cast<int>(e.code()), e.description());
            // Whole instances already sent stay; the class ends there.
            if (out.canRollback(before))
                out.rollback(before);
            else if (out.mark().depth != before.depth)
                fail(static_cast<int>(e.code()), e.description());
        }
    }
    out.close();
}

void InstanceOperations::_getInstance(CimRequest const& request, CimXmlWriter& out) const {
    CimObjectPath path = _objectName(request, "InstanceName");
    CimOperationHandler::boolParam(request, "LocalOnly", false);
    InstanceXml::InstanceOptions options = _instanceOptions(request, true);
    options.cls = _classes.find(request.nameSpace(), path.className());
    if (_subscriptions && _subscriptions->serves(request.nameSpace(), path.className())) {
        out.open("IRETURNVALUE");
        InstanceXml::writeInstance(out, _subscriptions->get(path), options);
        out.close();
        return;
    }
    if (!_providers.hasInstanceProvider(request.nameSpace(), path.className()))
        fail(CimOperationError::notFound, "no provider serves " + path.className());
    auto providerList = toList(options.propertyList);
    CimInstance instance = viaProvider(
        [&] { return _providers.getInstance(path, providerList ? &*providerList : nullptr); });
    out.open("IRETURNVALUE");
    InstanceXml::writeInstance(out, instance, options);
    out.close();
}

std::vector<std::string>
InstanceOperations::_associationClasses(std::string const& nameSpace,
                                        std::string const& assocClass) const {
    // No class given: one call, which the manager sends to every association provider.
    if (assocClass.empty())
        return {""};
    std::vector<std::string> classes = _classes.selfAndDescendants(nameSpace, assocClass);
    std::erase_if(classes, [&](std::string const& c) {
        return !_providers.hasAssociationProvider(nameSpace, c);
    });
    return classes;
}

void InstanceOperations::associators(CimRequest const& request, CimXmlWriter& out, bool names,
                                     Form form) const {
    CimObjectPath object =
        _objectName(request, form == Form::classic ? "ObjectName" : "InstanceName");
    std::string assocClass = CimOperationHandler::classNameParam(request, "AssocClass");
    std::string resultClass = CimOperationHandler::classNameParam(request, "ResultClass");
    std::string role = CimOperationHandler::stringParam(request, "Role");
    std::string resultRole = CimOperationHandler::stringParam(request, "ResultRole");
    for (std::string const* c : {&assocClass, &resultClass})
        if (!c->empty() && !_classes.knowsClassName(request.nameSpace(), *c))
            fail(CimOperationError::invalidParameter, "class " + *c + " does not exist");
    InstanceXml::InstanceOptions options = _instanceOptions(request, !names);
    auto providerList = toList(options.propertyList);
    PathSet seen;
    out.open("IRETURNVALUE");
    for (std::string const& assoc : _associationClasses(request.nameSpace(), assocClass)) {
        if (names) {
            auto paths = viaProvider([&] {
                return _providers.associatorNames(object, assoc, resultClass, role, resultRole);
            });
            for (CimObjectPath& path : paths)
                _writeObjectPath(out, path, request.nameSpace(), form, seen);
        } else {
            auto instances = viaProvider([&] {
                return _providers.associators(object, assoc, resultClass, role, resultRole,
                                              providerList ? &*providerList : nullptr);
            });
            for (CimInstance& instance : instances)
                _writeObjectWithPath(out, instance, request.nameSpace(), options, form, seen);
        }
    }
    out.close();
}

void InstanceOperations::references(CimRequest const& request, CimXmlWriter& out, bool names,
                                    Form form) const {
    CimObjectPath object =
        _objectName(request, form == Form::classic ? "ObjectName" : "InstanceName");
    std::string resultClass = CimOperationHandler::classNameParam(request, "ResultClass");
    std::string role = CimOperationHandler::stringParam(request, "Role");
    if (!resultClass.empty() && !_classes.knowsClassName(request.nameSpace(), resultClass))
        fail(CimOperationError::invalidParameter, "class " + resultClass + " does not exist");
    InstanceXml::InstanceOptions options = _instanceOptions(request, !names);
    auto providerList = toList(options.propertyList);
    PathSet seen;
    out.open("IRETURNVALUE");
    // For references the result class is the association class itself.
    for (std::string const& assoc : _associationClasses(request.nameSpace(), resultClass)) {
        if (names) {
            auto paths =
                viaProvider([&] { return _providers.referenceNames(object, assoc, role); });
            for (CimObjectPath& path : paths)
                _writeObjectPath(out, path, request.nameSpace(), form, seen);
        } else {
            auto instances = viaProvider([&] {
                return _providers.references(object, assoc, role,
                                             providerList ? &*providerList : nullptr);
            });
            for (CimInstance& instance : instances)
                _writeObjectWithPath(out, instance, request.nameSpace(), options, form, seen);
        }
    }
    out.close();
}

void InstanceOperations::_writeObjectPath(CimXmlWriter& out, CimObjectPath& path,
                                          std::string const& nameSpace, Form form,
                                          PathSet& seen) const {
    if (path.nameSpace().empty())
        path.setNameSpace(nameSpace);
    if (!seen.insert(path).second)
        return;
    switch (form) {
    case Form::classic:
        out.open("OBJECTPATH");
        InstanceXml::writeInstancePath(out, path, _host);
        out.close();
        return;
    case Form::pulled:
        InstanceXml::writeInstancePath(out, path, _host);
        return;
    }
}

void InstanceOperations::_writeObjectWithPath(CimXmlWriter& out, CimInstance const& instance,
                                              std::string const& nameSpace,
                                              InstanceXml::InstanceOptions& options, Form form,
                                              PathSet& seen) const {
    CimObjectPath path = instance.path();
    if (path.nameSpace().empty())
        path.setNameSpace(nameSpace);
    if (!seen.insert(path).second)
        return;
    options.cls = _classes.find(path.nameSpace(), path.className());
    out.open(form == Form::classic ? "VALUE.OBJECTWITHPATH" : "VALUE.INSTANCEWITHPATH");
    InstanceXml::writeInstancePath(out, path, _host);
    InstanceXml::writeInstance(out, instance, options);
    out.close();
}

void InstanceOperations::invokeMethod(CimRequest const& request, CimXmlWriter& out) const {
    pugi::xml_node target = request.target();
    CimObjectPath path;
    if (pugi::xml_node name = target.child("INSTANCENAME")) {
        path = InstanceXml::readInstanceName(name, request.nameSpace(), &_classes);
    } else if (pugi::xml_node cls = target.child("CLASSNAME")) {
        path = CimObjectPath(request.nameSpace(), cls.attribute("NAME").value());
    } else {
        fail(CimOperationError::invalidParameter, "method call without a target");
    }
    CimClassDecl const* cls = _classes.find(request.nameSpace(), path.className());
    if (!cls)
        fail(CimOperationError::invalidClass, "class " + path.className() + " does not exist");
    CimClassDecl::Method const* method = cls->findMethod(request.methodName());
    if (!method)
        fail(CimOperationError::methodNotFound,
             "class " + cls->name + " has no method " + request.methodName());

    BrokerUpcalls::Args in;
    for (auto const& p : request.params()) {
        CimClassDecl::Parameter const* decl = nullptr;
        for (auto const& candidate : method->parameters)
            if (CimName::equal(candidate.name, p.name))
                decl = &candidate;
        if (!decl)
            fail(CimOperationError::invalidParameter,
                 "method " + method->name + " has no parameter " + p.name);
        // The MOF types what the client sent untyped; a PARAMTYPE it did send wins.
        CMPIType type = CimValue::typeFromName(p.paramType.empty() ? decl->type : p.paramType);
        if (type != CMPI_null && decl->isArray)
            type = static_cast<CMPIType>(type | CMPI_ARRAY);
        in.emplace_back(decl->name,
                        InstanceXml::readParamValue(p.node, type, request.nameSpace(), &_classes));
    }
    if (!_providers.hasMethodProvider(request.nameSpace(), path.className()))
        fail(CimOperationError::notSupported, "no method provider serves " + path.className());
    MethodResult answer =
        viaProvider([&] { return _providers.invokeMethod(path, method->name, in); });
    CimValue const& result = answer.returnValue;
    auto const& outArgs = answer.outArgs;

    std::string returnType = result.isNull() || result.type() == CMPI_null
                                 ? method->returnType
                                 : CimValue::typeName(result.elementType());
    out.open("RETURNVALUE", {{"PARAMTYPE", returnType}});
    // The client crashes on an empty RETURNVALUE, so a null result still carries a VALUE.
    if (result.isNull())
        out.element("VALUE", "");
    else
        InstanceXml::writeValue(out, result);
    out.close();
    for (auto const& [name, value] : outArgs) {
        CimXmlWriter::Attributes attributes{{"NAME", name}};
        std::string const type =
            value.type() == CMPI_null ? "" : CimValue::typeName(value.elementType());
        if (value.type() != CMPI_null)
            attributes.add("PARAMTYPE", type);
        out.open("PARAMVALUE", attributes);
        if (!value.isNull())
            InstanceXml::writeValue(out, value);
        out.close();
    }
}

} // namespace Cimom
