#pragma once
// The SCSI target endpoint on one path of one disk; the initiator-target
// path association reads the path's status through it.
#include "DiskPathDevice.h"

namespace QLN {

class QLN_VDTSASSCSIProtocolEndpoint : public DiskPathDevice {
public:
    QLN_VDTSASSCSIProtocolEndpoint(Logger& logger, std::string const& nameSpace,
                                   unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                                   VeldraPhysicalPath const& path, int pathIndex,
                                   VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // The path's status as it was when the endpoint was made.
    int getPathStatus() const { return _pathStatus; }

private:
    int _pathStatus;
};

} // namespace QLN
