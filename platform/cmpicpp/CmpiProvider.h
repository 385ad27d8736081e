#pragma once
// The common virtual base of the provider family. Every function table handed
// to the object manager holds one reference; the table's cleanup drops it, and
// the last one calls cleanup() and deletes the provider, which is how its
// destructor runs when the object manager unloads it.
#include "CmpiBroker.h"
#include "CmpiContext.h"
#include <atomic>

namespace CmpiCpp {

class CmpiProvider {
public:
    CmpiProvider() = default;
    CmpiProvider(CmpiProvider const&) = delete;
    CmpiProvider& operator=(CmpiProvider const&) = delete;
    virtual ~CmpiProvider();

    virtual CmpiBroker getBroker() = 0;
    // Called once, when the last reference goes, right before deletion.
    virtual void cleanup(CmpiContext const& context, bool terminating) = 0;
    virtual int getProviderKind() = 0;

    // Returns the new count.
    unsigned int incRefcount();
    // Returns the new count; does not delete (the caller decides, see
    // releaseReference).
    unsigned int decRefcount();
    unsigned int getRefcount() const { return _refcount.load(); }

    // Drops one reference; at zero calls cleanup(context, terminating) and
    // deletes the provider. Returns true if it was deleted. A throwing
    // cleanup still deletes, then rethrows.
    static bool releaseReference(CmpiProvider* provider, CmpiContext const& context,
                                 bool terminating);

private:
    // True only for the call that takes the count from one to zero.
    bool _drop(unsigned int& remaining);

    std::atomic<unsigned int> _refcount{0};
};

} // namespace CmpiCpp
