#pragma once
// The protection that one logical disk was set up with, as CIM setting data.
// It keeps only the disk's serial number and finds the disk in the last
// snapshot at each request.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraLogicalDisk.h"

#include <string>

namespace QLN {

class QLN_VDStorageSetting : public ControllerManagedInstance {
public:
    QLN_VDStorageSetting(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                         VeldraLogicalDisk const& logicalDisk, VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the disk is no longer in the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    std::string const& getSerialNumber() const { return _serialNumber; }

private:
    std::string _instanceId() const;

    std::string _serialNumber;
};

} // namespace QLN
