#pragma once
// The management processor of an enclosure: the instance that carries the
// enclosure's health, with the fan, power supply and temperature states
// beside the overall one. Known, like the enclosure, by its box number.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"
#include "VeldraPhysicalPath.h"

#include <string>
#include <vector>

namespace QLN {

class QLN_VDStorageEnclosureProcessor : public ControllerManagedInstance {
public:
    QLN_VDStorageEnclosureProcessor(Logger& logger, std::string const& nameSpace,
                                    unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                                    VeldraController* controller);

    // Built from the identity alone: usable after the enclosure has gone.
    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    std::string const& getSerialNumber() const { return _serialNumber; }
    unsigned int getBoxNumber() const { return _boxNumber; }
    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    std::string const& getPortString() const { return _portString; }
    std::vector<VeldraPhysicalPath> const& getPaths() const { return _paths; }

private:
    std::string _serialNumber;
    std::vector<VeldraPhysicalPath> _paths;
    std::string _portString;
    unsigned int _boxNumber;
    unsigned int _enclosureBoxNumber;
};

} // namespace QLN
