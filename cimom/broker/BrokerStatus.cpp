#include "BrokerStatus.h"

#include <exception>

#include "BrokerString.h"
#include "CimError.h"
#include "ObjectRegistry.h"

namespace Cimom {

CMPIStatus BrokerStatus::make(ObjectRegistry* registry, CMPIrc rc, std::string const& message) {
    CMPIStatus st{rc, nullptr};
    if (registry != nullptr && !message.empty()) {
        try {
            st.msg = registry->make<BrokerString>(message)->cmpi();
        } catch (...) {
            // Out of memory: the code alone still tells what failed.
        }
    }
    return st;
}

void BrokerStatus::set(CMPIStatus* out, ObjectRegistry* registry, CMPIrc rc,
                       std::string const& message) {
    if (out != nullptr) {
        *out = make(registry, rc, message);
    }
}

CMPIStatus BrokerStatus::fromCurrentException(ObjectRegistry* registry) {
    try {
        throw;
    } catch (CimError const& e) {
        return make(registry, e.code(), e.description());
    } catch (std::exception const& e) {
        return make(registry, CMPI_RC_ERR_FAILED, e.what());
    } catch (...) {
        return make(registry, CMPI_RC_ERR_FAILED, "unknown exception in the broker");
    }
}

std::string BrokerStatus::message(CMPIStatus const& status) {
    if (status.msg == nullptr || status.msg->ft == nullptr ||
        status.msg->ft->getCharPtr == nullptr) {
        return std::string();
    }
    char const* text = status.msg->ft->getCharPtr(status.msg, nullptr);
    return text != nullptr ? std::string(text) : std::string();
}

} // namespace Cimom
