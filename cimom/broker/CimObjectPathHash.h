#pragma once

#include <cstddef>

#include "CimObjectPath.h"

namespace Cimom {

// Hash of a path for unordered containers, consistent with its operator==.
struct CimObjectPathHash {
    std::size_t operator()(CimObjectPath const& p) const { return p.hash(); }
};

} // namespace Cimom
