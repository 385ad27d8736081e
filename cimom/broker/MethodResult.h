#pragma once

#include <string>
#include <utility>
#include <vector>

#include "CimValue.h"

namespace Cimom {

// What an extrinsic method call gives back: the return value (null when the
// provider returned none) and the output arguments in order.
struct MethodResult {
    CimValue returnValue;
    std::vector<std::pair<std::string, CimValue>> outArgs;
};

} // namespace Cimom
