#pragma once
// The capacity view of one physical disk: the primordial extent that pools
// and volumes are made of. It repeats the disk's status in a reduced form
// and adds the block counts.
#include "DiskCompanion.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDStorageExtent : public DiskCompanion {
public:
    QLN_VDStorageExtent(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                        VeldraPhysicalDisk const& disk, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // The routes as frozen at construction, for the worker's matching.
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }
    std::string const& getPortString() const { return _portString; }

private:
    std::string _deviceId() const;

    std::vector<VeldraPhysicalPath> _paths;
    std::string _portString;
};

} // namespace QLN
