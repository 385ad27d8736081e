#pragma once
// Where an enclosure stands as seen from its controller: the routes to it
// for people, internal or external by its ports, and the location parts.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <string>

namespace QLN {

class QLN_VDStorageEnclosureLocation : public ControllerManagedInstance {
public:
    QLN_VDStorageEnclosureLocation(Logger& logger, std::string const& nameSpace,
                                   unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                                   VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    // "Internal", "External" or "Unknown" from the letters of the port text.
    static std::string locationTagOf(std::string const& portText);

    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }

private:
    unsigned int _enclosureBoxNumber;
};

} // namespace QLN
