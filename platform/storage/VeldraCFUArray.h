#pragma once
// One array of a controller as the caller assembles it: an identifier and
// the data and spare disks it last saw.
#include "VeldraPhysicalDisk.h"

#include <string>
#include <vector>

class VeldraCFUArray {
public:
    VeldraCFUArray() = default;
    virtual ~VeldraCFUArray() = default;

    void setArrayID(std::string id) { _arrayId = std::move(id); }
    std::string getArrayID() const { return _arrayId; }
    void setLastDataDisks(std::vector<VeldraPhysicalDisk>& disks) { _dataDisks = disks; }
    void setLastSpareDisks(std::vector<VeldraPhysicalDisk>& disks) { _spareDisks = disks; }
    std::vector<VeldraPhysicalDisk> getLastDataDisks() const { return _dataDisks; }
    std::vector<VeldraPhysicalDisk> getLastSpareDisks() const { return _spareDisks; }

private:
    std::string _arrayId;
    std::vector<VeldraPhysicalDisk> _dataDisks;
    std::vector<VeldraPhysicalDisk> _spareDisks;
};
