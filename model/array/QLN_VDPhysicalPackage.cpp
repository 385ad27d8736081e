#include "QLN_VDPhysicalPackage.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {

char const* const className = "QLN_VDPhysicalPackage";

// CIM_PhysicalPackage.PackageType and RemovalConditions values used here.
unsigned short const packageOther = 1;
unsigned short const packageChassis = 3;
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

QLN_VDPhysicalPackage::QLN_VDPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                             unsigned int controllerIndex,
                                             VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

CmpiCpp::CmpiObjectPath QLN_VDPhysicalPackage::getPath() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, _namespace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("CreationClassName", className);
    // The controller's name, as the array system has it, scoped by the class.
    path.addKey("Tag", std::string(className) + "-" +
                           getControllerName(data, static_cast<int>(_controllerIndex)));
    return path;
}

CmpiCpp::CmpiInstance QLN_VDPhysicalPackage::getInstance() const {
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

    // What holds the array: an external array is a chassis of its own, an
    // embedded controller's storage is part of the system board, and anything
    // else (a card, or a type that cannot be read) is a module in a slot.
    controllerTypeEnum type;
    bool typeRead = data.getControllerType(type) == 0;
    unsigned short packageType = packageModuleCard;
    unsigned short removal = removalWhenOff;
    if (typeRead && type == CONTROLLER_TYPE_EXTERNAL) {
        packageType = packageChassis;
    } else if (typeRead && type == CONTROLLER_TYPE_EMBEDDED) {
        packageType = packageOther;
        removal = removalNotApplicable;
    }
    instance.addProperty("PackageType", packageType);
    if (packageType == packageOther) {
        instance.addProperty("OtherPackageType", "System Board Storage");
    }
    instance.addProperty("HotSwappable", false);
    instance.addProperty("RemovalConditions", removal);
    instance.addProperty("PartNumber", "N/A");
    instance.addProperty("Version", "N/A");
    instance.addProperty("Description", "Veldra Array System Physical Package");
    return instance;
}

} // namespace QLN
