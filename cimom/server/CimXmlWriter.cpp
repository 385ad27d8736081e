#include "CimXmlWriter.h"

#include <stdexcept>

CimXmlWriter::CimXmlWriter() { _out = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"; }

std::string CimXmlWriter::escape(std::string_view content) {
    std::string out;
    out.reserve(content.size());
    for (char c : content) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            case '\'': out += "&apos;"; break;
            default:
                // XML 1.0 cannot carry other control characters, and the client
                // reads no numeric references; a space keeps the text readable.
                if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r')
                    out += ' ';
                else
                    out += c;
        }
    }
    return out;
}

void CimXmlWriter::_startTag(std::string_view tag, const Attributes& attributes) {
    _out += '<';
    _out += tag;
    for (const auto& [name, value] : attributes) {
        _out += ' ';
        _out += name;
        _out += "=\"";
        _out += escape(value);
        _out += '"';
    }
}

CimXmlWriter& CimXmlWriter::open(std::string_view tag, const Attributes& attributes) {
    _startTag(tag, attributes);
    _out += '>';
    _open.emplace_back(tag);
    return *this;
}

CimXmlWriter& CimXmlWriter::close() {
    if (_open.empty()) throw std::logic_error("CimXmlWriter: close without open");
    _out += "</";
    _out += _open.back();
    _out += '>';
    _open.pop_back();
    return *this;
}

CimXmlWriter& CimXmlWriter::empty(std::string_view tag, const Attributes& attributes) {
    _startTag(tag, attributes);
    if (tag == "NAMESPACE" || tag == "CLASSNAME" || tag == "ERROR") {
        _out += "/>";
    } else {
        _out += "></";
        _out += tag;
        _out += '>';
    }
    return *this;
}

CimXmlWriter& CimXmlWriter::text(std::string_view content) {
    _out += escape(content);
    return *this;
}

CimXmlWriter& CimXmlWriter::element(std::string_view tag, std::string_view content, const Attributes& attributes) {
    open(tag, attributes);
    text(content);
    return close();
}
