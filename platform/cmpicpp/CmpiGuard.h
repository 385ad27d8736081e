#pragma once
// Runs one provider operation for a function table and turns whatever it
// throws into the CMPIStatus the object manager gets back: a CmpiStatus keeps
// its code and message, a std::exception becomes CMPI_RC_ERR_FAILED with its
// what(), anything else CMPI_RC_ERR_FAILED. No C++ exception leaves it.
#include "CmpiBroker.h"
#include "CmpiProvider.h"
#include "CmpiStatus.h"
#include "cmpift.h"
#include <exception>
#include <string>

namespace CmpiCpp {

class CmpiGuard {
public:
    template <typename Body> static CMPIStatus run(CmpiProvider* provider, Body&& body) noexcept {
        if (!provider)
            return CMPIStatus{CMPI_RC_ERR_INVALID_HANDLE, nullptr};
        CmpiBroker broker;
        try {
            broker = provider->getBroker();
            body(broker);
            return CMPIStatus{CMPI_RC_OK, nullptr};
        } catch (CmpiStatus const& status) {
            return failed(broker, status.rc(), status.msg());
        } catch (std::exception const& e) {
            return failed(broker, CMPI_RC_ERR_FAILED, e.what());
        } catch (...) {
            return failed(broker, CMPI_RC_ERR_FAILED, "unknown exception");
        }
    }

    // The status with its message made through the broker if one can be made.
    static CMPIStatus failed(CmpiBroker const& broker, CMPIrc rc, std::string const& msg) noexcept;
};

} // namespace CmpiCpp
