// A pool of objects of one class: objects are made in chunks that grow as the pool does, and
// a destroyed object's slot is reused by the next one made. All memory goes with the pool, so
// every object made must be destroyed before it. Allocation failure gives null; nothing throws.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define CO_POOL_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CO_POOL_ASAN 1
#endif
#endif
#ifdef CO_POOL_ASAN
#include <sanitizer/asan_interface.h>
#endif

// Memory that is free is out of bounds for the address sanitizer, so a use after it was given
// back is found as it would be with the heap; without the sanitizer these do nothing.
inline void co_pool_poison([[maybe_unused]] void const* memory, [[maybe_unused]] std::size_t size) {
#ifdef CO_POOL_ASAN
  ASAN_POISON_MEMORY_REGION(memory, size);
#endif
}
inline void co_pool_unpoison([[maybe_unused]] void const* memory,
                             [[maybe_unused]] std::size_t size) {
#ifdef CO_POOL_ASAN
  ASAN_UNPOISON_MEMORY_REGION(memory, size);
#endif
}

template <class T> class coPool {
 public:
  coPool() = default;
  ~coPool() {
    for (Chunk& chunk : m_chunks)
      for (std::size_t i = 0; i < chunk.count; ++i) unpoison(&chunk.slots[i]);
  }
  coPool(coPool const&) = delete;
  coPool& operator=(coPool const&) = delete;

  // A new object made with `args`, or null if no memory could be had.
  template <class... Args> T* make(Args&&... args) {
    if (!m_free && !grow()) return nullptr;
    Slot* slot = m_free;
    unpoison(slot);
    m_free = slot->next;
    return new (slot->storage) T(std::forward<Args>(args)...);
  }

  // Destroys an object made by this pool and keeps its slot for the next one.
  void destroy(T* object) {
    if (!object) return;
    object->~T();
    Slot* slot = reinterpret_cast<Slot*>(object);
    slot->next = m_free;
    m_free = slot;
    poison(slot);
  }

 private:
  union Slot {
    Slot* next;
    alignas(T) unsigned char storage[sizeof(T)];
  };
  // Chunks double from 64 slots up to 4096, so a small file pays little and a large one
  // makes few allocations.
  int grow() {
    std::size_t count =
        m_chunks.empty() ? 64 : std::min<std::size_t>(4096, 2 * m_chunks.back().count);
    Chunk chunk{std::unique_ptr<Slot[]>(new (std::nothrow) Slot[count]), count};
    if (!chunk.slots) return 0;
    try {
      m_chunks.push_back(std::move(chunk));
    } catch (...) {
      return 0;
    }
    Slot* slots = m_chunks.back().slots.get();
    for (std::size_t i = count; i-- > 0;) {
      slots[i].next = m_free;
      m_free = &slots[i];
    }
    for (std::size_t i = 0; i < count; ++i) poison(&slots[i]);
    return 1;
  }
  // Free slots are poisoned; the link to the next free slot is read through unpoison.
  static void poison(Slot* slot) { co_pool_poison(slot, sizeof(Slot)); }
  static void unpoison(Slot* slot) { co_pool_unpoison(slot, sizeof(Slot)); }

  struct Chunk {
    std::unique_ptr<Slot[]> slots;
    std::size_t count;
  };
  std::vector<Chunk> m_chunks;
  Slot* m_free = nullptr;
};
