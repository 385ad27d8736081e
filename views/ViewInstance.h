#pragma once
// What the host-side view classes share: one controller and its index, the
// namespace their paths live in, a logger named after the class, and the
// "DRVD" naming of the host view. Unlike the main model they read the
// storage access afresh on every request and keep no snapshot.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <cstdint>
#include <string>

namespace QLN {

class ViewInstance : public CmpiManagedInstance {
public:
    ~ViewInstance() override;

    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }
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

    std::string const _namespace;
    unsigned int const _controllerIndex;
    VeldraController* const _controller;
    Logger _logger;
    char const* const _className;
};

} // namespace QLN
