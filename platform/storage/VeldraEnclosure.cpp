#include "VeldraEnclosure.h"

#include "VeldraRecordData.h"

namespace {
char const* const unknownText = "Unknown value";
} // namespace

VeldraEnclosure::VeldraEnclosure() = default;

VeldraEnclosure::VeldraEnclosure(std::shared_ptr<VeldraEnclosureInfo const> info)
    : _info(std::move(info)) {}

VeldraEnclosure::~VeldraEnclosure() = default;

u32 VeldraEnclosure::getEnclosureBoxNumber() const {
    return _info->enclosureBoxNumber;
}
int VeldraEnclosure::getBoxNumber() const {
    return _info->boxNumber;
}
std::string VeldraEnclosure::getSerialNumber() const {
    return _info->serialNumber;
}
std::string VeldraEnclosure::getModel() const {
    return _info->model;
}
std::string VeldraEnclosure::getManufacturer() const {
    return _info->manufacturer;
}
std::string VeldraEnclosure::getFWVersion() const {
    return _info->fwVersion;
}
int VeldraEnclosure::getDriveBays() const {
    return _info->driveBays;
}
int VeldraEnclosure::getBackplaneSpeed() const {
    return _info->backplaneSpeed;
}
int VeldraEnclosure::getDuplexLocation() const {
    return _info->duplexLocation;
}
std::vector<VeldraPhysicalPath> VeldraEnclosure::getPaths() const {
    return _info->paths;
}
std::vector<VeldraPhysicalPath> VeldraEnclosure::getLastAllPhysicalPaths() const {
    return *_lastPaths;
}

void VeldraEnclosure::setLastAllPhysicalPaths(std::vector<VeldraPhysicalPath>& paths) {
    _lastPaths.set(paths);
}

EnclosureStatusTypeEnum VeldraEnclosure::getOverallStatus() const {
    if (_info->overallStatusSet)
        return static_cast<EnclosureStatusTypeEnum>(_info->overallStatus);
    // Without an explicit value the enclosure sums up its three subsystems.
    auto const fan = _info->fanStatus, ps = _info->powerSupplyStatus,
               temp = _info->tempSensorStatus;
    if (fan == ENCLOSURE_FAN_FAILED || ps == ENCLOSURE_PS_FAILED || temp == ENCLOSURE_TEMP_CRITICAL)
        return ENCLOSURE_STATUS_FAILED;
    if (fan != ENCLOSURE_FAN_OK || ps != ENCLOSURE_PS_OK || temp != ENCLOSURE_TEMP_OK)
        return ENCLOSURE_STATUS_DEGRADED;
    return ENCLOSURE_STATUS_OK;
}

EnclosureFanStatusTypeEnum VeldraEnclosure::getFanStatus() const {
    return static_cast<EnclosureFanStatusTypeEnum>(_info->fanStatus);
}
EnclosurePowerSupplyStatusTypeEnum VeldraEnclosure::getPowerSupplyStatus() const {
    return static_cast<EnclosurePowerSupplyStatusTypeEnum>(_info->powerSupplyStatus);
}
EnclosureTempSensorStatusTypeEnum VeldraEnclosure::getTempSensorStatus() const {
    return static_cast<EnclosureTempSensorStatusTypeEnum>(_info->tempSensorStatus);
}

bool VeldraEnclosure::isSameEnclosure(VeldraEnclosure const& other) const {
    if (!_info->serialNumber.empty() && !other._info->serialNumber.empty())
        return _info->serialNumber == other._info->serialNumber;
    return _info->enclosureBoxNumber == other._info->enclosureBoxNumber;
}

u32 VeldraEnclosure::compare(std::vector<VeldraEnclosure>& previous, u32& index) const {
    for (size_t i = 0; i < previous.size(); ++i) {
        VeldraEnclosure const& old = previous[i];
        if (!isSameEnclosure(old))
            continue;
        index = static_cast<u32>(i);
        VeldraEnclosureInfo const& a = *_info;
        VeldraEnclosureInfo const& b = *old._info;
        u32 mask = 0;
        if (getOverallStatus() != old.getOverallStatus())
            mask |= changeOverallStatus;
        if (a.fanStatus != b.fanStatus)
            mask |= changeFanStatus;
        if (a.powerSupplyStatus != b.powerSupplyStatus)
            mask |= changePowerSupplyStatus;
        if (a.tempSensorStatus != b.tempSensorStatus)
            mask |= changeTempSensorStatus;
        if (a.boxNumber != b.boxNumber)
            mask |= changeBoxNumber;
        if (a.fwVersion != b.fwVersion)
            mask |= changeFirmware;
        if (a.enclosureBoxNumber != b.enclosureBoxNumber)
            mask |= changeEnclosureBoxNumber;
        if (*_lastPaths != *old._lastPaths)
            mask |= changePaths;
        return mask;
    }
    return changeNoCounterpart;
}

char const* VeldraEnclosure::OverallStatusToStr(EnclosureStatusTypeEnum const& value) const {
    switch (value) {
    case ENCLOSURE_STATUS_UNKNOWN:
        return "Unknown";
    case ENCLOSURE_STATUS_OTHER:
        return "Other";
    case ENCLOSURE_STATUS_OK:
        return "OK";
    case ENCLOSURE_STATUS_DEGRADED:
        return "Degraded";
    case ENCLOSURE_STATUS_FAILED:
        return "Failed";
    }
    return unknownText;
}

char const* VeldraEnclosure::FanStatusToStr(EnclosureFanStatusTypeEnum const& value) const {
    switch (value) {
    case ENCLOSURE_FAN_UNKNOWN:
        return "Fan Status Unknown";
    case ENCLOSURE_FAN_OK:
        return "Fans OK";
    case ENCLOSURE_FAN_DEGRADED:
        return "Fan Degraded";
    case ENCLOSURE_FAN_FAILED:
        return "Fan Failed";
    }
    return unknownText;
}

char const*
VeldraEnclosure::PowerSupplyStatusToStr(EnclosurePowerSupplyStatusTypeEnum const& value) const {
    switch (value) {
    case ENCLOSURE_PS_UNKNOWN:
        return "Power Supply Status Unknown";
    case ENCLOSURE_PS_OK:
        return "Power Supplies OK";
    case ENCLOSURE_PS_DEGRADED:
        return "Power Supply Redundancy Lost";
    case ENCLOSURE_PS_FAILED:
        return "Power Supply Failed";
    }
    return unknownText;
}

char const*
VeldraEnclosure::TempSensorStatusToStr(EnclosureTempSensorStatusTypeEnum const& value) const {
    switch (value) {
    case ENCLOSURE_TEMP_UNKNOWN:
        return "Temperature Unknown";
    case ENCLOSURE_TEMP_OK:
        return "Temperature OK";
    case ENCLOSURE_TEMP_WARNING:
        return "Temperature Warning";
    case ENCLOSURE_TEMP_CRITICAL:
        return "Temperature Critical";
    }
    return unknownText;
}
