#include "QLN_VDStorageRedundancySet.h"

#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "QLNUtil.h"
#include "VDArrayValues.h"
#include "VeldraStorageFunctions.h"

#include <vector>

namespace {
char const* const className = "QLN_VDStorageRedundancySet";
// CIM_StorageRedundancySet.RedundancyStatus values.
unsigned int const fullyRedundant = 2;
unsigned int const redundancyLost = 4;
// TypeOfSet 5: sparing.
unsigned short const sparingSet = 5;
} // namespace

namespace QLN {

QLN_VDStorageRedundancySet::QLN_VDStorageRedundancySet(Logger& logger, std::string const& nameSpace,
                                                       unsigned int controllerIndex,
                                                       VeldraLogicalDisk const& logicalDisk,
                                                       VeldraController* controller)
    : ControllerManagedInstance(logger, className, nameSpace, controllerIndex, controller),
      _logicalDiskSerial(logicalDisk.getSerialNumber()), _redundancyStatus(fullyRedundant) {}

std::string QLN_VDStorageRedundancySet::_instanceId() const {
    return std::string(className) + "-" + _logicalDiskSerial;
}

CmpiCpp::CmpiObjectPath QLN_VDStorageRedundancySet::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDStorageRedundancySet::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("InstanceID", _instanceId());
    instance.addProperty("ElementName", "Storage Redundancy Set");
    instance.addProperty("RedundancyStatus",
                         static_cast<unsigned short>(_redundancyStatus & 0xFFFF));
    instance.addProperty("LoadBalanceAlgorithm", static_cast<unsigned short>(2));
    instance.addProperty("MinNumberNeeded", 0u);
    instance.addProperty("MaxNumberSupported", 0u);
    instance.addProperty("TypeOfSet", VDArrayValues::uint16s({sparingSet}));
    return instance;
}

void QLN_VDStorageRedundancySet::manageDynamic(bool indicationsEnabled,
                                               CmpiCpp::CmpiContext const& /*context*/) {
    _logger.info("manageDynamic()");
    if (indicationsEnabled)
        _logger.info("indications enabled");
    bool spareAvailable = false;
    // A logical disk gone from the snapshot counts as one without a spare.
    if (auto const logical = _controller->findLastLogicalDisk(_logicalDiskSerial))
        spareAvailable = logical->getAtLeastOneSpareAvailable();
    unsigned int const status = spareAvailable ? fullyRedundant : redundancyLost;
    if (status == _redundancyStatus)
        return;
    _logger.info("Redundancy State change, Old: %d New: %d", _redundancyStatus, status);
    // No indication is built here: the volume's own change carries the event.
    if (indicationsEnabled)
        _logger.info("Send Redundancy State change, Old: %d New: %d", _redundancyStatus, status);
    _redundancyStatus = status;
}

} // namespace QLN
