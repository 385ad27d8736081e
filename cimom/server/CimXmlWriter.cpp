#include "CimXmlWriter.h"

#include <stdexcept>
#include <utility>

CimXmlWriter::Attributes::Attributes(std::initializer_list<Attribute> items) : _size(0) {
    for (const Attribute& a : items) add(a.name, a.value);
}

void CimXmlWriter::Attributes::add(std::string_view name, std::string_view value) {
    if (_size == _items.size()) throw std::logic_error("CimXmlWriter: too many attributes");
    _items[_size++] = Attribute{name, value};
}

CimXmlWriter::CimXmlWriter(bool declaration) {
    if (declaration) _out = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
}

namespace {

// What a character becomes in XML text, or null when it stands as it is.
const char* replacement(char c) {
    switch (c) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        case '\'': return "&apos;";
        case '\t':
        case '\n':
        case '\r': return nullptr;
        default:
            // XML 1.0 cannot carry other control characters, and the client
            // reads no numeric references; a space keeps the text readable.
            return static_cast<unsigned char>(c) < 0x20 ? " " : nullptr;
    }
}

}  // namespace

void CimXmlWriter::_escapeInto(std::string_view content) {
    // Which characters need a replacement, looked up rather than switched on:
    // every byte of a megabyte answer passes here.
    static const std::array<bool, 256> special = [] {
        std::array<bool, 256> table{};
        for (int c = 0; c < 256; ++c) table[c] = replacement(static_cast<char>(c)) != nullptr;
        return table;
    }();
    // Plain runs are copied whole; most values need no escaping at all.
    std::size_t run = 0;
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (!special[static_cast<unsigned char>(content[i])]) continue;
        _out.append(content.data() + run, i - run);
        _out += replacement(content[i]);
        run = i + 1;
    }
    _out.append(content.data() + run, content.size() - run);
}

std::string CimXmlWriter::escape(std::string_view content) {
    CimXmlWriter w(false);
    w._escapeInto(content);
    return w.take();
}

void CimXmlWriter::_startTag(std::string_view tag, const Attributes& attributes) {
    _out += '<';
    _out += tag;
    for (const Attribute& a : attributes) {
        _out += ' ';
        _out += a.name;
        _out += "=\"";
        _escapeInto(a.value);
        _out += '"';
    }
}

CimXmlWriter& CimXmlWriter::open(std::string_view tag, const Attributes& attributes) {
    _startTag(tag, attributes);
    _out += '>';
    _open.push_back(tag);
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
    _escapeInto(content);
    return *this;
}

CimXmlWriter& CimXmlWriter::element(std::string_view tag, std::string_view content, const Attributes& attributes) {
    open(tag, attributes);
    text(content);
    return close();
}

void CimXmlWriter::rollback(const Mark& mark) {
    if (mark.length > _out.size() || mark.depth > _open.size())
        throw std::logic_error("CimXmlWriter: rollback past what was written");
    _out.resize(mark.length);
    _open.resize(mark.depth);
}

std::string CimXmlWriter::take() {
    std::string out = std::move(_out);
    _out.clear();
    _open.clear();
    return out;
}
