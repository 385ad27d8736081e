#pragma once
// What the classes of one physical disk share: the text that names the disk
// in their keys, and the look-up of the disk in the controller's last
// snapshot. Kept in one place so that the disk's companions cannot drift
// apart from the disk itself.
#include "CmpiObjectPath.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"

#include <string>

namespace QLN {

class PhysicalDiskKey {
public:
    // "<model>-<serial>" without whitespace; a disk without a serial number
    // is named by where it sits instead, `<prefix><box>:<bay>`.
    static std::string name(std::string const& serial, std::string const& model,
                            std::string const& prefix, int box, int bay);

    // The disk with this identity in the controller's last snapshot. A disk
    // that has left it logs `failure` as an error and throws status 100 with
    // the same text: the instance outlived its hardware until the next pass.
    static VeldraPhysicalDisk find(VeldraController* controller, Logger const& logger,
                                   std::string const& serial, int box, int bay,
                                   char const* failure);

    // SystemCreationClassName, CreationClassName, SystemName and `lastKeyName`,
    // in this order, on the host of the moment.
    static CmpiCpp::CmpiObjectPath devicePath(std::string const& nameSpace, char const* className,
                                              VeldraController* controller,
                                              unsigned int controllerIndex, char const* lastKeyName,
                                              std::string const& lastKeyValue);

    // The array system's Name, from the controller's last data.
    static std::string systemName(VeldraController* controller, unsigned int controllerIndex);
};

} // namespace QLN
