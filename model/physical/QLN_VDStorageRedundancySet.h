#pragma once
// The spare protection of one logical disk. It exists only while the logical
// disk has a spare; each worker pass refreshes whether one is still free.
#include "CmpiContext.h"
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraLogicalDisk.h"

#include <string>

namespace QLN {

class QLN_VDStorageRedundancySet : public CmpiManagedInstance {
public:
    QLN_VDStorageRedundancySet(Logger& logger, std::string const& nameSpace,
                               unsigned int controllerIndex, VeldraLogicalDisk const& logicalDisk,
                               VeldraController* controller);
    ~QLN_VDStorageRedundancySet() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    // 2 while a spare is free, 4 when none is (or the logical disk is gone).
    void manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const& context);

    std::string const& getSerialNumber() const { return _logicalDiskSerial; }
    unsigned int getRedundancyStatus() const { return _redundancyStatus; }
    unsigned int getControllerIndex() const { return _controllerIndex; }
    VeldraController* getController() const { return _controller; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    unsigned int _controllerIndex;
    std::string _logicalDiskSerial;
    VeldraController* _controller;
    unsigned int _redundancyStatus;
};

} // namespace QLN
