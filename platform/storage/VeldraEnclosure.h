#pragma once
// A disk enclosure (box) behind a controller, plus the routes that the caller
// stored on this copy. Identity: the serial number where both records have
// one, else the enclosure box number.
#include "SharedFacts.h"
#include "VeldraPhysicalPath.h"
#include "VeldraTypes.h"

#include <memory>
#include <string>
#include <vector>

struct VeldraEnclosureInfo;

class VeldraEnclosure {
public:
    VeldraEnclosure();
    explicit VeldraEnclosure(std::shared_ptr<VeldraEnclosureInfo const> info);
    VeldraEnclosure(VeldraEnclosure const&) = default;
    VeldraEnclosure& operator=(VeldraEnclosure const&) = default;
    virtual ~VeldraEnclosure();

    u32 getEnclosureBoxNumber() const;
    int getBoxNumber() const;
    std::string getSerialNumber() const;
    std::string getModel() const;
    std::string getManufacturer() const;
    std::string getFWVersion() const;
    int getDriveBays() const;
    int getBackplaneSpeed() const;
    int getDuplexLocation() const;
    std::vector<VeldraPhysicalPath> getPaths() const;
    std::vector<VeldraPhysicalPath> getLastAllPhysicalPaths() const;
    void setLastAllPhysicalPaths(std::vector<VeldraPhysicalPath>& paths);

    EnclosureStatusTypeEnum getOverallStatus() const;
    EnclosureFanStatusTypeEnum getFanStatus() const;
    EnclosurePowerSupplyStatusTypeEnum getPowerSupplyStatus() const;
    EnclosureTempSensorStatusTypeEnum getTempSensorStatus() const;
    char const* OverallStatusToStr(EnclosureStatusTypeEnum const& value) const;
    char const* FanStatusToStr(EnclosureFanStatusTypeEnum const& value) const;
    char const* PowerSupplyStatusToStr(EnclosurePowerSupplyStatusTypeEnum const& value) const;
    char const* TempSensorStatusToStr(EnclosureTempSensorStatusTypeEnum const& value) const;

    // See VeldraPhysicalDisk::compare.
    u32 compare(std::vector<VeldraEnclosure>& previous, u32& index) const;

    static constexpr u32 changeNoCounterpart = 0x001;
    static constexpr u32 changeOverallStatus = 0x002;
    static constexpr u32 changeFanStatus = 0x004;
    static constexpr u32 changePowerSupplyStatus = 0x008;
    static constexpr u32 changeTempSensorStatus = 0x010;
    static constexpr u32 changeBoxNumber = 0x020;
    static constexpr u32 changeFirmware = 0x040;
    static constexpr u32 changeEnclosureBoxNumber = 0x080;
    static constexpr u32 changePaths = 0x100;

    bool isSameEnclosure(VeldraEnclosure const& other) const;

private:
    SharedFacts<VeldraEnclosureInfo> _info;
    SharedFacts<std::vector<VeldraPhysicalPath>> _lastPaths;
};
