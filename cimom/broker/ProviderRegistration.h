#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace Cimom {

// One provider of a registration file: which library serves which classes,
// in which namespaces, through which CMPI interfaces.
struct ProviderRegistration {
    enum class Kind { Instance, Association, Method, Indication };

    std::string name;    // passed to the _Generic_Create_<Kind>MI entry points
    std::string library; // "QLNVeldra" means libQLNVeldra.so; a path if it has a '/'
    std::vector<std::string> namespaces;
    std::vector<std::string> classes;
    std::vector<Kind> kinds;

    bool has(Kind kind) const { return std::find(kinds.begin(), kinds.end(), kind) != kinds.end(); }
};

} // namespace Cimom
