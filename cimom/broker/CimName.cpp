#include "CimName.h"

#include <algorithm>
#include <functional>

namespace Cimom {

bool CimName::less(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return lowerChar(x) < lowerChar(y); });
}

std::string CimName::lower(std::string_view name) {
    std::string out(name);
    std::transform(out.begin(), out.end(), out.begin(), lowerChar);
    return out;
}

std::size_t CimName::hash(std::string_view name) {
    return std::hash<std::string>{}(lower(name));
}

} // namespace Cimom
