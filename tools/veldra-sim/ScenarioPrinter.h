#pragma once
// `veldra-sim show`: the scenario as a tree of controllers, enclosures,
// disks and volumes with their status texts, as the storage-access library
// reports them, followed by the locator requests received.
#include <ostream>
#include <string>

class ScenarioPrinter {
public:
    static void print(std::string const& scenarioPath, std::ostream& out);
};
