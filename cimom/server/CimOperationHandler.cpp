#include "CimOperationHandler.h"

#include "CimError.h"
#include "CimOperationError.h"
#include "CimProtocolError.h"
#include "ClassRepository.h"
#include "ClassXml.h"
#include "ServerLog.h"

#include <algorithm>
#include <strings.h>

namespace Cimom {

namespace {

bool sameName(std::string const& a, char const* b) {
    return strcasecmp(a.c_str(), b) == 0;
}

std::string lower(std::string s) {
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return s;
}

[[noreturn]] void invalidParameter(std::string const& what) {
    throw CimOperationError(CimOperationError::invalidParameter, what);
}

void openEnvelope(CimXmlWriter& out, std::string const& messageId) {
    out.open("CIM", {{"CIMVERSION", "2.0"}, {"DTDVERSION", "2.0"}});
    // The ID is echoed from the request, which may hold bytes that are not XML.
    out.open("MESSAGE", {{"ID", CimXmlWriter::xmlSafe(messageId)}, {"PROTOCOLVERSION", "1.0"}});
    out.open("SIMPLERSP");
}

// Parts of an answer that goes out as it is written: large enough that
// sending costs little per byte, small enough to stay in the worker's cache
// and arena.
constexpr std::size_t partBytes = 256 * 1024;

} // namespace

CimOperationHandler::CimOperationHandler(ClassRepository const& classes, Settings settings)
    : _classes(classes), _settings(settings) {
    addOperation("EnumerateClassNames", [this](CimRequest const& request, CimXmlWriter& out) {
        checkParams(request, {"ClassName", "DeepInheritance"});
        _enumerateClassNames(request, out);
    });
    addOperation("EnumerateClasses", [this](CimRequest const& request, CimXmlWriter& out) {
        checkParams(request, {"ClassName", "DeepInheritance", "LocalOnly", "IncludeQualifiers",
                              "IncludeClassOrigin"});
        _enumerateClasses(request, out);
    });
    addOperation("GetClass", [this](CimRequest const& request, CimXmlWriter& out) {
        checkParams(request, {"ClassName", "LocalOnly", "IncludeQualifiers", "IncludeClassOrigin",
                              "PropertyList"});
        _getClass(request, out);
    });
}

void CimOperationHandler::addOperation(std::string const& name, Operation operation) {
    _operations[lower(name)] = std::move(operation);
}

void CimOperationHandler::setMethodCall(Operation operation) {
    _methodCall = std::move(operation);
}

std::string CimOperationHandler::percentDecode(std::string const& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() &&
            std::isxdigit(static_cast<unsigned char>(text[i + 1])) &&
            std::isxdigit(static_cast<unsigned char>(text[i + 2]))) {
            out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

bool CimOperationHandler::boolParam(CimRequest const& request, char const* name, bool fallback) {
    CimRequest::Param const* p = request.param(name);
    if (!p)
        return fallback;
    pugi::xml_node value = p->node.child("VALUE");
    if (!value)
        invalidParameter(std::string(name) + " needs a VALUE");
    std::string text = value.text().get();
    if (sameName(text, "true"))
        return true;
    if (sameName(text, "false"))
        return false;
    invalidParameter(std::string(name) + " is not a boolean: " + text);
}

std::string CimOperationHandler::classNameParam(CimRequest const& request, char const* name) {
    CimRequest::Param const* p = request.param(name);
    if (!p)
        return "";
    pugi::xml_node cls = p->node.child("CLASSNAME");
    if (!cls) {
        // An empty IPARAMVALUE stands for NULL.
        if (!p->node.first_child())
            return "";
        invalidParameter(std::string(name) + " needs a CLASSNAME");
    }
    std::string value = cls.attribute("NAME").value();
    if (value.empty())
        invalidParameter(std::string(name) + " has an empty CLASSNAME");
    return value;
}

std::string CimOperationHandler::stringParam(CimRequest const& request, char const* name) {
    CimRequest::Param const* p = request.param(name);
    if (!p || !p->node.first_child())
        return "";
    pugi::xml_node value = p->node.child("VALUE");
    if (!value)
        invalidParameter(std::string(name) + " needs a VALUE");
    return value.text().get();
}

std::optional<std::set<std::string>>
CimOperationHandler::propertyListParam(CimRequest const& request) {
    CimRequest::Param const* p = request.param("PropertyList");
    if (!p || !p->node.first_child())
        return std::nullopt;
    pugi::xml_node array = p->node.child("VALUE.ARRAY");
    if (!array)
        invalidParameter("PropertyList needs a VALUE.ARRAY");
    std::set<std::string> names;
    for (pugi::xml_node v : array.children("VALUE"))
        names.insert(lower(v.text().get()));
    return names;
}

void CimOperationHandler::checkParams(CimRequest const& request,
                                      std::initializer_list<char const*> allowed) {
    for (auto const& p : request.params()) {
        bool known = std::any_of(allowed.begin(), allowed.end(),
                                 [&](char const* a) { return sameName(p.name, a); });
        if (!known)
            invalidParameter("unknown parameter " + p.name + " for " + request.methodName());
    }
}

void CimOperationHandler::_checkHeaders(CimHttpExchange const& exchange,
                                        CimRequest const& request) const {
    if (!sameName(*exchange.cimMethod, request.methodName().c_str()))
        throw CimProtocolError(400, "header-mismatch",
                               "CIMMethod " + *exchange.cimMethod + " does not match " +
                                   request.methodName());
    std::string object = percentDecode(*exchange.cimObject);
    // For a method call the header holds namespace ':' path; only the namespace is compared,
    // since clients spell the key part in their own ways.
    std::string nsPart = request.intrinsic() ? object : object.substr(0, object.find(':'));
    if (strcasecmp(nsPart.c_str(), request.nameSpace().c_str()) != 0)
        throw CimProtocolError(400, "header-mismatch",
                               "CIMObject " + object + " does not match namespace " +
                                   request.nameSpace());
}

void CimOperationHandler::handle(CimHttpExchange& exchange) const {
    exchange.status = 200;
    exchange.cimError.clear();
    try {
        if (!exchange.cimOperation || !sameName(*exchange.cimOperation, "MethodCall"))
            throw CimProtocolError(400, "header-mismatch",
                                   "CIMOperation header must be MethodCall");
        if (!exchange.cimMethod || exchange.cimMethod->empty())
            throw CimProtocolError(400, "header-mismatch", "CIMMethod header missing");
        if (!exchange.cimObject || exchange.cimObject->empty())
            throw CimProtocolError(400, "header-mismatch", "CIMObject header missing");
        if (exchange.cimProtocolVersion && exchange.cimProtocolVersion->rfind("1.", 0) != 0)
            throw CimProtocolError(501, "unsupported-protocol-version",
                                   "CIMProtocolVersion " + *exchange.cimProtocolVersion +
                                       " not supported");
        if (exchange.contentType && lower(*exchange.contentType).find("xml") == std::string::npos)
            throw CimProtocolError(400, "request-not-valid",
                                   "Content-Type " + *exchange.contentType + " is not XML");
        CimRequest request = CimRequest::parse(exchange.body, _settings.maxXmlDepth);
        _checkHeaders(exchange, request);
        request.setClient(exchange.client);
        if (ServerLog::enabled(ServerLog::Level::Debug))
            ServerLog::debug("request " + request.methodName() + " in " + request.nameSpace());

        CimXmlWriter out;
        if (exchange.sendPart)
            out.sendPartsTo(exchange.sendPart, partBytes);
        openEnvelope(out, request.messageId());
        char const* responseTag = request.intrinsic() ? "IMETHODRESPONSE" : "METHODRESPONSE";
        out.open(responseTag, {{"NAME", request.methodName()}});
        // The answer is written in place; a failure takes back what the
        // operation wrote and puts the error there instead.
        CimXmlWriter::Mark const start = out.mark();
        try {
            _dispatch(request, out);
        } catch (CimOperationError const& e) {
            ServerLog::debug(request.methodName() + " in " + request.nameSpace() + ": " +
                             CimError::codeName(e.code()) + ": " + e.what());
            if (!out.canRollback(start)) {
                // Part of the answer is out: it is ended as it stands and
                // the failure goes with its end.
                exchange.failedAfterParts = e.code();
                exchange.failedDescription = CimXmlWriter::xmlSafe(e.what());
                while (!out.balanced())
                    out.close();
                exchange.responseBody = out.take();
                return;
            }
            out.rollback(start);
            std::string const code = std::to_string(e.code());
            // The description may quote the request, which need not be valid text.
            out.empty("ERROR", {{"CODE", code}, {"DESCRIPTION", CimXmlWriter::xmlSafe(e.what())}});
        }
        out.close().close().close().close();
        exchange.responseBody = out.take();
    } catch (CimProtocolError const& e) {
        ServerLog::warn(std::string("refused request: ") + e.what());
        exchange.status = e.httpStatus();
        exchange.cimError = e.cimError();
        exchange.responseBody = std::string(e.what()) + "\n";
    }
}

void CimOperationHandler::_dispatch(CimRequest const& request, CimXmlWriter& out) const {
    if (!_classes.hasNamespace(request.nameSpace()))
        throw CimOperationError(CimOperationError::invalidNamespace,
                                "namespace " + request.nameSpace() + " does not exist");
    if (!request.intrinsic()) {
        if (!_methodCall)
            throw CimOperationError(CimOperationError::notSupported, "no providers loaded");
        _methodCall(request, out);
        return;
    }
    auto found = _operations.find(lower(request.methodName()));
    if (found == _operations.end())
        throw CimOperationError(CimOperationError::notSupported,
                                "operation " + request.methodName() + " is not supported");
    found->second(request, out);
}

void CimOperationHandler::_enumerateClassNames(CimRequest const& request, CimXmlWriter& out) const {
    std::string base = classNameParam(request, "ClassName");
    if (!base.empty() && !_classes.knowsClassName(request.nameSpace(), base))
        throw CimOperationError(CimOperationError::invalidClass,
                                "class " + base + " does not exist");
    bool deep = boolParam(request, "DeepInheritance", false);
    out.open("IRETURNVALUE");
    for (CimClassDecl const* cls : _classes.subclasses(request.nameSpace(), base, deep))
        out.empty("CLASSNAME", {{"NAME", cls->name}});
    out.close();
}

void CimOperationHandler::_enumerateClasses(CimRequest const& request, CimXmlWriter& out) const {
    std::string base = classNameParam(request, "ClassName");
    if (!base.empty() && !_classes.knowsClassName(request.nameSpace(), base))
        throw CimOperationError(CimOperationError::invalidClass,
                                "class " + base + " does not exist");
    ClassXml::Options options;
    options.localOnly = boolParam(request, "LocalOnly", true);
    options.includeQualifiers = boolParam(request, "IncludeQualifiers", true);
    options.includeClassOrigin = boolParam(request, "IncludeClassOrigin", false);
    bool deep = boolParam(request, "DeepInheritance", false);
    out.open("IRETURNVALUE");
    for (CimClassDecl const* cls : _classes.subclasses(request.nameSpace(), base, deep))
        ClassXml::writeClass(out, *cls, options);
    out.close();
}

void CimOperationHandler::_getClass(CimRequest const& request, CimXmlWriter& out) const {
    std::string name = classNameParam(request, "ClassName");
    if (name.empty())
        invalidParameter("GetClass needs ClassName");
    CimClassDecl const* cls = _classes.find(request.nameSpace(), name);
    if (!cls)
        throw CimOperationError(CimOperationError::notFound, "class " + name + " does not exist");
    ClassXml::Options options;
    options.localOnly = boolParam(request, "LocalOnly", true);
    options.includeQualifiers = boolParam(request, "IncludeQualifiers", true);
    options.includeClassOrigin = boolParam(request, "IncludeClassOrigin", false);
    options.propertyList = propertyListParam(request);
    out.open("IRETURNVALUE");
    ClassXml::writeClass(out, *cls, options);
    out.close();
}

} // namespace Cimom
