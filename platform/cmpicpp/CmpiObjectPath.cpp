#include "CmpiObjectPath.h"

#include "CmpiStatus.h"

#include <algorithm>
#include <functional>

namespace CmpiCpp {

namespace {
void appendFolded(std::string& out, std::string const& name) {
    std::size_t const at = out.size();
    out += name;
    for (std::size_t i = at; i < out.size(); ++i) {
        char const c = out[i];
        if (c >= 'A' && c <= 'Z')
            out[i] = static_cast<char>(c - 'A' + 'a');
    }
}
} // namespace

CmpiObjectPath::CmpiObjectPath(CmpiName const& nameSpace, CmpiName const& className)
    : _nameSpace(nameSpace), _className(className) {}

void CmpiObjectPath::addKey(CmpiName const& name, std::string const& value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, char const* value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, CmpiObjectPath const& value) {
    _setKey(name, CmpiData(value));
}
void CmpiObjectPath::addKey(CmpiName const& name, bool value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, unsigned char value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, unsigned short value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, unsigned int value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, int value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, unsigned long value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, unsigned long long value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, long value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, long long value) {
    _setKey(name, value);
}
void CmpiObjectPath::addKey(CmpiName const& name, CmpiData const& value) {
    _setKey(name, value);
}

void CmpiObjectPath::_setKey(CmpiName const& name, CmpiData const& value) {
    for (auto& key : _keys) {
        if (key.first == name) {
            key.second = value;
            return;
        }
    }
    _keys.emplace_back(name, value);
}

bool CmpiObjectPath::hasKey(CmpiName const& name) const {
    return std::any_of(_keys.begin(), _keys.end(), [&](auto const& k) { return k.first == name; });
}

CmpiData const& CmpiObjectPath::getKey(CmpiName const& name) const {
    for (auto const& key : _keys)
        if (key.first == name)
            return key.second;
    throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "no key " + name.str() + " in " + str());
}

CmpiName const& CmpiObjectPath::getKeyNameAt(unsigned int index) const {
    if (index >= _keys.size())
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "no key at index " + std::to_string(index));
    return _keys[index].first;
}

CmpiData const& CmpiObjectPath::getKeyAt(unsigned int index) const {
    if (index >= _keys.size())
        throw CmpiStatus(CMPI_RC_ERR_NOT_FOUND, "no key at index " + std::to_string(index));
    return _keys[index].second;
}

bool CmpiObjectPath::empty() const {
    return _nameSpace.empty() && _className.empty() && _keys.empty();
}

std::string CmpiObjectPath::str() const {
    std::string out;
    if (!_host.empty())
        out += "//" + _host.str() + "/";
    if (!_nameSpace.empty())
        out += _nameSpace.str() + ":";
    out += _className.str();
    char sep = '.';
    for (auto const& [name, value] : _keys) {
        out += sep;
        sep = ',';
        out += name.str() + "=";
        // Strings and references are quoted; a nested path's own quotes are
        // escaped so the text stays unambiguous.
        if (value.getType() == CMPI_string || value.getType() == CMPI_ref) {
            std::string const text = value.isNull() ? std::string() : value.str();
            out += '"';
            for (char c : text) {
                if (c == '"' || c == '\\')
                    out += '\\';
                out += c;
            }
            out += '"';
        } else {
            out += value.str();
        }
    }
    return out;
}

std::string CmpiObjectPath::canonicalKey() const {
    // Built in a reused buffer and copied at its exact size: the collection
    // keeps a key for each of its instances and ends.
    thread_local std::string scratch;
    scratch.clear();
    appendCanonicalKey(scratch);
    return scratch;
}

namespace {
// The canonical text of a class and its keys: folded class name, then the
// keys in folded-name order, each as folded name, '=' and its value's text.
// Paths have a handful of keys, and a graph build makes hundreds of
// thousands of these, so the order is sorted in place on the stack.
template <typename NameAt, typename AppendValue>
void appendKeyText(std::string& out, CmpiName const& className, std::size_t count, NameAt nameAt,
                   AppendValue appendValue) {
    constexpr std::size_t few = 16;
    std::size_t onStack[few];
    std::vector<std::size_t> onHeap(count > few ? count : 0);
    std::size_t* order = onHeap.empty() ? onStack : onHeap.data();
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t j = i;
        while (j > 0 && nameAt(i) < nameAt(order[j - 1])) {
            order[j] = order[j - 1];
            --j;
        }
        order[j] = i;
    }
    appendFolded(out, className.str());
    char sep = '.';
    for (std::size_t k = 0; k < count; ++k) {
        out += sep;
        sep = ',';
        appendFolded(out, nameAt(order[k]).str());
        out += '=';
        appendValue(order[k]);
    }
}
} // namespace

void CmpiObjectPath::appendCanonicalKey(std::string& out) const {
    // A path never holds one name twice, so the order is total.
    appendKeyText(
        out, _className, _keys.size(),
        [this](std::size_t i) -> CmpiName const& { return _keys[i].first; },
        [&](std::size_t i) { _keys[i].second.appendKeyText(out); });
}

void CmpiObjectPath::appendCanonicalKey(std::string& out, CmpiName const& className,
                                        ReferenceKey const* keys, std::size_t count) {
    appendKeyText(
        out, className, count, [keys](std::size_t i) -> CmpiName const& { return *keys[i].name; },
        [&](std::size_t i) {
            // As CmpiData::appendKeyText writes a reference.
            out += '{';
            out += *keys[i].target;
            out += '}';
        });
}

std::size_t CmpiObjectPath::hash() const {
    return std::hash<std::string>{}(canonicalKey());
}

bool CmpiObjectPath::operator==(CmpiObjectPath const& other) const {
    if (!(_className == other._className) || _keys.size() != other._keys.size())
        return false;
    for (auto const& key : _keys) {
        // Not a structured binding: clang 14 cannot capture one in a lambda.
        auto it = std::find_if(other._keys.begin(), other._keys.end(),
                               [&](auto const& k) { return k.first == key.first; });
        if (it == other._keys.end() || key.second.keyText() != it->second.keyText())
            return false;
    }
    return true;
}

CmpiObjectPath makeCmpiObjectPath(CmpiBroker const&, CmpiName const& nameSpace,
                                  CmpiName const& className) {
    return CmpiObjectPath(nameSpace, className);
}

CmpiObjectPath makeCmpiObjectPath(CmpiBroker const&) {
    return CmpiObjectPath();
}

} // namespace CmpiCpp
