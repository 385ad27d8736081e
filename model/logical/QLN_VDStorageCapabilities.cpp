#include "QLN_VDStorageCapabilities.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

namespace {
char const* const className = "QLN_VDStorageCapabilities";
// CIM_StorageCapabilities.ElementType: 5 is "StoragePool".
unsigned short const storagePoolElementType = 5;
} // namespace

namespace QLN {

QLN_VDStorageCapabilities::QLN_VDStorageCapabilities(Logger& logger, std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraCFUArray const& array,
                                                     VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _arrayId(array.getArrayID()) {}

std::string QLN_VDStorageCapabilities::_instanceId() const {
    std::string id = std::string(className) + "-" + std::to_string(_controllerIndex);
    if (!_arrayId.empty())
        id += "-" + _arrayId;
    return id;
}

std::string QLN_VDStorageCapabilities::_elementName(VeldraControllerData const& data) const {
    std::string name = "Veldra ";
    int slot = 0;
    std::string const index = std::to_string(_controllerIndex);
    if (data.getPCISlotNumber(slot) != 0) {
        name += "UNKNOWN-" + index;
    } else if (slot > 0) {
        name += "in Slot " + std::to_string(slot);
    } else if (slot < 0) {
        name += "External " + index;
    } else {
        name += "Embedded " + index;
    }
    if (!_arrayId.empty())
        name += ": Array " + _arrayId;
    return name;
}

CmpiCpp::CmpiObjectPath QLN_VDStorageCapabilities::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDStorageCapabilities::getInstance() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("ElementName", _elementName(data));
    instance.addProperty("ElementType", storagePoolElementType);
    instance.addProperty("DeltaReservationDefault", static_cast<unsigned short>(0));
    instance.addProperty("DeltaReservationMax", static_cast<unsigned short>(0));
    instance.addProperty("DeltaReservationMin", static_cast<unsigned short>(0));

    unsigned int dataDisks = 0;
    for (VeldraPhysicalDisk const& disk : _controller->getLastAllPhysicalDisks())
        if (disk.getConfiguration() == PD_CONFIG_DATA)
            ++dataDisks;

    // An even number of data disks can be mirrored pairwise, which gives the
    // second copy; an odd number leaves parity, one copy. Only the parity of
    // the count decides, by design.
    unsigned short const dataRedundancy = (dataDisks % 2 == 0) ? 2 : 1;
    bool const noSinglePointOfFailure = dataDisks > 1;
    unsigned short packageRedundancy = 2;
    if (dataDisks < 2) {
        packageRedundancy = 0;
    } else if (dataDisks < 4) {
        packageRedundancy = 1;
    }
    instance.addProperty("DataRedundancyDefault", dataRedundancy);
    instance.addProperty("DataRedundancyMax", dataRedundancy);
    instance.addProperty("DataRedundancyMin", static_cast<unsigned short>(1));
    instance.addProperty("NoSinglePointOfFailure", noSinglePointOfFailure);
    instance.addProperty("NoSinglePointOfFailureDefault", noSinglePointOfFailure);
    instance.addProperty("PackageRedundancyDefault", packageRedundancy);
    instance.addProperty("PackageRedundancyMax", packageRedundancy);
    instance.addProperty("PackageRedundancyMin", static_cast<unsigned short>(0));
    return instance;
}

} // namespace QLN
