#include "QLN_VDStoragePool.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDPoolSpace.h"

namespace {
char const* const className = "QLN_VDStoragePool";
} // namespace

namespace QLN {

QLN_VDStoragePool::QLN_VDStoragePool(Logger& logger, std::string const& nameSpace,
                                     unsigned int controllerIndex, VeldraCFUArray const& array,
                                     VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _arrayId(array.getArrayID()) {}

std::string QLN_VDStoragePool::_instanceId() const {
    return std::string(className) + "-" + std::to_string(_controllerIndex) + "-" + _arrayId;
}

CmpiCpp::CmpiObjectPath QLN_VDStoragePool::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDStoragePool::getInstance() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("ElementName", getControllerDisplayName(data) + ": Array " + _arrayId);
    // Unlike the primordial pool, this one always carries a PoolID; an
    // unreadable serial number gives the empty one.
    std::string serial;
    std::string poolId;
    if (data.getControllerSerialNumber(serial) == 0)
        poolId = serial + ":" + _arrayId;
    instance.addProperty("PoolID", poolId);
    instance.addProperty("TotalManagedSpace", VDPoolSpace::totalManagedSpace(_controller));
    instance.addProperty("RemainingManagedSpace", VDPoolSpace::remainingManagedSpace(_controller));
    return instance;
}

} // namespace QLN
