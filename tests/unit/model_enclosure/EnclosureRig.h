#pragma once
// The scenario rig over one controller's enclosures, and the look-up of one
// stored enclosure by its box number.
#include "ArrayTestSupport.h"
#include "CmpiStatus.h"
#include "VeldraStorageFunctions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class EnclosureRig : public ScenarioRig {
public:
    // `physloc` and `enclosures` are YAML flow texts for controller 1.
    EnclosureRig(std::string const& enclosures, std::string const& physloc = "[5, 3]")
        : ScenarioRig(controllerList, yaml(enclosures, physloc)) {}

    static std::string yaml(std::string const& enclosures, std::string const& physloc = "[5, 3]") {
        return "  - serialNumber: PENC0001\n    physloc: " + physloc + "\n    enclosures: [" +
               enclosures + "]\n";
    }

    void replace(std::string const& enclosures) { change(controllerList, yaml(enclosures)); }

    VeldraEnclosure stored(u32 enclosureBoxNumber) {
        std::vector<VeldraEnclosure> all = controller()->getLastAllEnclosures();
        int at = findEnclosureInVector(enclosureBoxNumber, all);
        EXPECT_GE(at, 0) << "no enclosure " << enclosureBoxNumber << " in the snapshot";
        return at < 0 ? VeldraEnclosure() : all[static_cast<size_t>(at)];
    }
};

// The elements of an array property.
inline std::vector<unsigned short> uint16s(CmpiCpp::CmpiInstance const& instance,
                                           char const* name) {
    std::vector<unsigned short> values;
    CmpiCpp::CmpiArray const& array = instance.getProperty(name).getArray();
    for (unsigned int i = 0; i < array.size(); ++i)
        values.push_back(array.getElementAt(i).getUint16());
    return values;
}

inline std::vector<std::string> strings(CmpiCpp::CmpiInstance const& instance, char const* name) {
    std::vector<std::string> values;
    CmpiCpp::CmpiArray const& array = instance.getProperty(name).getArray();
    for (unsigned int i = 0; i < array.size(); ++i)
        values.push_back(array.getElementAt(i).getString());
    return values;
}

// Calls getInstance and returns the status it threw (code and text), or a
// note that it threw nothing.
template <typename Instance> std::string thrownBy(Instance const& instance) {
    try {
        instance.getInstance();
    } catch (CmpiCpp::CmpiStatus const& status) {
        return std::to_string(static_cast<int>(status.rc())) + " " + status.msg();
    }
    return "nothing thrown";
}
