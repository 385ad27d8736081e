#include "CmpiGuard.h"

#include "CmpiConvert.h"

namespace CmpiCpp {

CMPIStatus CmpiGuard::failed(CmpiBroker const& broker, CMPIrc rc, std::string const& msg) noexcept {
    try {
        return CmpiConvert::status(broker, rc, msg);
    } catch (...) {
        // Out of memory for the message: the code alone still tells the failure.
        return CMPIStatus{rc, nullptr};
    }
}

} // namespace CmpiCpp
