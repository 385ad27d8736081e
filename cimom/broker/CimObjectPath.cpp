#include "CimObjectPath.h"

#include <algorithm>
#include <cstdint>
#include <functional>

#include "CimError.h"
#include "CimName.h"

namespace Cimom {

namespace {

std::string quoted(std::string const& s) {
    std::string out = "\"";
    for (char c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
        }
        out += c;
    }
    return out + "\"";
}

[[noreturn]] void badPath(std::string_view text, std::string const& why) {
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                   "malformed object path \"" + std::string(text) + "\": " + why);
}

bool isNameChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

CimObjectPath::CimObjectPath(std::string nameSpace, std::string className)
    : _nameSpace(std::move(nameSpace)), _className(std::move(className)) {}

void CimObjectPath::addKey(std::string name, CimValue value) {
    for (Key& k : _keys) {
        if (CimName::equal(k.name, name)) {
            k.value = std::move(value);
            return;
        }
    }
    _keys.push_back(Key{std::move(name), std::move(value)});
}

CimValue const* CimObjectPath::key(std::string_view name) const {
    for (Key const& k : _keys) {
        if (CimName::equal(k.name, name)) {
            return &k.value;
        }
    }
    return nullptr;
}

bool CimObjectPath::operator==(CimObjectPath const& other) const {
    if (!CimName::equal(_className, other._className) || _keys.size() != other._keys.size()) {
        return false;
    }
    for (Key const& k : _keys) {
        CimValue const* v = other.key(k.name);
        if (v == nullptr || !k.value.sameKeyValue(*v)) {
            return false;
        }
    }
    return true;
}

namespace {
// Agrees with CimValue::sameKeyValue: integers by value whatever their
// width, references as paths, texts as they stand; other kinds add nothing.
std::size_t keyValueHash(CimValue const& v) {
    if (v.isNull()) {
        return 0;
    }
    if (v.isInteger()) {
        if (v.isSigned() && v.asSigned() < 0) {
            return std::hash<std::int64_t>()(v.asSigned());
        }
        return std::hash<std::uint64_t>()(v.asUnsigned());
    }
    if (v.type() == CMPI_ref) {
        return v.asReference().hash();
    }
    if (v.type() == CMPI_string || v.type() == CMPI_dateTime || v.type() == CMPI_char16) {
        return std::hash<std::string>()(v.toText());
    }
    return 0;
}
} // namespace

// Key values take part, or every instance of a class would share one bucket
// and a set of paths would compare each new path with all the others.
std::size_t CimObjectPath::hash() const {
    std::size_t keys = 0;
    for (Key const& k : _keys) {
        // A sum does not depend on the order the keys came in.
        keys += CimName::hash(CimName::lower(k.name)) * 31 + keyValueHash(k.value);
    }
    return CimName::hash(_className) * 1000003u + keys;
}

std::string CimObjectPath::toString() const {
    std::string out;
    if (!_host.empty()) {
        out += "//" + _host + "/";
    }
    if (!_nameSpace.empty()) {
        out += _nameSpace + ":";
    }
    out += _className;
    for (std::size_t i = 0; i < _keys.size(); ++i) {
        Key const& k = _keys[i];
        out += (i == 0 ? "." : ",") + k.name + "=";
        CimValue const& v = k.value;
        if (v.isNull()) {
            out += "\"\"";
        } else if (v.type() == CMPI_ref) {
            out += quoted(v.asReference().toString());
        } else if (v.type() == CMPI_string || v.type() == CMPI_dateTime ||
                   v.type() == CMPI_char16) {
            out += quoted(v.toText());
        } else {
            out += v.toText();
        }
    }
    return out;
}

CimObjectPath CimObjectPath::parse(std::string_view text) {
    CimObjectPath path;
    std::string_view rest = text;
    if (rest.substr(0, 2) == "//") {
        std::size_t const slash = rest.find('/', 2);
        if (slash == std::string_view::npos) {
            badPath(text, "host without namespace");
        }
        path._host = std::string(rest.substr(2, slash - 2));
        rest.remove_prefix(slash + 1);
    }
    // The namespace ends at the first ':' that comes before any key part.
    std::size_t const dot = rest.find('.');
    std::size_t const colon = rest.find(':');
    if (colon != std::string_view::npos && (dot == std::string_view::npos || colon < dot)) {
        path._nameSpace = std::string(rest.substr(0, colon));
        rest.remove_prefix(colon + 1);
    }
    std::size_t i = 0;
    while (i < rest.size() && isNameChar(rest[i])) {
        ++i;
    }
    if (i == 0) {
        badPath(text, "no class name");
    }
    path._className = std::string(rest.substr(0, i));
    rest.remove_prefix(i);
    if (rest.empty()) {
        return path;
    }
    if (rest[0] != '.') {
        badPath(text, "unexpected text after the class name");
    }
    rest.remove_prefix(1);
    while (true) {
        std::size_t n = 0;
        while (n < rest.size() && isNameChar(rest[n])) {
            ++n;
        }
        if (n == 0 || n >= rest.size() || rest[n] != '=') {
            badPath(text, "key without name or '='");
        }
        std::string name(rest.substr(0, n));
        rest.remove_prefix(n + 1);
        CimValue value;
        if (!rest.empty() && rest[0] == '"') {
            std::string s;
            std::size_t j = 1;
            for (; j < rest.size() && rest[j] != '"'; ++j) {
                if (rest[j] == '\\' && j + 1 < rest.size()) {
                    ++j;
                }
                s += rest[j];
            }
            if (j >= rest.size()) {
                badPath(text, "unterminated quoted value");
            }
            value = CimValue::string(std::move(s));
            rest.remove_prefix(j + 1);
        } else {
            std::size_t const end = std::min(rest.find(','), rest.size());
            std::string_view const raw = rest.substr(0, end);
            if (CimName::equal(raw, "true") || CimName::equal(raw, "false")) {
                value = CimValue::fromText(CMPI_boolean, raw);
            } else {
                try {
                    value = CimValue::fromText(CMPI_sint64, raw);
                } catch (CimError const&) {
                    try {
                        value = CimValue::fromText(CMPI_uint64, raw);
                    } catch (CimError const&) {
                        badPath(text, "key value \"" + std::string(raw) + "\" is not a number");
                    }
                }
            }
            rest.remove_prefix(end);
        }
        path.addKey(std::move(name), std::move(value));
        if (rest.empty()) {
            return path;
        }
        if (rest[0] != ',') {
            badPath(text, "expected ',' between keys");
        }
        rest.remove_prefix(1);
    }
}

} // namespace Cimom
