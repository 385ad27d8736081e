#pragma once
// A logical disk of a controller in the host view. Found by its volume
// number in a fresh list on every request; a volume whose disk is gone keeps
// its name and keys and loses the rest.
#include "ViewInstance.h"

#include <optional>
#include <vector>

namespace QLN {

class DRSV_VDStorageVolume : public ViewInstance {
public:
    DRSV_VDStorageVolume(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         unsigned int volumeNumber, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

private:
    static unsigned short healthOf(u32 logicalStatus);

    std::optional<VeldraLogicalDisk> _findDisk() const;

    // Positions in the physical disk list of the members, data then spares.
    std::vector<unsigned int> _diskNumbers;
    unsigned int const _volumeNumber;
    std::string _deviceId;
};

} // namespace QLN
