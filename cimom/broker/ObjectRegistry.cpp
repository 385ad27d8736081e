#include "ObjectRegistry.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace Cimom {

namespace {
// Open arenas of this thread, innermost last, for every registry alive.
thread_local std::vector<std::pair<ObjectRegistry const*, ObjectRegistry::Arena*>> openArenas;
} // namespace

ObjectRegistry::~ObjectRegistry() {
    // Arenas still open on this thread point at us; drop them from the stack.
    openArenas.erase(std::remove_if(openArenas.begin(), openArenas.end(),
                                    [this](auto const& e) { return e.first == this; }),
                     openArenas.end());
    for (auto& [block, arena] : _blocks) {
        std::free(block);
    }
    // Objects may hold nothing of each other, so the order does not matter.
    for (auto& [object, arena] : _objects) {
        delete object;
    }
}

ObjectRegistry::Arena* ObjectRegistry::_currentArena() const {
    for (auto it = openArenas.rbegin(); it != openArenas.rend(); ++it) {
        if (it->first == this) {
            return it->second;
        }
    }
    return nullptr;
}

void ObjectRegistry::_adopt(std::unique_ptr<EncapsulatedObject> obj, bool inArena) {
    Arena* arena = inArena ? _currentArena() : nullptr;
    std::lock_guard<std::mutex> lock(_mutex);
    EncapsulatedObject* raw = obj.release();
    _objects.emplace(raw, arena);
    if (arena != nullptr) {
        arena->objects.push_back(raw);
    }
}

bool ObjectRegistry::release(EncapsulatedObject* obj) {
    {
        std::lock_guard<std::mutex> lock(_mutex);
        auto it = _objects.find(obj);
        if (it == _objects.end()) {
            return false;
        }
        if (Arena* arena = it->second) {
            // Objects released early are mostly the newest ones.
            auto& objects = arena->objects;
            auto at = std::find(objects.rbegin(), objects.rend(), obj);
            objects.erase(std::next(at).base());
        }
        _objects.erase(it);
    }
    delete obj;
    return true;
}

ObjectRegistry::Arena* ObjectRegistry::pushArena() {
    auto arena = std::make_unique<Arena>();
    Arena* raw = arena.get();
    {
        std::lock_guard<std::mutex> lock(_mutex);
        _arenas.emplace(raw, std::move(arena));
    }
    openArenas.emplace_back(this, raw);
    return raw;
}

void ObjectRegistry::_closeArenaLocked(Arena* arena, std::vector<EncapsulatedObject*>& doomed,
                                       std::unordered_set<void*>& blocks) {
    for (EncapsulatedObject* obj : arena->objects) {
        doomed.push_back(obj);
        _objects.erase(obj);
    }
    for (void* block : arena->blocks) {
        blocks.insert(block);
        _blocks.erase(block);
    }
    _arenas.erase(arena);
}

bool ObjectRegistry::popArena(Arena* arena) {
    auto const pos = std::find(openArenas.begin(), openArenas.end(),
                               std::make_pair(static_cast<ObjectRegistry const*>(this), arena));
    if (pos == openArenas.end()) {
        return false;
    }
    std::vector<EncapsulatedObject*> doomed;
    std::unordered_set<void*> blocks;
    {
        std::lock_guard<std::mutex> lock(_mutex);
        // Arenas of ours opened after this one on this thread close with it.
        for (auto it = pos; it != openArenas.end(); ++it) {
            if (it->first == this) {
                _closeArenaLocked(it->second, doomed, blocks);
            }
        }
    }
    // Freed outside the lock: other threads' requests need not wait for it.
    for (EncapsulatedObject* obj : doomed) {
        delete obj;
    }
    openArenas.erase(
        std::remove_if(pos, openArenas.end(), [this](auto const& e) { return e.first == this; }),
        openArenas.end());
    for (void* block : blocks) {
        std::free(block);
    }
    return true;
}

void* ObjectRegistry::allocate(std::size_t size) {
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        return nullptr;
    }
    Arena* arena = _currentArena();
    std::lock_guard<std::mutex> lock(_mutex);
    _blocks.emplace(block, arena);
    if (arena != nullptr) {
        arena->blocks.insert(block);
    }
    return block;
}

void* ObjectRegistry::reallocate(void* block, std::size_t size) {
    if (block == nullptr) {
        return allocate(size);
    }
    std::lock_guard<std::mutex> lock(_mutex);
    auto it = _blocks.find(block);
    if (it == _blocks.end()) {
        return nullptr; // not ours: refusing beats corrupting the heap
    }
    void* grown = std::realloc(block, size == 0 ? 1 : size);
    if (grown == nullptr) {
        return nullptr;
    }
    Arena* arena = it->second;
    _blocks.erase(it);
    _blocks.emplace(grown, arena);
    if (arena != nullptr) {
        arena->blocks.erase(block);
        arena->blocks.insert(grown);
    }
    return grown;
}

void ObjectRegistry::deallocate(void* block) {
    {
        std::lock_guard<std::mutex> lock(_mutex);
        auto it = _blocks.find(block);
        if (it == _blocks.end()) {
            return;
        }
        if (it->second != nullptr) {
            it->second->blocks.erase(block);
        }
        _blocks.erase(it);
    }
    std::free(block);
}

std::size_t ObjectRegistry::liveObjects() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _objects.size();
}

std::size_t ObjectRegistry::liveBlocks() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _blocks.size();
}

} // namespace Cimom
