#pragma once
// Records the graph functions and the worker pass between them while they
// wire instances: which pool belongs to which array, which cage holds which
// bays, which extent stands for which disk.
#include "VeldraPhysicalPath.h"
#include "VeldraTypes.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDStoragePool;
class QLN_VDDriveCage;
class QLN_VDStorageExtent;

struct PoolEntry {
    std::string arrayID;
    QLN_VDStoragePool* pool;
};

struct CageEntry {
    std::string cageID;
    int boxNumber;
    std::vector<VeldraPhysicalPath> paths;
    QLN_VDDriveCage* cage;
};

struct ExtentEntry {
    std::string serialNumber;
    std::vector<VeldraPhysicalPath> paths;
    int enclosureBoxNumber;
    int bay;
    u32 diskID;
    QLN_VDStorageExtent* extent;
};

} // namespace QLN
