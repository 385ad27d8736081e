#include "QLN_VDArrayControllerPhysicalPackage.h"

namespace {

// CIM_PhysicalPackage.PackageType and RemovalConditions values used here.
unsigned short const packageOther = 1;
unsigned short const packageModuleCard = 9;
unsigned short const removalNotApplicable = 2;
unsigned short const removalWhenOff = 3;

// The controller itself is a card or module, except on the system board,
// where it is a component that cannot be taken out on its own.
QLN::ControllerPackageInstance::Kind kindOf(VeldraControllerData const& data) {
    controllerTypeEnum type;
    if (data.getControllerType(type) == 0 && type == CONTROLLER_TYPE_EMBEDDED)
        return {packageOther, "System Board Component", removalNotApplicable};
    return {packageModuleCard, nullptr, removalWhenOff};
}

} // namespace

namespace QLN {

QLN_VDArrayControllerPhysicalPackage::QLN_VDArrayControllerPhysicalPackage(
    Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
    VeldraController* controller)
    : ControllerPackageInstance(logger, "QLN_VDArrayControllerPhysicalPackage", nameSpace,
                                controllerIndex, controller, &kindOf,
                                "Veldra Array Controller Physical Package") {}

} // namespace QLN
