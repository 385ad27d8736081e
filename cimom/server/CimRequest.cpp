#include "CimRequest.h"

#include "CimProtocolError.h"

#include <algorithm>
#include <strings.h>

namespace Cimom {

namespace {

[[noreturn]] void notValid(std::string const& what) {
    throw CimProtocolError(400, "request-not-valid", what);
}

// No operation takes more than a dozen parameters; the cap keeps the
// given-twice check (and every later look-up by name) from turning a large
// body of parameters into quadratic work.
constexpr size_t maxParams = 64;

void checkParamCount(std::vector<CimRequest::Param> const& params) {
    if (params.size() >= maxParams)
        notValid("more than " + std::to_string(maxParams) + " parameters");
}

pugi::xml_node onlyChild(pugi::xml_node parent, char const* name) {
    pugi::xml_node child = parent.child(name);
    if (!child)
        notValid(std::string("missing ") + name + " in " + parent.name());
    return child;
}

// pugixml itself does not limit nesting; measured iteratively so that a deep
// document cannot exhaust the stack here either.
int depthOf(pugi::xml_document const& doc) {
    int depth = 0;
    int maxDepth = 0;
    pugi::xml_node node = doc.first_child();
    while (node) {
        ++depth;
        if (depth > maxDepth)
            maxDepth = depth;
        if (node.first_child()) {
            node = node.first_child();
            continue;
        }
        while (node && !node.next_sibling()) {
            node = node.parent();
            --depth;
            if (node == doc)
                return maxDepth;
        }
        if (node) {
            node = node.next_sibling();
            --depth;
        }
    }
    return maxDepth;
}

// Cheap pre-scan so that a hostile nesting never reaches the parser's allocator.
int roughDepth(std::string const& body) {
    int depth = 0;
    int maxDepth = 0;
    for (size_t i = 0; i + 1 < body.size(); ++i) {
        if (body[i] != '<')
            continue;
        char next = body[i + 1];
        if (next == '/') {
            --depth;
        } else if (next != '?' && next != '!') {
            size_t end = body.find('>', i);
            if (end == std::string::npos)
                break;
            if (body[end - 1] != '/')
                maxDepth = std::max(maxDepth, ++depth);
            i = end;
        }
    }
    return maxDepth;
}

} // namespace

std::string CimRequest::namespaceOf(pugi::xml_node localNamespacePath) {
    std::string ns;
    for (pugi::xml_node part : localNamespacePath.children("NAMESPACE")) {
        if (!ns.empty())
            ns += '/';
        ns += part.attribute("NAME").value();
    }
    return ns;
}

CimRequest::Param const* CimRequest::param(std::string const& name) const {
    for (auto const& p : _params)
        if (strcasecmp(p.name.c_str(), name.c_str()) == 0)
            return &p;
    return nullptr;
}

CimRequest CimRequest::parse(std::string const& body, int maxDepth) {
    if (roughDepth(body) > maxDepth)
        notValid("XML nested deeper than " + std::to_string(maxDepth));
    CimRequest request;
    pugi::xml_parse_result parsed = request._doc->load_buffer(
        body.data(), body.size(), pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!parsed)
        throw CimProtocolError(400, "request-not-well-formed",
                               std::string("XML error at offset ") + std::to_string(parsed.offset) +
                                   ": " + parsed.description());
    if (depthOf(*request._doc) > maxDepth)
        notValid("XML nested deeper than " + std::to_string(maxDepth));

    pugi::xml_node cim = request._doc->child("CIM");
    if (!cim)
        notValid("root element is not CIM");
    std::string cimVersion = cim.attribute("CIMVERSION").value();
    if (cimVersion.rfind("2.", 0) != 0)
        throw CimProtocolError(501, "unsupported-cim-version",
                               "CIMVERSION " + cimVersion + " not supported");
    std::string dtdVersion = cim.attribute("DTDVERSION").value();
    if (dtdVersion.rfind("2.", 0) != 0)
        throw CimProtocolError(501, "unsupported-dtd-version",
                               "DTDVERSION " + dtdVersion + " not supported");
    pugi::xml_node message = onlyChild(cim, "MESSAGE");
    request._messageId = message.attribute("ID").value();
    if (request._messageId.empty())
        notValid("MESSAGE without ID");
    std::string protocol = message.attribute("PROTOCOLVERSION").value();
    if (protocol.rfind("1.", 0) != 0)
        throw CimProtocolError(501, "unsupported-protocol-version",
                               "PROTOCOLVERSION " + protocol + " not supported");
    if (message.child("MULTIREQ"))
        throw CimProtocolError(501, "multiple-requests-unsupported", "MULTIREQ is not supported");
    pugi::xml_node simple = onlyChild(message, "SIMPLEREQ");

    if (pugi::xml_node call = simple.child("IMETHODCALL")) {
        request._intrinsic = true;
        request._methodName = call.attribute("NAME").value();
        if (request._methodName.empty())
            notValid("IMETHODCALL without NAME");
        request._nameSpace = namespaceOf(onlyChild(call, "LOCALNAMESPACEPATH"));
        if (request._nameSpace.empty())
            notValid("empty namespace");
        for (pugi::xml_node p : call.children("IPARAMVALUE")) {
            std::string name = p.attribute("NAME").value();
            if (name.empty())
                notValid("IPARAMVALUE without NAME");
            checkParamCount(request._params);
            if (request.param(name))
                notValid("IPARAMVALUE " + name + " given twice");
            request._params.push_back({name, "", p});
        }
    } else if (pugi::xml_node call = simple.child("METHODCALL")) {
        request._intrinsic = false;
        request._methodName = call.attribute("NAME").value();
        if (request._methodName.empty())
            notValid("METHODCALL without NAME");
        pugi::xml_node path = call.child("LOCALINSTANCEPATH");
        if (!path)
            path = call.child("LOCALCLASSPATH");
        if (!path)
            notValid("METHODCALL needs LOCALINSTANCEPATH or LOCALCLASSPATH");
        request._target = path;
        request._nameSpace = namespaceOf(onlyChild(path, "LOCALNAMESPACEPATH"));
        if (request._nameSpace.empty())
            notValid("empty namespace");
        for (pugi::xml_node p : call.children("PARAMVALUE")) {
            std::string name = p.attribute("NAME").value();
            if (name.empty())
                notValid("PARAMVALUE without NAME");
            checkParamCount(request._params);
            if (request.param(name))
                notValid("PARAMVALUE " + name + " given twice");
            request._params.push_back({name, p.attribute("PARAMTYPE").value(), p});
        }
    } else {
        notValid("SIMPLEREQ holds neither IMETHODCALL nor METHODCALL");
    }
    return request;
}

} // namespace Cimom
