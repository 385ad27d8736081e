#include "QLN_VDPrimordialPool.h"

#include "CmpiBroker.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VDPoolSpace.h"

namespace {
char const* const className = "QLN_VDPrimordialPool";
} // namespace

namespace QLN {

QLN_VDPrimordialPool::QLN_VDPrimordialPool(Logger& logger, std::string const& nameSpace,
                                           unsigned int controllerIndex,
                                           VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller) {}

std::string QLN_VDPrimordialPool::_instanceId() const {
    return std::string(className) + "-" + std::to_string(_controllerIndex);
}

CmpiCpp::CmpiObjectPath QLN_VDPrimordialPool::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDPrimordialPool::getInstance() const {
    VeldraControllerData data;
    _controller->getLastVDData(data);
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("ElementName", getControllerDisplayName(data) + ": Primordial Pool");
    // Without a serial number there is nothing that identifies the pool
    // across hosts, so PoolID is left out rather than made up.
    std::string serial;
    if (data.getControllerSerialNumber(serial) == 0)
        instance.addProperty("PoolID", serial);
    instance.addProperty("TotalManagedSpace", VDPoolSpace::totalManagedSpace(_controller));
    instance.addProperty("RemainingManagedSpace", VDPoolSpace::remainingManagedSpace(_controller));
    return instance;
}

} // namespace QLN
