#pragma once
// The common virtual base of the provider family. Every function table handed
// to the object manager holds one reference; the table's cleanup drops it, and
// the last one calls cleanup() and deletes the provider, which is how its
// destructor runs when the object manager unloads it. A cleanup that says the
// object manager is terminating unloads it at once, whatever references are
// left: SFCB holds one table per registered class but cleans up only once per
// interface type, so the count alone would never reach zero there.
#include "CmpiBroker.h"
#include "CmpiContext.h"
#include <atomic>
#include <vector>

namespace CmpiCpp {

class CmpiProvider {
public:
    CmpiProvider();
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

    // Drops one reference, or all of them when terminating; at zero calls
    // cleanup(context, terminating) and deletes the provider. Returns true if
    // it was deleted. A provider already deleted is left alone, so the tables
    // still held after a terminating cleanup may be cleaned up too. A
    // throwing cleanup still deletes, then rethrows.
    static bool releaseReference(CmpiProvider* provider, CmpiContext const& context,
                                 bool terminating);
    // The same for the cleanup of a function table, given the table's handle
    // and how to turn it into the provider. The handle is read under the lock
    // that deletion takes, and deletion clears every table's handle under it
    // first, so a table cleaned up after a terminating cleanup took its
    // provider down never touches the deleted provider.
    template <typename Interface>
    static bool releaseTable(void** handle, CmpiContext const& context, bool terminating) {
        return _releaseTable(
            handle, [](void* h) -> CmpiProvider* { return static_cast<Interface*>(h); }, context,
            terminating);
    }
    // False once the provider was deleted (or for a pointer that never was one).
    static bool isLive(CmpiProvider const* provider);

protected:
    // The object manager may call a table after a terminating cleanup of
    // another one deleted the provider, so a table outlives its provider: at
    // deletion it forgets the provider (a null handle, which its operations
    // answer as such) and is kept here until the library is unloaded.
    // Registers a table's handle, cleared when the provider is deleted;
    // retireTable then keeps the table itself.
    void addTable(void** handle);
    static void retireTable(void* table, void (*destroy)(void*));

private:
    // True only for the call that takes the count from one to zero.
    bool _drop(unsigned int& remaining);
    // Under the lock of the live providers: drops one reference, or all when
    // terminating; on the last one clears the tables' handles and forgets the
    // provider, so that the caller deletes it.
    bool _releaseLocked(bool terminating);
    static bool _releaseTable(void** handle, CmpiProvider* (*provider)(void*),
                              CmpiContext const& context, bool terminating);
    static bool _finish(CmpiProvider* provider, CmpiContext const& context, bool terminating);

    std::vector<void**> _tables;

    std::atomic<unsigned int> _refcount{0};
};

} // namespace CmpiCpp
