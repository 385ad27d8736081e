#pragma once
// `veldra-sim generate`: a large regular scenario for load tests. Each
// controller gets enclosures of 24 bays, its disks (every fourth an SSD with
// gas gauge), and RAID 5 volumes of seven data disks with one spare each.
#include <string>

class ScenarioGenerator {
public:
    static std::string generate(int controllers, int disksPerController);
};
