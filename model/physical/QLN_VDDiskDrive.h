#pragma once
// One physical disk behind one array controller. The instance holds the
// disk's identity only (serial number, or enclosure box and bay for a disk
// without one); every value is read from the controller's last snapshot when
// asked, so a client always sees what the last worker pass accepted.
#include "CmpiArgs.h"
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDDiskDrive : public ControllerManagedInstance {
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

    // Identity as frozen at construction, for the worker's matching.
    std::string const& getSerialNumber() const { return _serialNumber; }
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }
    std::string const& getPortString() const { return _portString; }
    int getBoxNumber() const { return _boxNumber; }
    int getBay() const { return _bay; }

private:
    std::string _deviceId() const;

    std::string _serialNumber;
    std::string _portString;
    int _boxNumber;
    int _bay;
    std::string _model;
    std::vector<VeldraPhysicalPath> _paths;
};

} // namespace QLN
