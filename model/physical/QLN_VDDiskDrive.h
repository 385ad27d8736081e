#pragma once
// One physical disk behind one array controller. The instance holds the
// disk's identity only (serial number, or enclosure box and bay for a disk
// without one); every value is read from the controller's last snapshot when
// asked, so a client always sees what the last worker pass accepted.
#include "CmpiArgs.h"
#include "DiskCompanion.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDDiskDrive : public DiskCompanion {
public:
    QLN_VDDiskDrive(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                    VeldraPhysicalDisk const& disk, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // Identify: lights the disk's locator for Duration (uint32) seconds.
    // 0 on success, 2 when the controller refuses, 17 for anything else.
    unsigned int invokeMethod(CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in);
    using CmpiManagedInstance::invokeMethod;

    // Disk changes are detected by the controller's pass; this only reports.
    void manageDynamic(bool indicationsEnabled);

    // The routes as frozen at construction, for the worker's matching.
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }
    std::string const& getPortString() const { return _portString; }

private:
    std::vector<VeldraPhysicalPath> _paths;
    std::string _portString;
};

} // namespace QLN
