#pragma once
// The disk's end of one SAS path: one instance for each path of each disk.
#include "DiskPathDevice.h"

namespace QLN {

class QLN_VDTSASPort : public DiskPathDevice {
public:
    QLN_VDTSASPort(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                   VeldraPhysicalDisk const& disk, VeldraPhysicalPath const& path, int pathIndex,
                   VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
};

} // namespace QLN
