#include "QLN_VDArrayControllerPhysicalPackage.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {

char const* const className = "QLN_VDArrayControllerPhysicalPackage";

// CIM_PhysicalPackage.PackageType and RemovalConditions values used here.
unsigned short const packageOther = 1;
unsigned short const packageModuleCard = 9;
unsigned short const removalNotApplicable = 2;
unsigned short const removalWhenOff = 3;

void addTextIfRead(CmpiCpp::CmpiInstance& instance, char const* name,
                   VeldraControllerData const& data,
                   int (VeldraControllerData::*getter)(std::string&) const) {
    std::string value;
    if ((data.*getter)(value) == 0 && !value.empty()) {
        instance.addProperty(name, value);
    }
}

} // namespace

namespace QLN {

QLN_VDArrayControllerPhysicalPackage::QLN_VDArrayControllerPhysicalPackage(
    Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
    VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

CmpiCpp::CmpiObjectPath QLN_VDArrayControllerPhysicalPackage::getPath() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("CreationClassName", className);
    // The controller's name, as the array controller has it, scoped by the class.
    path.addKey("Tag", std::string(className) + "-" +
                           getControllerName(data, static_cast<int>(_controllerIndex)));
    return path;
}

CmpiCpp::CmpiInstance QLN_VDArrayControllerPhysicalPackage::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data;
    _controller->getLastVDData(data);

    instance.addProperty("CreationClassName", className);
    instance.addProperty("Tag", path.getKey("Tag"));
    std::string display = getControllerDisplayName(data);
    instance.addProperty("ElementName", display);
    instance.addProperty("Name", display);
    addTextIfRead(instance, "Manufacturer", data, &VeldraControllerData::getManufacturer);
    addTextIfRead(instance, "Model", data, &VeldraControllerData::getModel);
    addTextIfRead(instance, "SerialNumber", data, &VeldraControllerData::getControllerSerialNumber);

    // The controller itself is a card or module, except on the system board,
    // where it is a component that cannot be taken out on its own.
    controllerTypeEnum type;
    bool embedded = data.getControllerType(type) == 0 && type == CONTROLLER_TYPE_EMBEDDED;
    instance.addProperty("PackageType", embedded ? packageOther : packageModuleCard);
    if (embedded) {
        instance.addProperty("OtherPackageType", "System Board Component");
    }
    unsigned short removal = embedded ? removalNotApplicable : removalWhenOff;
    instance.addProperty("HotSwappable", false);
    instance.addProperty("RemovalConditions", removal);
    instance.addProperty("PartNumber", "N/A");
    instance.addProperty("Version", "N/A");
    instance.addProperty("Description", "Veldra Array Controller Physical Package");
    return instance;
}

} // namespace QLN
