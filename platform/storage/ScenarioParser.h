#pragma once
// Reads a scenario file (YAML, format in data/scenarios/README.md) into a
// VeldraScenario. Anything wrong is a ScenarioError whose message names the
// file, the line, the record and the field.
#include "VeldraScenario.h"

#include <stdexcept>
#include <string>
#include <vector>

class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class ScenarioParser {
public:
    static VeldraScenario parseFile(std::string const& path);
    // `name` stands for the file in messages.
    static VeldraScenario parseText(std::string const& text, std::string const& name);

    // Operations that a record can be told to fail (its `fail:` list).
    static std::vector<std::string> const& controllerFailable();
    static std::vector<std::string> const& physicalDiskFailable();
    static std::vector<std::string> const& logicalDiskFailable();
    // Field names that a record of each kind accepts.
    static std::vector<std::string> const& controllerKeys();
    static std::vector<std::string> const& physicalDiskKeys();
    static std::vector<std::string> const& logicalDiskKeys();
    static std::vector<std::string> const& enclosureKeys();
};
