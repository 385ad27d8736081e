#pragma once
// How the physical tests read instances; the scenario rig is the shared one.
#include "CmpiInstance.h"
#include "FrameworkConfig.h"
#include "Logger.h"
#include "ScenarioRig.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace physicaltest {

// Property names in order, joined by blanks.
inline std::string names(CmpiCpp::CmpiInstance const& instance) {
    std::string all;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        all += (i ? " " : "") + instance.getPropertyNameAt(i).str();
    return all;
}

inline std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

inline unsigned short uint16Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    EXPECT_EQ(instance.getProperty(name).getType(), CMPI_uint16) << name;
    return instance.getProperty(name).getUint16();
}

inline unsigned long long uint64Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    EXPECT_EQ(instance.getProperty(name).getType(), CMPI_uint64) << name;
    return instance.getProperty(name).getUint64();
}

// Array elements as text ("6 32771", "a|b"), which reads well in a comparison.
inline std::string elements(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiArray const array = instance.getProperty(name).getArray();
    std::string all;
    for (unsigned int i = 0; i < array.size(); ++i) {
        CmpiCpp::CmpiData const& value = array.getElementAt(i);
        all += (i ? (value.getType() == CMPI_string ? "|" : " ") : "") +
               (value.getType() == CMPI_string ? value.getString()
                                               : std::to_string(value.getUint16()));
    }
    return all;
}

} // namespace physicaltest
