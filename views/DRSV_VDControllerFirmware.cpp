#include "DRSV_VDControllerFirmware.h"

#include "CmpiBroker.h"
#include "DRSV_VDController.h"
#include "QLNUtil.h"

namespace {
char const* const className = "DRSV_VDControllerFirmware";
} // namespace

namespace QLN {

DRSV_VDControllerFirmware::DRSV_VDControllerFirmware(Logger& logger, std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraController* controller)
    : ViewInstance(logger, className, nameSpace, controllerIndex, controller),
      _name("Veldra Controller " + _drvd(false)) {}

CmpiCpp::CmpiObjectPath DRSV_VDControllerFirmware::getPath() const {
    CmpiCpp::CmpiObjectPath path = _emptyPath();
    path.addKey("InstanceID", "MWQ:" + _name);
    return path;
}

CmpiCpp::CmpiInstance DRSV_VDControllerFirmware::getInstance() const {
    // Log readers match the firmware's requests under the controller's line.
    _logger.info("%s", DRSV_VDController::getInstanceLogLine);
    VeldraControllerData const data = _controller->getVDData();
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", "MWQ:" + _name);
    instance.addProperty("ElementName", _name);
    instance.addProperty("Caption", _name + " Firmware");
    instance.addProperty("Name", _name + " Firmware");
    std::string version;
    if (data.getFWVersion(version) == 0) {
        instance.addProperty("VersionString", version);
    }
    std::string manufacturer;
    if (data.getManufacturer(manufacturer) == 0) {
        instance.addProperty("Manufacturer", manufacturer);
    }
    return instance;
}

} // namespace QLN
