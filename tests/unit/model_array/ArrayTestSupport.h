#pragma once
// How the array tests read instances; the scenario rig is the shared one,
// given the list under "controllers:" with ScenarioRig::controllerList.
#include "CmpiInstance.h"
#include "Logger.h"
#include "ScenarioRig.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

// The instance's property names in order, joined by blanks.
inline std::string propertyNames(CmpiCpp::CmpiInstance const& instance) {
    std::string names;
    for (unsigned int i = 0; i < instance.getPropertyCount(); ++i)
        names += (i ? " " : "") + instance.getPropertyNameAt(i).str();
    return names;
}
