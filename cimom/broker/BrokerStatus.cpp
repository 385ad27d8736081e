#include "BrokerStatus.h"

#include <exception>

#include "BrokerString.h"
#include "CimError.h"
#include "ObjectRegistry.h"

CMPIStatus BrokerStatus::make(ObjectRegistry* registry, CMPIrc rc, const std::string& message) {
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
                       const std::string& message) {
    if (out != nullptr) {
        *out = make(registry, rc, message);
    }
}

CMPIStatus BrokerStatus::fromCurrentException(ObjectRegistry* registry) {
    try {
        throw;
    } catch (const CimError& e) {
        return make(registry, e.code(), e.description());
    } catch (const std::exception& e) {
        return make(registry, CMPI_RC_ERR_FAILED, e.what());
    } catch (...) {
        return make(registry, CMPI_RC_ERR_FAILED, "unknown exception in the broker");
    }
}

std::string BrokerStatus::message(const CMPIStatus& status) {
    if (status.msg == nullptr || status.msg->ft == nullptr ||
        status.msg->ft->getCharPtr == nullptr) {
        return std::string();
    }
    const char* text = status.msg->ft->getCharPtr(status.msg, nullptr);
    return text != nullptr ? std::string(text) : std::string();
}
