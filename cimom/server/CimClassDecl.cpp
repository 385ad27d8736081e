#include "CimClassDecl.h"

#include <strings.h>

namespace {
// Every property of every instance written is looked up here; names of
// another length are told apart without reading them.
bool sameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && strcasecmp(a.c_str(), b.c_str()) == 0;
}
}  // namespace

// CIM names are case-insensitive everywhere, so every lookup ignores case.
const CimClassDecl::Property* CimClassDecl::findProperty(const std::string& propertyName) const {
    for (const auto& p : properties)
        if (sameName(p.name, propertyName)) return &p;
    return nullptr;
}

const CimClassDecl::Method* CimClassDecl::findMethod(const std::string& methodName) const {
    for (const auto& m : methods)
        if (sameName(m.name, methodName)) return &m;
    return nullptr;
}

bool CimClassDecl::hasQualifier(const std::string& qualifierName) const {
    for (const auto& q : qualifiers)
        if (sameName(q.name, qualifierName)) return q.value.items.empty() || q.value.items[0].text != "false";
    return false;
}
