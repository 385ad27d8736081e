#pragma once
// The spare protection of one logical disk. It exists only while the logical
// disk has a spare; each worker pass refreshes whether one is still free.
#include "CmpiContext.h"
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraLogicalDisk.h"

#include <string>

namespace QLN {

class QLN_VDStorageRedundancySet : public ControllerManagedInstance {
public:
    QLN_VDStorageRedundancySet(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraLogicalDisk const& logicalDisk,
                               VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // 2 while a spare is free, 4 when none is (or the logical disk is gone).
    void manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const& context);

    std::string const& getSerialNumber() const { return _logicalDiskSerial; }
    unsigned int getRedundancyStatus() const { return _redundancyStatus; }

private:
    std::string _instanceId() const;

    std::string _logicalDiskSerial;
    unsigned int _redundancyStatus;
};

} // namespace QLN
