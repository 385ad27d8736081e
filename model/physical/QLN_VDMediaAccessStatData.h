#pragma once
// The counters a disk keeps about itself, for a disk that reports them.
#include "DiskCompanion.h"

namespace QLN {

class QLN_VDMediaAccessStatData : public DiskCompanion {
public:
    QLN_VDMediaAccessStatData(Logger& logger, std::string const& nameSpace,
                              unsigned int controllerIndex, VeldraPhysicalDisk const& disk,
                              VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    std::string _instanceId() const;
};

} // namespace QLN
