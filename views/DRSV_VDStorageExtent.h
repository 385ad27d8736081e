#pragma once
// A physical disk of a controller in the host view, found by its position
// in a fresh disk list on every request.
#include "ViewInstance.h"

#include <optional>

namespace QLN {

class DRSV_VDStorageExtent : public ViewInstance {
public:
    DRSV_VDStorageExtent(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         unsigned int diskPosition, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    static unsigned short healthOf(u32 physicalStatus);

    std::optional<VeldraPhysicalDisk> _findDisk() const;

    unsigned int const _diskPosition;
    std::string _deviceId;
};

} // namespace QLN
