#include "QLN_VDSoftwareIdentityDriver.h"

#include "CmpiBroker.h"
#include "FixedStateProperties.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"

namespace {
char const* const className = "QLN_VDSoftwareIdentityDriver";
char const* const displayPrefix = "Veldra Controller Driver ";
char const* const installedText = "VD Software is installed properly";
char const* const driverMaker = "Morvane Systems Company";
// CIM_SoftwareIdentity.Classifications: 2 is "Driver".
unsigned short const driverClassification = 2;

// Reads one text of the controller data; a failed read gives the empty text.
template <typename Getter> std::string textOf(VeldraControllerData const& data, Getter getter) {
    std::string text;
    if ((data.*getter)(text) != 0)
        return std::string();
    return text;
}
} // namespace

namespace QLN {

QLN_VDSoftwareIdentityDriver::QLN_VDSoftwareIdentityDriver(Logger& logger,
                                                           std::string const& nameSpace,
                                                           unsigned int controllerIndex,
                                                           VeldraControllerData const& data)
    : _namespace(nameSpace), _controllerIndex(controllerIndex) {
    _logger = logger;
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
    _driverVersion = textOf(data, &VeldraControllerData::getDriverVersion);
    _driverName = textOf(data, &VeldraControllerData::getDriverName);
    _model = textOf(data, &VeldraControllerData::getModel);
    _manufacturer = textOf(data, &VeldraControllerData::getManufacturer);
}

QLN_VDSoftwareIdentityDriver::~QLN_VDSoftwareIdentityDriver() {
    _logger.info("dxtor()");
}

std::string QLN_VDSoftwareIdentityDriver::_instanceId() const {
    return std::string("MWQ:") + className + ":" + std::to_string(_controllerIndex);
}

CmpiCpp::CmpiObjectPath QLN_VDSoftwareIdentityDriver::getPath() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("InstanceID", _instanceId());
    return path;
}

CmpiCpp::CmpiInstance QLN_VDSoftwareIdentityDriver::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    std::string const display = displayPrefix + _driverName;
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("Caption", display);
    instance.addProperty("ElementName", display);
    instance.addProperty("Manufacturer", driverMaker);
    instance.addProperty("Status", "OK");
    instance.addProperty("Description", installedText);
    FixedStateProperties::healthy(instance, installedText);
    instance.addProperty("Classifications", VDArrayValues::uint16s({driverClassification}));
    instance.addProperty("ClassificationDescriptions", VDArrayValues::strings({"Driver"}));
    instance.addProperty("Name", display);
    instance.addProperty("VersionString", _driverVersion);
    if (QLNUtil::validateVersion(_driverVersion)) {
        unsigned short major = 0;
        unsigned short minor = 0;
        unsigned short revision = 0;
        if (QLNUtil::stringVersionToMajor(_driverVersion, major))
            instance.addProperty("MajorVersion", major);
        if (QLNUtil::stringVersionToMinor(_driverVersion, minor))
            instance.addProperty("MinorVersion", minor);
        if (QLNUtil::stringVersionToRevision(_driverVersion, revision))
            instance.addProperty("RevisionNumber", revision);
    }
    instance.addProperty("IdentityInfoType",
                         VDArrayValues::strings({"CIM:SoftwareFamily", "MWQ:SoftwareCategory"}));
    // The family names the driver and what it drives, so that a client can
    // tell the drivers of two controller models apart; unknown parts are left out.
    std::string family = "MWQ:Veldra Controller Driver.";
    bool first = true;
    for (std::string const* part : {&_driverName, &_model, &_manufacturer}) {
        if (part->empty())
            continue;
        if (!first)
            family += "-";
        family += *part;
        first = false;
    }
    instance.addProperty("IdentityInfoValue",
                         VDArrayValues::strings({family, "Storage Controller Driver"}));
    return instance;
}

CmpiCpp::CmpiName QLN_VDSoftwareIdentityDriver::getClassName() const {
    return CmpiCpp::CmpiName(className);
}

} // namespace QLN
