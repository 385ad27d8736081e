#pragma once

#include <pugixml.hpp>

#include <memory>

#include <string>
#include <vector>

namespace Cimom {

// One parsed CIM-XML SIMPLEREQ. It owns the document; the parameter nodes
// point into it and live as long as the request.
class CimRequest {
public:
    struct Param {
        std::string name;
        std::string paramType; // PARAMTYPE of an extrinsic PARAMVALUE, often empty
        pugi::xml_node node;   // the IPARAMVALUE or PARAMVALUE element
    };

    // Throws CimProtocolError for malformed, too deep or structurally wrong input.
    static CimRequest parse(std::string const& body, int maxDepth);

    CimRequest(CimRequest&&) = default;
    CimRequest& operator=(CimRequest&&) = default;

    std::string const& messageId() const { return _messageId; }
    bool intrinsic() const { return _intrinsic; }
    std::string const& methodName() const { return _methodName; }
    std::string const& nameSpace() const { return _nameSpace; }
    // LOCALINSTANCEPATH or LOCALCLASSPATH of an extrinsic call.
    pugi::xml_node target() const { return _target; }
    std::vector<Param> const& params() const { return _params; }
    Param const* param(std::string const& name) const;

    // Who sent it (the peer's address), for state kept per client.
    std::string const& client() const { return _client; }
    void setClient(std::string client) { _client = std::move(client); }

    // "a/b" from <LOCALNAMESPACEPATH><NAMESPACE NAME="a"/><NAMESPACE NAME="b"/>.
    static std::string namespaceOf(pugi::xml_node localNamespacePath);

private:
    CimRequest() : _doc(std::make_unique<pugi::xml_document>()) {}

    std::unique_ptr<pugi::xml_document> _doc;
    std::string _messageId;
    bool _intrinsic = true;
    std::string _methodName;
    std::string _nameSpace;
    pugi::xml_node _target;
    std::vector<Param> _params;
    std::string _client;
};

} // namespace Cimom
