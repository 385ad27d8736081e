#include "QLN_VDMediaAccessStatData.h"

#include "CmpiBroker.h"
#include "CmpiDateTime.h"
#include "IdentityHelpers.h"
#include "PhysicalDiskKey.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

#include <utility>

namespace {
char const* const className = "QLN_VDMediaAccessStatData";
char const* const notFound =
    "getInstance,findPhysicalDiskInVector could not find drive based on serial # or location";
} // namespace

namespace QLN {

QLN_VDMediaAccessStatData::QLN_VDMediaAccessStatData(Logger& logger, std::string const& nameSpace,
                                                     unsigned int controllerIndex,
                                                     VeldraPhysicalDisk const& disk,
                                                     VeldraController* controller)
    : DiskCompanion(logger, nameSpace, className, controllerIndex, disk, controller) {}

std::string QLN_VDMediaAccessStatData::_instanceId() const {
    return std::string(className) + "-" + diskKeyName(_serialNumber, _model, "", _boxNumber, _bay);
}

CmpiCpp::CmpiObjectPath QLN_VDMediaAccessStatData::getPath() const {
    return _pathByKey("InstanceID", _instanceId());
}

CmpiCpp::CmpiInstance QLN_VDMediaAccessStatData::getInstance() const {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    VeldraPhysicalDisk const disk = _findDisk(notFound);
    instance.addProperty("InstanceID", _instanceId());
    // The counters run since the disk was made; there is no sampling period.
    instance.addProperty("SampleInterval", CmpiCpp::makeCmpiDateTime(broker, 0ULL, true));
    instance.addProperty("ElementName", pathsToUserStr(disk.getPaths(), disk.getBay()));

    VeldraDiskStatistics const s = disk.getDiskStatistics();
    std::pair<char const*, u64> const counters[] = {
        {"AbortedCommands", s.abortedCommands},
        {"BadTargetErrors", s.badTargetErrors},
        {"ECCRecoveredReadErrors", s.eccRecoveredReadErrors},
        {"FormatErrors", s.formatErrors},
        {"HardReadErrors", s.hardReadErrors},
        {"HardWriteErrors", s.hardWriteErrors},
        {"HardwareErrors", s.hardwareErrors},
        {"HotPlugCount", s.hotPlugCount},
        {"MediaFailures", s.mediaFailures},
        {"NotReadyErrors", s.notReadyErrors},
        {"OtherTimeOuts", s.otherTimeOuts},
        {"SCSIBusFaults", s.scsiBusFaults},
        {"SectorsRead", s.sectorsRead},
        {"SectorsWritten", s.sectorsWritten},
        {"SeekCount", s.seekCount},
        {"SeekErrors", s.seekErrors},
        {"SpinUpErrors", s.spinUpErrors},
        {"DRQTimeOuts", s.drqTimeOuts},
        {"RetryRecoveredReadErrors", s.retryRecoveredReadErrors},
        {"RetryRecoveredWriteErrors", s.retryRecoveredWriteErrors},
        {"FailedReadRecovers", s.failedReadRecovers},
        {"FailedWriteRecovers", s.failedWriteRecovers},
        {"ServiceHours", s.serviceHours},
    };
    static_assert(sizeof counters / sizeof counters[0] ==
                      sizeof(VeldraDiskStatistics) / sizeof(u64),
                  "every counter of the record is published");
    // All ones is the drive's "not counted"; such a counter is left out, not shown as a number.
    for (auto const& [name, value] : counters)
        if (value != VeldraDiskStatistics::notAvailable)
            instance.addProperty(name, static_cast<unsigned long long>(value));
    return instance;
}

} // namespace QLN
