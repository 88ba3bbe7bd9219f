// A pool of objects of one class: their memory comes from an arena of the pool's own, which
// grows in chunks, and a destroyed object's slot is reused by the next one made. All memory
// goes with the pool, so every object made must be destroyed before it. Allocation failure
// gives null; nothing throws.
#pragma once

#include "support/coArena.h"

#include <new>
#include <utility>

template <class T> class coPool {
 public:
  // A new object made with `args`, or null if no memory could be had.
  template <class... Args> T* make(Args&&... args) {
    static_assert(sizeof(T) <= coArena::largest && alignof(T) <= coArena::step,
                  "the arena serves the objects of a pool");
    void* memory = m_memory.take(sizeof(T));
    return memory ? new (memory) T(std::forward<Args>(args)...) : nullptr;
  }

  // Destroys an object made by this pool and keeps its slot for the next one.
  void destroy(T* object) {
    if (!object) return;
    object->~T();
    m_memory.give(object, sizeof(T));
  }

 private:
  coArena m_memory;
};
