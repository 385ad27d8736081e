#include "QLN_VDPhysicalPackage.h"

namespace {

// CIM_PhysicalPackage.PackageType and RemovalConditions values used here.
unsigned short const packageOther = 1;
unsigned short const packageChassis = 3;
unsigned short const packageModuleCard = 9;
unsigned short const removalNotApplicable = 2;
unsigned short const removalWhenOff = 3;

// What holds the array: an external array is a chassis of its own, an
// embedded controller's storage is part of the system board, and anything
// else (a card, or a type that cannot be read) is a module in a slot.
QLN::ControllerPackageInstance::Kind kindOf(VeldraControllerData const& data) {
    controllerTypeEnum type;
    if (data.getControllerType(type) == 0) {
        if (type == CONTROLLER_TYPE_EXTERNAL)
            return {packageChassis, nullptr, removalWhenOff};
        if (type == CONTROLLER_TYPE_EMBEDDED)
            return {packageOther, "System Board Storage", removalNotApplicable};
    }
    return {packageModuleCard, nullptr, removalWhenOff};
}

} // namespace

namespace QLN {

QLN_VDPhysicalPackage::QLN_VDPhysicalPackage(Logger& logger, std::string const& nameSpace,
                                             unsigned int controllerIndex,
                                             VeldraController* controller)
    : ControllerPackageInstance(logger, "QLN_VDPhysicalPackage", nameSpace, controllerIndex,
                                controller, &kindOf, "Veldra Array System Physical Package") {}

} // namespace QLN
