#pragma once
// The physical package of one disk: what a person pulls out of the bay.
#include "DiskCompanion.h"

namespace QLN {

class QLN_VDDiskPhysicalPackage : public DiskCompanion {
public:
    QLN_VDDiskPhysicalPackage(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                              VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _tag() const;
};

} // namespace QLN
