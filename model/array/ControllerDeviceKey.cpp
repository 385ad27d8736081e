#include "ControllerDeviceKey.h"

namespace QLN {

std::string ControllerDeviceKey::serialOr(VeldraControllerData const& data,
                                          std::string const& fallback) {
    std::string serial;
    if (data.getControllerSerialNumber(serial) == 0)
        return serial;
    return fallback;
}

} // namespace QLN
