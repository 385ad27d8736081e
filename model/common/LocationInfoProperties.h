#pragma once
// LocationInformation and LocationInfoDesc, the two parallel arrays that
// spell a location out part by part, outermost first, e.g. ("PCI Slot", 3).
#include "CmpiInstance.h"
#include "physloc.h"

#include <string>
#include <vector>

namespace QLN {

class LocationInfoProperties {
public:
    static void add(CmpiCpp::CmpiInstance& instance, physloc_t const& location);
    // The same from a location already written out, e.g. "Box 1 on PCI Slot 3".
    static void add(CmpiCpp::CmpiInstance& instance, std::string const& location);

private:
    static void _add(CmpiCpp::CmpiInstance& instance, std::vector<std::string> const& names,
                     std::vector<unsigned short> const& numbers);
};

} // namespace QLN
