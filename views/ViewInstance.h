#pragma once
// What the host-side view classes share beyond a controller's instance: the
// "DRVD" naming of the host view and its device paths. Unlike the main model they read the
// storage access afresh on every request and keep no snapshot.
#include "ControllerManagedInstance.h"

#include <cstdint>
#include <string>

namespace QLN {

class ViewInstance : public ControllerManagedInstance {
public:
    bool isMyControllerIndex(unsigned int index) const { return index == _controllerIndex; }

protected:
    // Whole gigabytes as the host view shows them: blocks in units of 2^20
    // first, then bytes in units of 2^10, each step truncated.
    static std::uint64_t sizeInGB(std::uint64_t totalBlocks, std::uint64_t blockSize);

    // className must outlive the instance (the classes pass a literal).
    ViewInstance(Logger& logger, char const* className, std::string const& nameSpace,
                 unsigned int controllerIndex, VeldraController* controller);

    // " on DRVD" and the index, or "DRVD" alone with onWord false.
    std::string _drvd(bool onWord) const;
    CmpiCpp::CmpiObjectPath _emptyPath() const;
    // The path of a device of the host: class, DeviceID, the host's system.
    CmpiCpp::CmpiObjectPath _devicePath(std::string const& deviceId) const;
    // The instance skeleton with the four keys of _devicePath as properties.
    CmpiCpp::CmpiInstance _deviceInstance(std::string const& deviceId) const;
};

} // namespace QLN
