#include "CmpiProvider.h"

#include <memory>
#include <mutex>
#include <unordered_set>
#include <vector>

namespace CmpiCpp {

namespace {
// The providers not yet deleted. The tables an object manager still holds
// point at a provider after a terminating cleanup took it down.
std::mutex liveMutex;
std::unordered_set<CmpiProvider const*>& live() {
    static std::unordered_set<CmpiProvider const*> providers;
    return providers;
}
} // namespace

CmpiProvider::CmpiProvider() {
    std::lock_guard lock(liveMutex);
    live().insert(this);
}

CmpiProvider::~CmpiProvider() {
    std::lock_guard lock(liveMutex);
    live().erase(this);
}

void CmpiProvider::retireTable(void* table, void (*destroy)(void*)) {
    static std::vector<std::unique_ptr<void, void (*)(void*)>> retired;
    std::lock_guard lock(liveMutex);
    retired.emplace_back(table, destroy);
}

bool CmpiProvider::isLive(CmpiProvider const* provider) {
    std::lock_guard lock(liveMutex);
    return live().count(provider) != 0;
}

unsigned int CmpiProvider::incRefcount() {
    return ++_refcount;
}

unsigned int CmpiProvider::decRefcount() {
    unsigned int remaining = 0;
    _drop(remaining);
    return remaining;
}

bool CmpiProvider::_drop(unsigned int& remaining) {
    // Never wrap below zero: an extra cleanup from a confused caller must not
    // turn into a count that never reaches zero again, nor into a second delete.
    unsigned int current = _refcount.load();
    while (current > 0 && !_refcount.compare_exchange_weak(current, current - 1)) {
    }
    remaining = current > 0 ? current - 1 : 0;
    return current == 1;
}

void CmpiProvider::addTable(void** handle) {
    std::lock_guard lock(liveMutex);
    _tables.push_back(handle);
}

bool CmpiProvider::_releaseLocked(bool terminating) {
    unsigned int remaining = 0;
    bool const last = terminating ? _refcount.exchange(0) > 0 : _drop(remaining);
    if (!last)
        return false;
    for (void** handle : _tables)
        __atomic_store_n(handle, nullptr, __ATOMIC_RELEASE);
    live().erase(this);
    return true;
}

bool CmpiProvider::_finish(CmpiProvider* provider, CmpiContext const& context, bool terminating) {
    try {
        provider->cleanup(context, terminating);
    } catch (...) {
        delete provider;
        throw;
    }
    delete provider;
    return true;
}

bool CmpiProvider::releaseReference(CmpiProvider* provider, CmpiContext const& context,
                                    bool terminating) {
    {
        // Under the lock, so that of two cleanups at once only one deletes,
        // and none looks at a provider the other deleted.
        std::lock_guard lock(liveMutex);
        if (provider == nullptr || live().count(provider) == 0 ||
            !provider->_releaseLocked(terminating)) {
            return false;
        }
    }
    return _finish(provider, context, terminating);
}

bool CmpiProvider::_releaseTable(void** handle, CmpiProvider* (*toProvider)(void*),
                                 CmpiContext const& context, bool terminating) {
    CmpiProvider* provider = nullptr;
    {
        std::lock_guard lock(liveMutex);
        if (handle == nullptr)
            return false;
        void* const current = __atomic_load_n(handle, __ATOMIC_ACQUIRE);
        if (current == nullptr)
            return false;
        provider = toProvider(current);
        if (!provider->_releaseLocked(terminating))
            return false;
    }
    return _finish(provider, context, terminating);
}

} // namespace CmpiCpp
