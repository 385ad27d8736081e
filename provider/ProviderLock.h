#pragma once
// Holds the provider mutex for one scope, also when an exception passes.
#include <pthread.h>

namespace QLN {

class ProviderLock {
public:
    explicit ProviderLock(pthread_mutex_t& mutex) : _mutex(mutex) { pthread_mutex_lock(&_mutex); }
    ~ProviderLock() { pthread_mutex_unlock(&_mutex); }
    ProviderLock(ProviderLock const&) = delete;
    ProviderLock& operator=(ProviderLock const&) = delete;

private:
    pthread_mutex_t& _mutex;
};

} // namespace QLN
