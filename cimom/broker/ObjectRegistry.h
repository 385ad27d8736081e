#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "EncapsulatedObject.h"

namespace Cimom {

// Owns every CMPI object and every cmpiMalloc block the broker gives out, so
// that nothing leaks whatever a provider forgets to release.
//
// Objects made while an arena is open on the calling thread belong to that
// arena and die when it is closed: the provider manager opens one around
// each call into a provider, attachThread opens one for a provider's own
// thread, and the memory services' mark() opens a nested one. Clones belong
// to no arena (a provider may keep them); they live until released or until
// the registry goes. release() frees any object at once.
class ObjectRegistry {
public:
    // The objects and blocks of one arena (an opaque handle to providers).
    class Arena {
    public:
        // In the order made; an answer makes tens of thousands, so appending
        // must stay cheap.
        std::vector<EncapsulatedObject*> objects;
        std::unordered_set<void*> blocks;
    };

    // Opens an arena for the current thread for the lifetime of the scope.
    class Scope {
    public:
        explicit Scope(ObjectRegistry& registry)
            : _registry(registry), _arena(registry.pushArena()) {}
        ~Scope() { _registry.popArena(_arena); }
        Scope(Scope const&) = delete;
        Scope& operator=(Scope const&) = delete;

    private:
        ObjectRegistry& _registry;
        Arena* _arena;
    };

    ObjectRegistry() = default;
    ~ObjectRegistry();
    ObjectRegistry(ObjectRegistry const&) = delete;
    ObjectRegistry& operator=(ObjectRegistry const&) = delete;

    // A new object in the current thread's innermost arena (or none).
    template <class T, class... Args> T* make(Args&&... args) {
        auto obj = std::make_unique<T>(*this, std::forward<Args>(args)...);
        T* raw = obj.get();
        _adopt(std::move(obj), true);
        return raw;
    }
    // A new object that no arena owns (clones, thread contexts).
    template <class T, class... Args> T* makeDetached(Args&&... args) {
        auto obj = std::make_unique<T>(*this, std::forward<Args>(args)...);
        T* raw = obj.get();
        _adopt(std::move(obj), false);
        return raw;
    }
    // Frees the object now; false if it is not (or no longer) ours.
    bool release(EncapsulatedObject* obj);

    Arena* pushArena();
    // Closes the arena and any opened above it on this thread; false if the
    // arena is not open on this thread.
    bool popArena(Arena* arena);

    void* allocate(std::size_t size);
    void* reallocate(void* block, std::size_t size);
    void deallocate(void* block);

    std::size_t liveObjects() const;
    std::size_t liveBlocks() const;

private:
    void _adopt(std::unique_ptr<EncapsulatedObject> obj, bool inArena);
    Arena* _currentArena() const;
    void _closeArenaLocked(Arena* arena, std::vector<EncapsulatedObject*>& doomed,
                           std::unordered_set<void*>& blocks);

    mutable std::mutex _mutex;
    // Every live object, owned, with its arena (null for detached ones).
    std::unordered_map<EncapsulatedObject*, Arena*> _objects;
    std::unordered_map<void*, Arena*> _blocks;
    std::unordered_map<Arena*, std::unique_ptr<Arena>> _arenas;
};

} // namespace Cimom
