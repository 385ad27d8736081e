#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Cimom {

// CIM names (classes, properties, keys, methods) compare without regard to
// ASCII case. One place for that rule, so that paths, instances and the
// provider registry agree.
class CimName {
public:
    // Inline: every property set and looked up compares names, and most
    // differ in length.
    static bool equal(std::string_view a, std::string_view b) {
        if (a.size() != b.size())
            return false;
        for (std::size_t i = 0; i < a.size(); ++i)
            if (a[i] != b[i] && lowerChar(a[i]) != lowerChar(b[i]))
                return false;
        return true;
    }
    static bool less(std::string_view a, std::string_view b);
    static std::string lower(std::string_view name);
    static std::size_t hash(std::string_view name);

private:
    static char lowerChar(char c) {
        return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    }
};

} // namespace Cimom
