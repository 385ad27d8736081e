#pragma once
// One controller seen as a storage system: the top of the model, to which the
// controller, ports, pools, volumes and disks hang by association. The only
// class with health of its own: the worker recomputes a consolidated status
// on each pass from the stored snapshots, and `Identify` lights every disk.
#include "CmpiArgs.h"
#include "CmpiContext.h"
#include "ControllerManagedInstance.h"
#include "Logger.h"
#include "VeldraController.h"

#include <string>

namespace QLN {

class QLN_VDArraySystem : public ControllerManagedInstance {
public:
    QLN_VDArraySystem(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                      VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // Status consolidation of one worker pass. The context is not used; the
    // flag only adds a log line.
    void manageDynamic(bool indicationsEnabled, CmpiCpp::CmpiContext const& context);

    // The extrinsic method, called by the provider's dispatch after it has
    // narrowed the instance to this class. Returns the method's return value.
    unsigned int invokeMethod(CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in);
    using CmpiManagedInstance::invokeMethod;

    int getStatus() const { return _status; }
    std::string const& getStatusText() const { return _statusText; }

private:
    int _status;
    std::string _statusText;
};

} // namespace QLN
