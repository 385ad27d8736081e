#pragma once
// Common ground of the target side of one route to a disk: the port and the
// SCSI endpoint of one path of one disk. The key names the disk and the
// path's place in the disk's list of paths.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"
#include "VeldraPhysicalPath.h"

#include <string>

namespace QLN {

class DiskPathDevice : public ControllerManagedInstance {
public:
    // For the graph's matching of initiators to targets and the worker's port match.
    std::string const& getPort() const { return _port; }
    int getPathIndex() const { return _pathIndex; }
    std::string const& getSerialNumber() const { return _serialNumber; }
    int getBoxNumber() const { return _boxNumber; }
    int getBay() const { return _bay; }

protected:
    DiskPathDevice(Logger& logger, std::string const& nameSpace, char const* className,
                   unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                   VeldraPhysicalPath const& path, int pathIndex, VeldraController* controller);

    // The disk ("<model>-<serial>", or "<port>:<box>:<bay>" without a serial),
    // then ":" and the path index.
    std::string _keyValue() const;
    // The array system's class and name, then the class's own key.
    CmpiCpp::CmpiObjectPath _path(char const* lastKeyName) const;
    // CreationClassName, SystemCreationClassName, SystemName and the key, in
    // this order; the instance must have been made from _path(lastKeyName).
    void _addKeyProperties(CmpiCpp::CmpiInstance& instance, char const* lastKeyName) const;

    int _pathIndex;
    std::string _serialNumber;
    std::string _port;
    std::string _model;
    int _boxNumber;
    int _bay;
};

} // namespace QLN
