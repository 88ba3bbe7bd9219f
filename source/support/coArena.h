// Memory for small objects of many sizes: blocks are cut from chunks that grow as the arena
// does, in steps of 8 bytes, and a block given back is reused by the next one of its size. A
// block larger than the arena serves comes from the heap. All memory goes with the arena, so
// every block must be given back, or no longer used, before it goes. Nothing throws: a block
// that cannot be had is null.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define CO_ARENA_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define CO_ARENA_ASAN 1
#endif
#endif
#ifdef CO_ARENA_ASAN
#include <sanitizer/asan_interface.h>
#endif

// Memory that is free is out of bounds for the address sanitizer, so a use after it was given
// back is found as it would be with the heap; without the sanitizer these do nothing.
inline void co_arena_poison([[maybe_unused]] void const* memory,
                            [[maybe_unused]] std::size_t size) {
#ifdef CO_ARENA_ASAN
  ASAN_POISON_MEMORY_REGION(memory, size);
#endif
}
inline void co_arena_unpoison([[maybe_unused]] void const* memory,
                              [[maybe_unused]] std::size_t size) {
#ifdef CO_ARENA_ASAN
  ASAN_UNPOISON_MEMORY_REGION(memory, size);
#endif
}

class coArena {
 public:
  // Blocks are aligned like a pointer or a double, and no larger block is served.
  static constexpr std::size_t step = 8;
  static constexpr std::size_t largest = 512;

  coArena() = default;
  ~coArena() {
    for (Chunk const& chunk : m_chunks) co_arena_unpoison(chunk.bytes.get(), chunk.size);
  }
  coArena(coArena const&) = delete;
  coArena& operator=(coArena const&) = delete;

  void* take(std::size_t size) {
    if (size > largest) return ::operator new(size, std::nothrow);
    std::size_t index = size_class(size);
    if (Free* block = m_free[index]) {
      co_arena_unpoison(block, sizeof(Free));
      m_free[index] = block->next;
      co_arena_unpoison(block, block_size(index));
      return block;
    }
    std::size_t bytes = block_size(index);
    if (m_left < bytes && !grow()) return nullptr;
    void* block = m_next;
    m_next += bytes;
    m_left -= bytes;
    co_arena_unpoison(block, bytes);
    return block;
  }

  // Gives back a block that `take` gave for the same size.
  void give(void* block, std::size_t size) {
    if (!block) return;
    if (size > largest) {
      ::operator delete(block);
      return;
    }
    std::size_t index = size_class(size);
    Free* free = static_cast<Free*>(block);
    free->next = m_free[index];
    m_free[index] = free;
    co_arena_poison(block, block_size(index));
  }

 private:
  struct Free {
    Free* next;
  };
  static std::size_t size_class(std::size_t size) { return size ? (size - 1) / step : 0; }
  static std::size_t block_size(std::size_t index) { return (index + 1) * step; }
  // Chunks double from 4 kB up to 64 kB, so a small file pays little and a large one makes few
  // allocations. The rest of the last chunk is left unused.
  int grow() {
    std::size_t size =
        m_chunks.empty() ? 4096 : std::min<std::size_t>(65536, 2 * m_chunks.back().size);
    Chunk chunk{std::unique_ptr<unsigned char[]>(new (std::nothrow) unsigned char[size]), size};
    if (!chunk.bytes) return 0;
    try {
      m_chunks.push_back(std::move(chunk));
    } catch (...) {
      return 0;
    }
    m_next = m_chunks.back().bytes.get();
    m_left = size;
    co_arena_poison(m_next, size);
    return 1;
  }

  struct Chunk {
    std::unique_ptr<unsigned char[]> bytes;
    std::size_t size;
  };
  std::vector<Chunk> m_chunks;
  Free* m_free[largest / step] = {};
  unsigned char* m_next = nullptr;
  std::size_t m_left = 0;
};
