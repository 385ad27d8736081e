#include "QLN_VDStorageSetting.h"

#include "CmpiBroker.h"
#include "CmpiStatus.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

#include <optional>
#include <vector>

namespace {
char const* const className = "QLN_VDStorageSetting";
char const* const notFoundText =
    "getInstance, findLogicalDiskInVector could not find logical based on serial #";
// Not a CMPI code: the provider's own, so that a client can tell a volume that
// vanished between enumeration and fetch from an ordinary miss.
int const logicalDiskGoneCode = 100;

// Copies of the data that each known tolerance keeps; a tolerance beyond the
// known ones is not described rather than guessed.
std::optional<unsigned short> dataRedundancyOf(unsigned int tolerance) {
    switch (tolerance) {
    case 1:
    case 4:
    case 5:
    case 7:
    case 8:
    case 9:
        return 1;
    case 2:
    case 3:
    case 6:
        return 2;
    }
    return std::nullopt;
}

// Disks that may fail without loss of data.
std::optional<unsigned short> packageRedundancyOf(unsigned int tolerance) {
    if (tolerance == 1)
        return 0;
    if (tolerance >= 2 && tolerance <= 6)
        return 1;
    if (tolerance >= 7 && tolerance <= 9)
        return 2;
    return std::nullopt;
}
} // namespace

namespace QLN {

QLN_VDStorageSetting::QLN_VDStorageSetting(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex,
                                           VeldraLogicalDisk const& logicalDisk,
                                           VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _serialNumber(logicalDisk.getSerialNumber()) {}

std::string QLN_VDStorageSetting::_instanceId() const {
    return std::string(className) + "-" + _serialNumber;
}

CmpiCpp::CmpiObjectPath QLN_VDStorageSetting::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDStorageSetting::getInstance() const {
    std::optional<VeldraLogicalDisk> const found = _controller->findLastLogicalDisk(_serialNumber);
    if (!found) {
        _logger.error("%s", notFoundText);
        throw CmpiCpp::CmpiStatus(static_cast<CMPIrc>(logicalDiskGoneCode), notFoundText);
    }
    VeldraLogicalDisk const& logical = *found;
    VeldraLogicalToleranceEnum const tolerance = logical.getTolerance();

    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("ChangeableType", static_cast<unsigned short>(0));
    instance.addProperty("DeltaReservationGoal", static_cast<unsigned char>(0));
    instance.addProperty("DeltaReservationMax", static_cast<unsigned char>(0));
    instance.addProperty("DeltaReservationMin", static_cast<unsigned char>(0));
    instance.addProperty("ElementName", logical.toleranceToStr(tolerance));
    instance.addProperty("NoSinglePointOfFailure", static_cast<unsigned int>(tolerance) >= 2);
    if (auto copies = dataRedundancyOf(tolerance)) {
        instance.addProperty("DataRedundancyGoal", *copies);
        instance.addProperty("DataRedundancyMax", *copies);
        instance.addProperty("DataRedundancyMin", *copies);
    }
    if (auto spares = packageRedundancyOf(tolerance)) {
        instance.addProperty("PackageRedundancyGoal", *spares);
        instance.addProperty("PackageRedundancyMax", *spares);
        instance.addProperty("PackageRedundancyMin", *spares);
    }
    return instance;
}

} // namespace QLN
