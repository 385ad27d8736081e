#pragma once
// The firmware of an enclosure's processor as a software identity. Made only
// for an enclosure that reports a version; values come from the last
// enclosure snapshot at each request.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraEnclosure.h"

#include <string>

namespace QLN {

class QLN_VDEnclosureFirmware : public CmpiManagedInstance {
public:
    QLN_VDEnclosureFirmware(Logger& logger, std::string const& nameSpace,
                            unsigned int controllerIndex, VeldraEnclosure const& enclosure,
                            VeldraController* controller);
    ~QLN_VDEnclosureFirmware() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    // Throws CmpiStatus with code 100 when the enclosure left the snapshot.
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

    unsigned int getEnclosureBoxNumber() const { return _enclosureBoxNumber; }
    unsigned int getControllerIndex() const { return _controllerIndex; }

private:
    std::string _instanceId() const;

    std::string _namespace;
    Logger _logger;
    unsigned int _enclosureBoxNumber;
    unsigned int _controllerIndex;
    VeldraController* _controller;
};

} // namespace QLN
