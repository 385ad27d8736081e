#pragma once
// How the logical tests read instances; the scenario rig is the shared one.
#include "CmpiInstance.h"
#include "FrameworkConfig.h"
#include "Logger.h"
#include "ScenarioRig.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace modeltest {

inline std::vector<std::string> propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        names.push_back(instance.getPropertyNameAt(i).str());
    return names;
}

inline std::string text(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getString();
}

inline unsigned short uint16Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiData const& value = instance.getProperty(name);
    EXPECT_EQ(value.getType(), CMPI_uint16) << name;
    return value.getUint16();
}

inline unsigned long long uint64Of(CmpiCpp::CmpiInstance const& instance, char const* name) {
    CmpiCpp::CmpiData const& value = instance.getProperty(name);
    EXPECT_EQ(value.getType(), CMPI_uint64) << name;
    return value.getUint64();
}

inline std::string firstText(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getArray().getElementAt(0).getString();
}

inline unsigned short firstU16(CmpiCpp::CmpiInstance const& instance, char const* name) {
    return instance.getProperty(name).getArray().getElementAt(0).getUint16();
}

} // namespace modeltest
