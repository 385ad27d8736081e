#include "QLN_VDEnclosureFirmware.h"

#include "CmpiBroker.h"
#include "EnclosureSnapshot.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VersionProperties.h"

namespace {
char const* const className = "QLN_VDEnclosureFirmware";
char const* const missingText = "getInstance, findEnclosureInVector could not find enclosure";
char const* const firmwareText = "Storage Enclosure Processor Firmware";
// CIM_SoftwareIdentity.Classifications: 10 is "Firmware".
unsigned short const firmwareClassification = 10;
} // namespace

namespace QLN {

QLN_VDEnclosureFirmware::QLN_VDEnclosureFirmware(Logger& logger, std::string const& nameSpace,
                                                 unsigned int controllerIndex,
                                                 VeldraEnclosure const& enclosure,
                                                 VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _enclosureBoxNumber(enclosure.getEnclosureBoxNumber()) {}

std::string QLN_VDEnclosureFirmware::_instanceId() const {
    return std::string("MWQ:") + className + "-" +
           enclosureTag(_controllerIndex, _enclosureBoxNumber);
}

CmpiCpp::CmpiObjectPath QLN_VDEnclosureFirmware::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDEnclosureFirmware::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraEnclosure const enclosure =
        EnclosureSnapshot::find(_controller, _enclosureBoxNumber, _logger, missingText);

    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("Caption", firmwareText);
    instance.addProperty("Name", firmwareText);
    instance.addProperty("Description", firmwareText);
    instance.addProperty("IsEntity", true);
    std::string const manufacturer = enclosure.getManufacturer();
    if (!manufacturer.empty())
        instance.addProperty("Manufacturer", manufacturer);
    instance.addProperty("Classifications", VDArrayValues::uint16s({firmwareClassification}));
    instance.addProperty("ClassificationDescriptions", VDArrayValues::strings({firmwareText}));
    instance.addProperty("OperationalStatus", VDArrayValues::uint16s({2}));
    instance.addProperty("StatusDescriptions",
                         VDArrayValues::strings({"Array Firmware Status: OK"}));
    instance.addProperty("HealthState", static_cast<unsigned short>(5));

    std::string const version = enclosure.getFWVersion();
    if (!version.empty()) {
        VersionProperties::add(instance, version);
    }

    std::string const model = enclosure.getModel();
    if (!model.empty()) {
        instance.addProperty("ElementName", model);
        VersionProperties::addIdentityInfo(instance, model, "MWQ:" + model, "Storage Device");
    }
    return instance;
}

} // namespace QLN
