#include "CimXmlWriter.h"

#include <stdexcept>
#include <utility>

namespace Cimom {

CimXmlWriter::Attributes::Attributes(std::initializer_list<Attribute> items) : _size(0) {
    for (Attribute const& a : items)
        add(a.name, a.value);
}

void CimXmlWriter::Attributes::add(std::string_view name, std::string_view value) {
    if (_size == _items.size())
        throw std::logic_error("CimXmlWriter: too many attributes");
    _items[_size++] = Attribute{name, value};
}

CimXmlWriter::CimXmlWriter(bool declaration) {
    if (declaration)
        _out = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
}

namespace {

// What a character becomes in XML text, or null when it stands as it is.
char const* replacement(char c) {
    switch (c) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&apos;";
    case '\t':
    case '\n':
    case '\r':
        return nullptr;
    default:
        // XML 1.0 cannot carry other control characters, and the client
        // reads no numeric references; a space keeps the text readable.
        return static_cast<unsigned char>(c) < 0x20 ? " " : nullptr;
    }
}

} // namespace

void CimXmlWriter::_escapeInto(std::string_view content) {
    // Which characters need a replacement, looked up rather than switched on:
    // every byte of a megabyte answer passes here.
    static std::array<bool, 256> const special = [] {
        std::array<bool, 256> table{};
        for (int c = 0; c < 256; ++c)
            table[c] = replacement(static_cast<char>(c)) != nullptr;
        return table;
    }();
    // Plain runs are copied whole; most values need no escaping at all.
    std::size_t run = 0;
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (!special[static_cast<unsigned char>(content[i])])
            continue;
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

std::string CimXmlWriter::xmlSafe(std::string_view text) {
    static constexpr char replacement[] = "\xEF\xBF\xBD";
    auto allowed = [](char32_t c) {
        return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
               (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
    };
    std::string out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        auto const lead = static_cast<unsigned char>(text[i]);
        std::size_t length = lead < 0x80           ? 1
                             : (lead >> 5) == 0x6  ? 2
                             : (lead >> 4) == 0xE  ? 3
                             : (lead >> 3) == 0x1E ? 4
                                                   : 0;
        char32_t c = length == 1   ? lead
                     : length == 2 ? lead & 0x1F
                     : length == 3 ? lead & 0x0F
                                   : lead & 0x07;
        bool valid = length != 0 && i + length <= text.size();
        for (std::size_t k = 1; valid && k < length; ++k) {
            auto const next = static_cast<unsigned char>(text[i + k]);
            valid = (next & 0xC0) == 0x80;
            c = (c << 6) | (next & 0x3F);
        }
        // The shortest form only: an overlong sequence could hide a '<'.
        static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        if (valid && c >= smallest[length] && allowed(c)) {
            out.append(text.substr(i, length));
            i += length;
        } else if (length == 1) {
            out += ' '; // a control character, as the escaper would write it
            ++i;
        } else {
            out += replacement;
            i += valid ? length : 1;
        }
    }
    return out;
}

void CimXmlWriter::_startTag(std::string_view tag, Attributes const& attributes) {
    _out += '<';
    _out += tag;
    for (Attribute const& a : attributes) {
        _out += ' ';
        _out += a.name;
        _out += "=\"";
        _escapeInto(a.value);
        _out += '"';
    }
}

CimXmlWriter& CimXmlWriter::open(std::string_view tag, Attributes const& attributes) {
    if (_spans && _open.size() == _spanDepth)
        _spans->push_back({_out.size(), _out.size()});
    _startTag(tag, attributes);
    _out += '>';
    _open.push_back(tag);
    return *this;
}

CimXmlWriter& CimXmlWriter::close() {
    if (_open.empty())
        throw std::logic_error("CimXmlWriter: close without open");
    _out += "</";
    _out += _open.back();
    _out += '>';
    _open.pop_back();
    if (_spans && _open.size() == _spanDepth)
        _spans->back().end = _out.size();
    return *this;
}

CimXmlWriter& CimXmlWriter::empty(std::string_view tag, Attributes const& attributes) {
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

CimXmlWriter& CimXmlWriter::element(std::string_view tag, std::string_view content,
                                    Attributes const& attributes) {
    open(tag, attributes);
    text(content);
    return close();
}

void CimXmlWriter::rollback(Mark const& mark) {
    if (mark.length > _sent + _out.size() || mark.depth > _open.size())
        throw std::logic_error("CimXmlWriter: rollback past what was written");
    if (!canRollback(mark))
        throw std::logic_error("CimXmlWriter: rollback into a part already sent");
    _out.resize(mark.length - _sent);
    _open.resize(mark.depth);
    while (_spans && !_spans->empty() && _spans->back().begin >= mark.length)
        _spans->pop_back();
}

void CimXmlWriter::_sendPart() {
    std::string part = std::move(_out);
    // The next part is about as long; room for it at once spares regrowing.
    _out = std::string();
    _out.reserve(part.size() + part.size() / 8);
    _sent += part.size();
    _send(std::move(part));
}

std::string CimXmlWriter::take() {
    std::string out = std::move(_out);
    _out.clear();
    _open.clear();
    return out;
}

} // namespace Cimom
