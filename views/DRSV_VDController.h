#pragma once
// The controller as the host view shows it: "vmwControllerDRVD<n>". It also
// holds the controller's side of the rescan handshake: the view's volumes
// and extents are rebuilt when the controller's significant-change count
// has moved since the last time it was asked.
#include "ViewInstance.h"

namespace QLN {

class DRSV_VDController : public ViewInstance {
public:
    DRSV_VDController(Logger& logger, std::string const& nameSpace, unsigned int controllerIndex,
                      VeldraController* controller);

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;

    // True once per movement of the count: asking consumes the answer.
    bool needsRescan();

    // The log line shared with the firmware class, which answers under it too.
    static char const* const getInstanceLogLine;

private:
    unsigned short _getHealthState(VeldraControllerData const& data) const;

    std::string _name;
};

} // namespace QLN
