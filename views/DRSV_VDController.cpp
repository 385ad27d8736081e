#include "DRSV_VDController.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {
char const* const className = "DRSV_VDController";
} // namespace

namespace QLN {

char const* const DRSV_VDController::getInstanceLogLine = "DRSV_VDController::getInstance";

DRSV_VDController::DRSV_VDController(Logger& logger, std::string const& nameSpace,
                                     unsigned int controllerIndex, VeldraController* controller)
    : ViewInstance(logger, className, nameSpace, controllerIndex, controller),
      _name("vmwController" + _drvd(false)) {
    // Primed so that the first pass after start rebuilds nothing.
    _controller->setConsumedPossibleSignificantDiskVectorChangeCount(
        _controller->getPossibleSignificantDiskVectorChangeCount());
}

CmpiCpp::CmpiObjectPath DRSV_VDController::getPath() const {
    CmpiCpp::CmpiObjectPath path = _emptyPath();
    path.addKey("CreationClassName", className);
    path.addKey("Name", _name);
    return path;
}

bool DRSV_VDController::needsRescan() {
    u32 const count = _controller->getPossibleSignificantDiskVectorChangeCount();
    if (count == _controller->getConsumedPossibleSignificantDiskVectorChangeCount()) {
        return false;
    }
    _logger.info("Internal controller %d needs rescan.\n", static_cast<int>(_controllerIndex));
    _controller->setConsumedPossibleSignificantDiskVectorChangeCount(count);
    return true;
}

unsigned short DRSV_VDController::_getHealthState(VeldraControllerData const& data) const {
    _logger.info("DRSV_VDController::_getHealthState");
    unsigned short health = 0;
    controllerOperationalStatusEnum status = CONTROLLER_OP_STATUS_UNKNOWN;
    if (data.getControllerOperationalStatus(status) == 0) {
        _logger.info("controller operational status %d", static_cast<int>(status));
        switch (status) {
        case CONTROLLER_OP_STATUS_OK:
            health = 5;
            break;
        case CONTROLLER_OP_STATUS_DEGRADED:
            health = 10;
            break;
        case CONTROLLER_OP_STATUS_FAILED:
            health = 20;
            break;
        case CONTROLLER_OP_STATUS_UNKNOWN:
        case CONTROLLER_OP_STATUS_NOT_REPORTED:
            break;
        }
    }
    _logger.info("controller health state %d", health);
    return health;
}

CmpiCpp::CmpiInstance DRSV_VDController::getInstance() const {
    _logger.info("%s", getInstanceLogLine);
    VeldraControllerData const data = _controller->getVDData();
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("CreationClassName", className);
    instance.addProperty("Name", _name);

    std::string manufacturer;
    std::string model;
    if (data.getManufacturer(manufacturer) != 0) {
        manufacturer.clear();
    }
    if (data.getModel(model) != 0) {
        model.clear();
    }
    std::string text = manufacturer + model + " Controller";
    int slot = 0;
    if (data.getPCISlotNumber(slot) == 0) {
        if (slot > 0) {
            text += " : Slot " + std::to_string(slot);
        } else if (slot == 0) {
            text += " : Embedded";
        }
    }
    text += " : " + _drvd(false);
    instance.addProperty("ElementName", text);
    instance.addProperty("HealthState", _getHealthState(data));
    return instance;
}

} // namespace QLN
