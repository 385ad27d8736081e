#include "ControllerPackageInstance.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"

namespace {

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

ControllerPackageInstance::ControllerPackageInstance(Logger& logger, char const* className,
                                                     std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraController* controller, KindOf kindOf,
                                                     char const* description)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _kindOf(kindOf), _description(description) {}

CmpiCpp::CmpiObjectPath ControllerPackageInstance::getPath() const {
    VeldraControllerData data = _lastData();
    // The controller's name scoped by the class, so the two packages of one
    // controller keep apart.
    return _pathByClassAndKey("Tag",
                              std::string(_cimClassName()) + "-" +
                                  getControllerName(data, static_cast<int>(_controllerIndex)));
}

CmpiCpp::CmpiInstance ControllerPackageInstance::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = getPath();
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, path);
    VeldraControllerData data = _lastData();

    instance.addProperty("CreationClassName", _cimClassName());
    instance.addProperty("Tag", path.getKey("Tag"));
    std::string display = getControllerDisplayName(data);
    instance.addProperty("ElementName", display);
    instance.addProperty("Name", display);
    addTextIfRead(instance, "Manufacturer", data, &VeldraControllerData::getManufacturer);
    addTextIfRead(instance, "Model", data, &VeldraControllerData::getModel);
    addTextIfRead(instance, "SerialNumber", data, &VeldraControllerData::getControllerSerialNumber);

    Kind const kind = _kindOf(data);
    instance.addProperty("PackageType", kind.packageType);
    if (kind.otherPackageType != nullptr) {
        instance.addProperty("OtherPackageType", kind.otherPackageType);
    }
    instance.addProperty("HotSwappable", false);
    instance.addProperty("RemovalConditions", kind.removalConditions);
    instance.addProperty("PartNumber", "N/A");
    instance.addProperty("Version", "N/A");
    instance.addProperty("Description", _description);
    return instance;
}

} // namespace QLN
