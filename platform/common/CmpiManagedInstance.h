#pragma once
// Base of every CIM class the provider serves. An instance keeps identity
// only and computes its path and properties when asked; the collection owns
// it and deletes it through the virtual destructor.
#include "CmpiArgs.h"
#include "CmpiInstance.h"
#include "CmpiMethodResult.h"
#include "CmpiName.h"
#include "CmpiObjectPath.h"

#include <atomic>
#include <cstdint>

namespace QLN {

class CmpiManagedInstance {
public:
    CmpiManagedInstance();
    CmpiManagedInstance(CmpiManagedInstance const&) = delete;
    CmpiManagedInstance& operator=(CmpiManagedInstance const&) = delete;
    virtual ~CmpiManagedInstance();

    // Must not touch the hardware: the collection calls it to match requests.
    virtual CmpiCpp::CmpiObjectPath getPath() const = 0;
    virtual CmpiCpp::CmpiInstance getInstance() const = 0;
    // The CMPI return code for an unknown method, handed back as a value.
    static constexpr std::uint32_t methodNotFound = 17;

    // Classes without extrinsic methods keep this one: it answers every
    // method with methodNotFound.
    virtual void invokeMethod(CmpiCpp::CmpiName const& method, CmpiCpp::CmpiArgs const& in,
                              CmpiCpp::CmpiMethodResult& result);
    virtual CmpiCpp::CmpiName getClassName() const = 0;

    // An invisible instance counts as gone: requests skip it and the
    // collection's cleanup() deletes it. Atomic, since the view update sets
    // it outside the provider's lock while requests read it.
    bool visible() const { return _visible.load(std::memory_order_acquire); }
    void setVisible(bool visible) { _visible.store(visible, std::memory_order_release); }

private:
    std::atomic<bool> _visible{true};
};

} // namespace QLN
