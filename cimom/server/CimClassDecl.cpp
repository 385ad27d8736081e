#include "CimClassDecl.h"

#include <strings.h>

namespace Cimom {

namespace {
// Every property of every instance written is looked up here; names of
// another length are told apart without reading them.
bool sameName(std::string const& a, std::string const& b) {
    return a.size() == b.size() && strcasecmp(a.c_str(), b.c_str()) == 0;
}
} // namespace

// CIM names are case-insensitive everywhere, so every lookup ignores case.
CimClassDecl::Property const* CimClassDecl::findProperty(std::string const& propertyName) const {
    for (auto const& p : properties)
        if (sameName(p.name, propertyName))
            return &p;
    return nullptr;
}

CimClassDecl::Method const* CimClassDecl::findMethod(std::string const& methodName) const {
    for (auto const& m : methods)
        if (sameName(m.name, methodName))
            return &m;
    return nullptr;
}

bool CimClassDecl::hasQualifier(std::string const& qualifierName) const {
    for (auto const& q : qualifiers)
        if (sameName(q.name, qualifierName))
            return q.value.items.empty() || q.value.items[0].text != "false";
    return false;
}

} // namespace Cimom
