#pragma once
// One logical disk (volume) of one controller. The instance keeps only the
// disk's serial number and reads every property from the last accepted
// snapshot, so it never needs updating; Identify lights the member disks.
#include "CmpiArgs.h"
#include "CmpiName.h"
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraLogicalDisk.h"

#include <string>

namespace QLN {

class QLN_VDStorageVolume : public ControllerManagedInstance {
public:
    QLN_VDStorageVolume(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                        VeldraLogicalDisk const& logicalDisk, VeldraController* controller);

    // Never looks the disk up, so a volume that has left the snapshot still
    // has its path (the worker needs it to delete the instance).
    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the disk is no longer in the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    // "Identify" with a uint32 Duration in seconds: 0 done, 2 refused or the
    // volume is gone, 17 for any other method or argument.
    unsigned int invokeMethod(CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in);
    using CmpiManagedInstance::invokeMethod;

    std::string const& getSerialNumber() const { return _serialNumber; }

private:
    std::string _systemName() const;

    std::string _serialNumber;
    unsigned int _acceleratorStatus;
};

} // namespace QLN
