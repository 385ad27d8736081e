#pragma once
// The firmware of an enclosure's processor as a software identity. Made only
// for an enclosure that reports a version; values come from the last
// enclosure snapshot at each request.
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <string>

namespace QLN {

class QLN_VDEnclosureFirmware : public ControllerManagedInstance {
public:
    QLN_VDEnclosureFirmware(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                            VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;

    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }

private:
    std::string _instanceId() const;

    unsigned int _enclosureBoxNumber;
};

} // namespace QLN
