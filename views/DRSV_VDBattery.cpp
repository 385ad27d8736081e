#include "DRSV_VDBattery.h"

namespace {
char const* const className = "DRSV_VDBattery";
} // namespace

namespace QLN {

DRSV_VDBattery::DRSV_VDBattery(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller)
    : ViewInstance(logger, className, nameSpace, controllerIndex, controller),
      _name("Battery" + _drvd(true)) {}

CmpiCpp::CmpiObjectPath DRSV_VDBattery::getPath() const {
    return _devicePath(_name);
}

DRSV_VDBattery::Health DRSV_VDBattery::_getHealthState(VeldraControllerData const& data) const {
    _logger.info("DRSV_VDBattery::_getHealthState");
    // CIM_Battery.BatteryStatus: 2 unknown, 3 fully charged, 11 partially charged.
    Health health{0, 2};
    batteryStatusEnum status = BATTERY_NOT_PRESENT;
    if (data.getBatteryStatus(status) == 0) {
        _logger.info("Battery status %d", static_cast<int>(status));
        switch (status) {
        case BATTERY_OK:
            health = {5, 3};
            break;
        case BATTERY_FAILED:
            health = {20, 2};
            break;
        case BATTERY_CHARGING:
            health = {10, 11};
            break;
        case BATTERY_NOT_PRESENT:
            break;
        }
    }
    _logger.info("Battery health state %d", health.healthState);
    _logger.info("Battery charge status %d", health.batteryStatus);
    return health;
}

CmpiCpp::CmpiInstance DRSV_VDBattery::getInstance() const {
    _logger.info("DRSV_VDBattery::getInstance");
    CmpiCpp::CmpiInstance instance = _deviceInstance(_name);
    instance.addProperty("ElementName", _name);
    Health const health = _getHealthState(_controller->getVDData());
    instance.addProperty("HealthState", health.healthState);
    instance.addProperty("BatteryStatus", health.batteryStatus);
    return instance;
}

} // namespace QLN
