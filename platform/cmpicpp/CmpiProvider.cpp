#include "CmpiProvider.h"

namespace CmpiCpp {

CmpiProvider::~CmpiProvider() = default;

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

bool CmpiProvider::releaseReference(CmpiProvider* provider, CmpiContext const& context,
                                    bool terminating) {
    unsigned int remaining = 0;
    if (!provider || !provider->_drop(remaining))
        return false;
    try {
        provider->cleanup(context, terminating);
    } catch (...) {
        delete provider;
        throw;
    }
    delete provider;
    return true;
}

} // namespace CmpiCpp
