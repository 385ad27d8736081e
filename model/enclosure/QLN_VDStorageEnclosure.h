#pragma once
// An enclosure behind a controller, as a physical package. It is known by its
// enclosure box number (not its serial number) and reads its values from the
// controller's last enclosure snapshot at each request.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDStorageEnclosure : public ControllerManagedInstance {
public:
    QLN_VDStorageEnclosure(Logger& logger, std::string const& nameSpace,
                           unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                           VeldraController* controller);

    // Built from the identity alone: usable after the enclosure has gone.
    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    // 1 internal, 2 external, 0 unknown, read from letters of the user text.
    static unsigned short locationOf(std::string const& userText);

    std::string const& getSerialNumber() const { return _serialNumber; }
    unsigned int getBoxNumber() const { return _boxNumber; }
    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    std::string const& getPortString() const { return _portString; }
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }

private:
    std::string _serialNumber;
    unsigned int _boxNumber;
    unsigned int _enclosureBoxNumber;
    std::string _portString;
    std::vector<VeldraPhysicalPath> _paths;
};

} // namespace QLN
