#pragma once
// What the classes of one physical disk share beyond the identity helpers:
// the look-up of the disk in the controller's last snapshot and the name of
// the system that scopes it. Kept in one place so that the disk's companions cannot drift
// apart from the disk itself.
#include "CmpiObjectPath.h"
#include "Logger.h"
#include "VeldraController.h"
#include "VeldraPhysicalDisk.h"

#include <string>

namespace QLN {

class PhysicalDiskKey {
public:
    // The disk with this identity in the controller's last snapshot. A disk
    // that has left it logs `failure` as an error and throws status 100 with
    // the same text: the instance outlived its hardware until the next pass.
    static VeldraPhysicalDisk find(VeldraController* controller, Logger const& logger,
                                   std::string const& serial, int box, int bay,
                                   char const* failure);

    // The array system's Name, from the controller's last data.
    static std::string systemName(VeldraController* controller, unsigned int controllerIndex);
};

} // namespace QLN
