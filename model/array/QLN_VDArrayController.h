#pragma once
// One array controller as a system of its own. Its instance is where nearly
// all of the controller's stored data becomes CIM properties; a property
// whose getter cannot answer is left out rather than guessed.
#include "CmpiContext.h"
#include "ControllerManagedInstance.h"
#include "DeviceEvents.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDArrayController : public ControllerManagedInstance {
public:
    QLN_VDArrayController(Logger& logger, std::string const& nameSpace,
                          unsigned int controllerIndex, VeldraController* controller);

    // Shares its Name with the array system; only the class tells them apart.
    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // True until the change detection has made its first survey.
    bool isFirstStatus() const { return _firstStatus; }

    // One poll of the controller: compares what the hardware reports now
    // with the stored snapshots, stores the new ones, and tells the worker
    // which devices came, went or changed the way they are wired. The two
    // path change lists are appended to, all others are replaced.
    void manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const& context,
                       std::vector<VeldraEnclosure>& currentEnclosures,
                       std::vector<VeldraEnclosure>& newEnclosures,
                       std::vector<VeldraEnclosure>& removedEnclosures,
                       std::vector<VeldraEnclosure>& pathChangeEnclosures,
                       std::vector<VeldraLogicalDisk>& currentLogicals,
                       std::vector<VeldraLogicalDisk>& newLogicals,
                       std::vector<VeldraLogicalDisk>& removedLogicals,
                       std::vector<VeldraPhysicalDisk>& currentPhysicals,
                       std::vector<VeldraPhysicalDisk>& newPhysicals,
                       std::vector<VeldraPhysicalDisk>& removedPhysicals,
                       std::vector<VeldraPhysicalDisk>& configChangedPhysicals,
                       std::vector<VeldraPhysicalDisk>& spareStateChangePhysicals,
                       std::vector<VeldraPhysicalDisk>& pathChangePhysicals);

private:
    void _firstStatusPass(DeviceEvents& events, bool indicationsEnabled);
    void _controllerDataStage(DeviceEvents& events, bool indicationsEnabled);
    void _enclosurePass(DeviceEvents& events, bool indicationsEnabled, std::string const& serial,
                        std::vector<VeldraEnclosure>& current, std::vector<VeldraEnclosure>& added,
                        std::vector<VeldraEnclosure>& removed,
                        std::vector<VeldraEnclosure>& pathChanged);
    void _physicalPass(DeviceEvents& events, bool indicationsEnabled, std::string const& serial,
                       std::vector<VeldraPhysicalDisk>& current,
                       std::vector<VeldraPhysicalDisk>& added,
                       std::vector<VeldraPhysicalDisk>& removed,
                       std::vector<VeldraPhysicalDisk>& configChanged,
                       std::vector<VeldraPhysicalDisk>& spareStateChanged,
                       std::vector<VeldraPhysicalDisk>& pathChanged);
    void _logicalPass(DeviceEvents& events, bool indicationsEnabled, std::string const& serial,
                      std::vector<VeldraPhysicalDisk>& physicals,
                      std::vector<VeldraLogicalDisk>& current,
                      std::vector<VeldraLogicalDisk>& added,
                      std::vector<VeldraLogicalDisk>& removed);

    bool _firstStatus;
};

} // namespace QLN
