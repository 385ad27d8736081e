#pragma once
// The simulated hardware as read from one scenario file: the facts of every
// controller and of what hangs behind it, all immutable once read.
#include "VeldraRecordData.h"

#include <memory>
#include <vector>

struct VeldraControllerScenario {
    std::shared_ptr<VeldraControllerInfo const> data;
    std::vector<std::shared_ptr<VeldraEnclosureInfo const>> enclosures;
    std::vector<std::shared_ptr<VeldraPhysicalDiskInfo const>> physicalDisks;
    std::vector<std::shared_ptr<VeldraLogicalDiskInfo const>> logicalDisks;
};

struct VeldraScenario {
    std::vector<VeldraControllerScenario> controllers;
};
