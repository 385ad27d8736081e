#pragma once
// A light wrapper of the object manager's broker pointer. It owns nothing;
// copies are cheap. The thread operations are what a provider's own thread
// needs before it may call the broker (prepare on the request thread, attach
// on the new thread, detach when done).
#include "cmpift.h"

namespace CmpiCpp {

class CmpiContext;
class CmpiInstance;
class CmpiName;
class CmpiObjectPath;

class CmpiBroker {
public:
    CmpiBroker() = default;
    CmpiBroker(CMPIBroker const* broker) : _broker(broker) {}

    CMPIBroker const* toCMPI() const { return _broker; }
    bool isNull() const { return _broker == nullptr; }

    // Each throws CmpiStatus when the broker is null or reports a failure.
    CmpiContext prepareAttachThread(CmpiContext const& context) const;
    void attachThread(CmpiContext const& context) const;
    void detachThread(CmpiContext const& context) const;

    // Asks the object manager for an instance another provider serves (the
    // far end of an association). Throws CmpiStatus when there is none.
    CmpiInstance getInstance(CmpiContext const& context, CmpiObjectPath const& path,
                             char const** properties) const;

    // Whether the path's class is `type` or one of its subclasses, as the
    // object manager's class repository has it.
    bool classPathIsA(CmpiObjectPath const& path, CmpiName const& type) const;

private:
    CMPIBroker const* _broker = nullptr;
};

} // namespace CmpiCpp
