#include "QLN_VDPortControllerPCIDevice.h"

namespace {
char const* const className = "QLN_VDPortControllerPCIDevice";
}

namespace QLN {

QLN_VDPortControllerPCIDevice::QLN_VDPortControllerPCIDevice(
    Logger& logger, std::string const& nameSpace, CmpiCpp::CmpiObjectPath const& pciDevicePath,
    CmpiManagedInstance* portController)
    : VeldraAssociation({className, "SystemElement", "SameElement", WrittenFirst::FirstEnd}, logger,
                        nameSpace, pciDevicePath, portController) {}

} // namespace QLN
