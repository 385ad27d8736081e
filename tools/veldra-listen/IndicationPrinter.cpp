#include "IndicationPrinter.h"

#include "XmlText.h"

#include <nlohmann/json.hpp>
#include <pugixml.hpp>

#include <stdexcept>

namespace {

// Text for one line: quotes and backslashes escaped, line breaks written out.
std::string quoted(std::string const& text) {
    std::string out = "\"";
    for (char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else
            out += c;
    }
    return out + "\"";
}

} // namespace

std::string IndicationPrinter::line(std::string const& request,
                                    std::string const& receivedAt) const {
    pugi::xml_document doc;
    if (!doc.load_string(request.c_str()))
        throw std::invalid_argument("not XML");
    pugi::xml_node call = doc.select_node("/CIM/MESSAGE/SIMPLEEXPREQ/EXPMETHODCALL").node();
    if (!call || std::string(call.attribute("NAME").value()) != "ExportIndication")
        throw std::invalid_argument("not an ExportIndication request");
    pugi::xml_node instance = call.select_node("EXPPARAMVALUE/INSTANCE").node();
    if (!instance)
        throw std::invalid_argument("ExportIndication without an INSTANCE");

    nlohmann::ordered_json properties = nlohmann::ordered_json::object();
    std::string text;
    for (pugi::xml_node property : instance.children()) {
        std::string tag = property.name();
        std::string name = property.attribute("NAME").value();
        if (tag == "PROPERTY") {
            pugi::xml_node value = property.child("VALUE");
            if (!value)
                continue; // null properties are left out of the line
            properties[name] = value.text().get();
            text += " " + name + "=" + quoted(value.text().get());
        } else if (tag == "PROPERTY.ARRAY") {
            pugi::xml_node array = property.child("VALUE.ARRAY");
            if (!array)
                continue;
            nlohmann::ordered_json values = nlohmann::ordered_json::array();
            std::string joined;
            for (pugi::xml_node value : array.children("VALUE")) {
                values.push_back(value.text().get());
                joined += (joined.empty() ? "" : ",") + quoted(value.text().get());
            }
            properties[name] = values;
            text += " " + name + "={" + joined + "}";
        }
    }
    std::string className = instance.attribute("CLASSNAME").value();
    if (!_json)
        return receivedAt + " " + className + text;
    nlohmann::ordered_json out{
        {"received", receivedAt}, {"class", className}, {"properties", properties}};
    return out.dump();
}

std::string IndicationPrinter::response(std::string const& messageId, std::string const& error) {
    std::string body =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<CIM CIMVERSION=\"2.0\" "
        "DTDVERSION=\"2.0\"><MESSAGE ID=\"" +
        escapedXml(messageId) +
        "\" PROTOCOLVERSION=\"1.0\"><SIMPLEEXPRSP><EXPMETHODRESPONSE NAME=\"ExportIndication\">";
    if (!error.empty())
        body += "<ERROR CODE=\"4\" DESCRIPTION=\"" + escapedXml(error) + "\"/>";
    return body + "</EXPMETHODRESPONSE></SIMPLEEXPRSP></MESSAGE></CIM>";
}
