#pragma once
// The first end is served by another provider: QLN_PCIDevice, known by its path.
// The second end is a QLN_VDPortController; the graph code passes that exact class.
#include "VeldraAssociation.h"

namespace QLN {

class QLN_VDPortControllerPCIDevice : public VeldraAssociation {
public:
    QLN_VDPortControllerPCIDevice(Logger& logger, std::string const& nameSpace,
                                  CmpiCpp::CmpiObjectPath const& pciDevicePath,
                                  CmpiManagedInstance* portController);
};

} // namespace QLN
