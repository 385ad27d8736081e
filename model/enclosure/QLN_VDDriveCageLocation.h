#pragma once
// Where a drive cage sits: its controller and box, its place in a duplex
// enclosure, and the location parts.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <optional>
#include <string>

namespace QLN {

class QLN_VDDriveCageLocation : public ControllerManagedInstance {
public:
    QLN_VDDriveCageLocation(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                            VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    // "Non Duplex", "Duplex Top", "Duplex Bottom"; nothing for other values.
    static std::optional<std::string> duplexTagOf(int duplexLocation);

    int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }

private:
    int _boxNumber;
    int _enclosureBoxNumber;
};

} // namespace QLN
