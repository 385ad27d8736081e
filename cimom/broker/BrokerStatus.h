#pragma once

#include <string>

#include "cmpidt.h"

namespace Cimom {

class ObjectRegistry;

// CMPIStatus values for the broker's C entry points, and the guard that
// keeps C++ exceptions from crossing into a provider: a CimError becomes its
// code and text, any other exception CMPI_RC_ERR_FAILED.
class BrokerStatus {
public:
    static CMPIStatus ok() { return CMPIStatus{CMPI_RC_OK, nullptr}; }
    // The message is a CMPIString of the current arena (none without a registry).
    static CMPIStatus make(ObjectRegistry* registry, CMPIrc rc, std::string const& message);
    static void set(CMPIStatus* out, ObjectRegistry* registry, CMPIrc rc,
                    std::string const& message);
    static void setOk(CMPIStatus* out) {
        if (out != nullptr) {
            *out = ok();
        }
    }
    // Call from inside a catch block.
    static CMPIStatus fromCurrentException(ObjectRegistry* registry);
    // The text of a status a provider returned ("" without a message).
    static std::string message(CMPIStatus const& status);

    // Runs f on the object behind a C handle of type Obj, or answers
    // CMPI_RC_ERR_INVALID_HANDLE when the handle is not one of ours.
    template <class Obj, class C, class R, class F>
    static R on(C const* handle, CMPIStatus* rc, R fallback, F&& f) {
        Obj* self = Obj::from(handle);
        if (self == nullptr) {
            set(rc, nullptr, CMPI_RC_ERR_INVALID_HANDLE, "");
            return fallback;
        }
        return guardValue<R>(&self->registry(), rc, fallback, [&] { return f(*self); });
    }

    template <class Obj, class C, class F> static CMPIStatus onStatus(C const* handle, F&& f) {
        Obj* self = Obj::from(handle);
        if (self == nullptr) {
            return make(nullptr, CMPI_RC_ERR_INVALID_HANDLE, "");
        }
        return guard(&self->registry(), [&] { f(*self); });
    }

    template <class F> static CMPIStatus guard(ObjectRegistry* registry, F&& f) {
        try {
            f();
            return ok();
        } catch (...) {
            return fromCurrentException(registry);
        }
    }

    template <class R, class F>
    static R guardValue(ObjectRegistry* registry, CMPIStatus* rc, R fallback, F&& f) {
        try {
            R r = f();
            setOk(rc);
            return r;
        } catch (...) {
            CMPIStatus const st = fromCurrentException(registry);
            if (rc != nullptr) {
                *rc = st;
            }
            return fallback;
        }
    }
};

} // namespace Cimom
