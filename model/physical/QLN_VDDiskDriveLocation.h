#pragma once
// Where one disk sits: its bay, and the routes a person reads to find it.
#include "DiskCompanion.h"

namespace QLN {

class QLN_VDDiskDriveLocation : public DiskCompanion {
public:
    QLN_VDDiskDriveLocation(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                            VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _position() const;
};

} // namespace QLN
