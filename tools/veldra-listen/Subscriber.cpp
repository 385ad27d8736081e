#include "Subscriber.h"

#include "XmlText.h"

#include <httplib.h>
#include <pugixml.hpp>

#include <sstream>
#include <stdexcept>

namespace {

std::string property(char const* name, std::string const& value) {
    return std::string("<PROPERTY NAME=\"") + name + "\" TYPE=\"string\"><VALUE>" +
           escapedXml(value) + "</VALUE></PROPERTY>";
}

std::string reference(char const* name, char const* type, std::string const& instanceName) {
    return std::string("<PROPERTY.REFERENCE NAME=\"") + name + "\" REFERENCECLASS=\"" + type +
           "\"><VALUE.REFERENCE>" + instanceName + "</VALUE.REFERENCE></PROPERTY.REFERENCE>";
}

std::string newInstance(char const* cls, std::string const& properties) {
    return std::string("<IPARAMVALUE NAME=\"NewInstance\"><INSTANCE CLASSNAME=\"") + cls + "\">" +
           properties + "</INSTANCE></IPARAMVALUE>";
}

} // namespace

Subscriber::Subscriber(std::string cimom, std::string user, std::string password)
    : _cimom(std::move(cimom)), _user(std::move(user)), _password(std::move(password)) {}

std::string Subscriber::_call(std::string const& method, std::string const& params) {
    std::string body = "<?xml version=\"1.0\" encoding=\"utf-8\"?><CIM CIMVERSION=\"2.0\" "
                       "DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
                       "PROTOCOLVERSION=\"1.0\"><SIMPLEREQ><IMETHODCALL NAME=\"" +
                       method +
                       "\"><LOCALNAMESPACEPATH><NAMESPACE NAME=\"root\"/><NAMESPACE "
                       "NAME=\"interop\"/></LOCALNAMESPACEPATH>" +
                       params + "</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>";
    httplib::Client client(_cimom);
    client.set_connection_timeout(10, 0);
    client.set_read_timeout(30, 0);
    if (!_user.empty())
        client.set_basic_auth(_user, _password);
    httplib::Headers headers{
        {"CIMOperation", "MethodCall"}, {"CIMMethod", method}, {"CIMObject", "root%2Finterop"}};
    auto reply = client.Post("/cimom", headers, body, "application/xml; charset=\"utf-8\"");
    if (!reply)
        throw std::runtime_error(method + ": no answer from " + _cimom + " (" +
                                 httplib::to_string(reply.error()) + ")");
    if (reply->status != 200)
        throw std::runtime_error(method + ": HTTP " + std::to_string(reply->status) + " from " +
                                 _cimom);
    pugi::xml_document doc;
    if (!doc.load_string(reply->body.c_str()))
        throw std::runtime_error(method + ": the answer is not XML");
    pugi::xml_node response = doc.select_node("//IMETHODRESPONSE").node();
    if (pugi::xml_node error = response.child("ERROR"))
        throw std::runtime_error(method + " failed: " + error.attribute("CODE").value() + " " +
                                 error.attribute("DESCRIPTION").value());
    std::ostringstream out;
    for (pugi::xml_node child : response.child("IRETURNVALUE").children())
        child.print(out, "", pugi::format_raw);
    return out.str();
}

void Subscriber::subscribe(std::string const& name, std::string const& query,
                           std::string const& listenerUrl, std::string const& sourceNamespace) {
    try {
        _filter =
            _call("CreateInstance", newInstance("CIM_IndicationFilter",
                                                property("Name", name) + property("Query", query) +
                                                    property("QueryLanguage", "WQL") +
                                                    property("SourceNamespace", sourceNamespace)));
        _destination =
            _call("CreateInstance",
                  newInstance("CIM_ListenerDestinationCIMXML",
                              property("Name", name) + property("Destination", listenerUrl)));
        _subscription =
            _call("CreateInstance",
                  newInstance("CIM_IndicationSubscription",
                              reference("Filter", "CIM_IndicationFilter", _filter) +
                                  reference("Handler", "CIM_ListenerDestination", _destination)));
    } catch (...) {
        unsubscribe();
        throw;
    }
}

void Subscriber::unsubscribe() {
    for (std::string* made : {&_subscription, &_destination, &_filter}) {
        if (made->empty())
            continue;
        try {
            _call("DeleteInstance",
                  "<IPARAMVALUE NAME=\"InstanceName\">" + *made + "</IPARAMVALUE>");
        } catch (std::exception const&) {
        }
        made->clear();
    }
}
