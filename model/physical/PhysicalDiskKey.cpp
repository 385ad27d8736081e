#include "PhysicalDiskKey.h"

#include "CmpiBroker.h"
#include "CmpiStatus.h"
#include "IdentityHelpers.h"
#include "QLNUtil.h"
#include "VeldraStorageFunctions.h"

#include <vector>

namespace {
char const* const arraySystemClass = "QLN_VDArraySystem";
} // namespace

namespace QLN {

std::string PhysicalDiskKey::name(std::string const& serial, std::string const& model,
                                  std::string const& prefix, int box, int bay) {
    if (serial.empty())
        return prefix + std::to_string(box) + ":" + std::to_string(bay);
    return removeWhitespace(model) + "-" + removeWhitespace(serial);
}

VeldraPhysicalDisk PhysicalDiskKey::find(VeldraController* controller, Logger const& logger,
                                         std::string const& serial, int box, int bay,
                                         char const* failure) {
    // Through the snapshot's index: this runs for every instance of every
    // disk class, and a scan would make an enumeration quadratic.
    std::optional<VeldraPhysicalDisk> disk = controller->findLastPhysicalDisk(serial, box, bay);
    if (!disk) {
        logger.error("%s", failure);
        throw CmpiCpp::CmpiStatus(CMPI_RC_ERROR_SYSTEM, failure);
    }
    return std::move(*disk);
}

std::string PhysicalDiskKey::systemName(VeldraController* controller,
                                        unsigned int controllerIndex) {
    return getControllerName(*controller->shareLastVDData(), static_cast<int>(controllerIndex));
}

CmpiCpp::CmpiObjectPath
PhysicalDiskKey::devicePath(std::string const& nameSpace, char const* className,
                            VeldraController* controller, unsigned int controllerIndex,
                            char const* lastKeyName, std::string const& lastKeyValue) {
    CmpiCpp::CmpiBroker broker(QLNUtil::getBroker());
    CmpiCpp::CmpiObjectPath path = CmpiCpp::makeCmpiObjectPath(broker, nameSpace, className);
    path.setHost(QLNUtil::getHostName());
    path.addKey("SystemCreationClassName", arraySystemClass);
    path.addKey("CreationClassName", className);
    path.addKey("SystemName", systemName(controller, controllerIndex));
    path.addKey(lastKeyName, lastKeyValue);
    return path;
}

} // namespace QLN
