#pragma once
// The backplane of an enclosure with the bays that hold its disks, as a
// physical package. Disk packages are tied to the cage of their box, which
// is why the graph keeps each cage's box number and routes beside it.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDDriveCage : public ControllerManagedInstance {
public:
    QLN_VDDriveCage(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                    VeldraEnclosure const& enclosure, VeldraController* controller);

    // Built from the identity alone: usable after the enclosure has gone.
    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    // "QLN_VDDriveCage-<controller>-<enclosure box number>".
    std::string getTag() const;
    int getBoxNumber() const { return _boxNumber; }
    int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    std::vector<VeldraPhysicalPath> getPaths() const { return _paths; }
    std::string const& getPortString() const { return _portString; }
    std::string const& getSerialNumber() const { return _serialNumber; }

private:
    int _boxNumber;
    int _enclosureBoxNumber;
    std::string _serialNumber;
    std::vector<VeldraPhysicalPath> _paths;
    std::string _portString;
};

} // namespace QLN
