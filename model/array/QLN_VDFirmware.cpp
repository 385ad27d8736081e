#include "QLN_VDFirmware.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VersionProperties.h"

namespace {
char const* const className = "QLN_VDFirmware";
char const* const firmwareText = "Array Controller Firmware";
// CIM_SoftwareIdentity.Classifications: 10 is "Firmware".
unsigned short const firmwareClassification = 10;
} // namespace

namespace QLN {

QLN_VDFirmware::QLN_VDFirmware(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

std::string QLN_VDFirmware::_instanceId() const {
    return std::string("MWQ:") + className + "-" + std::to_string(_controllerIndex);
}

CmpiCpp::CmpiObjectPath QLN_VDFirmware::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDFirmware::getInstance() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("Caption", firmwareText);
    instance.addProperty("Name", firmwareText);
    instance.addProperty("Description", firmwareText);
    instance.addProperty("IsEntity", true);
    std::string manufacturer;
    if (data.getManufacturer(manufacturer) == 0)
        instance.addProperty("Manufacturer", manufacturer);
    instance.addProperty("Classifications", VDArrayValues::uint16s({firmwareClassification}));
    instance.addProperty("ClassificationDescriptions", VDArrayValues::strings({firmwareText}));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("StatusDescriptions",
                         VDArrayValues::strings({"Array Firmware Status: OK"}));
    instance.addProperty("HealthState", static_cast<unsigned short>(5));

    std::string version;
    if (data.getFWVersion(version) == 0) {
        VersionProperties::add(instance, version);
    }

    std::string model;
    if (data.getModel(model) == 0) {
        instance.addProperty("ElementName", model);
        VersionProperties::addIdentityInfo(instance, model, "MWQ:" + model, "Storage Controller");
    }
    return instance;
}

} // namespace QLN
