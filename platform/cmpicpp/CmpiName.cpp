#include "CmpiName.h"

#include <algorithm>
#include <functional>
#include <strings.h>

namespace CmpiCpp {

namespace {
char foldChar(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}
} // namespace

CmpiName::CmpiName(char const* name) : _name(name ? name : "") {}

CmpiName::CmpiName(std::string const& name) : _name(name) {}

bool CmpiName::operator<(CmpiName const& other) const {
    return std::lexicographical_compare(_name.begin(), _name.end(), other._name.begin(),
                                        other._name.end(),
                                        [](char a, char b) { return foldChar(a) < foldChar(b); });
}

std::string CmpiName::folded() const {
    std::string out(_name);
    std::transform(out.begin(), out.end(), out.begin(), foldChar);
    return out;
}

std::size_t CmpiName::hash() const {
    return std::hash<std::string>{}(folded());
}

} // namespace CmpiCpp
