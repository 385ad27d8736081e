#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// CIM names (classes, properties, keys, methods) compare without regard to
// ASCII case. One place for that rule, so that paths, instances and the
// provider registry agree.
class CimName {
public:
    static bool equal(std::string_view a, std::string_view b);
    static bool less(std::string_view a, std::string_view b);
    static std::string lower(std::string_view name);
    static std::size_t hash(std::string_view name);
};
