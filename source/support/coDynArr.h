// Growable and fixed arrays: the array families of the container layer.
#pragma once

#include "support/utTypes.h"

#include <initializer_list>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

// Growable array. Capacity grows in steps of `increment` elements (a step of 0 or less doubles
// the store instead). Elements are copied one by one when the store moves, so elements whose
// address matters to someone else (references registered with a manager) stay correct.
// Allocation failure never throws: the operations that grow return 0 instead.
template <class T> class coDynArr {
 public:
  coDynArr() = default;
  coDynArr(int capacity, int increment) : m_increment(increment) { reserve(capacity); }
  coDynArr(std::initializer_list<T> values) {
    if (reserve(static_cast<int>(values.size())))
      for (T const& v : values) append(v);
  }
  coDynArr(utCopy, coDynArr const& other) : m_increment(other.m_increment) {
    become(utCopyTag, other);
  }
  coDynArr(coDynArr const& other) : coDynArr(utCopyTag, other) {}
  coDynArr(coDynArr&& other) noexcept
      : m_data(std::exchange(other.m_data, nullptr)),
        m_capacity(std::exchange(other.m_capacity, 0)), m_size(std::exchange(other.m_size, 0)),
        m_increment(other.m_increment) {}
  coDynArr& operator=(coDynArr const& other) {
    if (this != &other) become(utCopyTag, other);
    return *this;
  }
  coDynArr& operator=(coDynArr&& other) noexcept {
    if (this != &other) {
      clear(1);
      std::swap(m_data, other.m_data);
      std::swap(m_capacity, other.m_capacity);
      std::swap(m_size, other.m_size);
    }
    return *this;
  }
  ~coDynArr() { clear(1); }

  // Replaces the contents by copies of the other array's elements.
  int become(utCopy, coDynArr const& other) {
    if (this == &other) return 1;
    clear(0);
    if (!reserve(other.m_size)) return 0;
    for (int i = 0; i < other.m_size; ++i) new (m_data + i) T(other.m_data[i]);
    m_size = other.m_size;
    return 1;
  }

  int size() const { return m_size; }
  int capacity() const { return m_capacity; }
  int increment() const { return m_increment; }
  void set_increment(int increment) { m_increment = increment; }
  bool empty() const { return m_size == 0; }

  // Adds at the end, growing if the array is full. Returns 0 if the store could not grow.
  int append(T const& value) {
    if (m_size >= m_capacity) {
      if (m_data <= &value && &value < m_data + m_size) { // value lives in the store that moves
        T copy(value);
        return append(std::move(copy));
      }
      if (!resize(m_size)) return 0;
    }
    new (m_data + m_size) T(value);
    ++m_size;
    return 1;
  }
  int append(T&& value) {
    if (m_size >= m_capacity && !resize(m_size)) return 0;
    new (m_data + m_size) T(std::move(value));
    ++m_size;
    return 1;
  }

  // Non-const indexing at or past the end extends the size to index + 1. An index that cannot
  // be reached (negative, or allocation failed) yields a scratch element so nothing is written
  // out of bounds.
  T& operator[](int index) {
    if (index >= m_size) {
      if (index >= m_capacity && !resize(index)) return scratch();
      if (!expand(index + 1)) return scratch();
    } else if (index < 0) {
      return scratch();
    }
    return m_data[index];
  }
  T const& operator[](int index) const { return m_data[index]; }

  int enter(int index, T const& value) {
    if (index < 0) return 0;
    (*this)[index] = value;
    return index < m_size;
  }
  T const& read(int index) const { return m_data[index]; }

  // Makes room for n elements; the size stays.
  int reserve(int n) {
    if (n <= m_capacity) return 1;
    return reallocate(n);
  }
  // Reserves n elements and extends the size to n with default values if it was smaller.
  int expand(int n) {
    if (!reserve(n)) return 0;
    for (int i = m_size; i < n; ++i) new (m_data + i) T();
    if (n > m_size) m_size = n;
    return 1;
  }
  // Cuts the size to min(size, n); with release set, also cuts the store to n elements.
  void shrink(int n, int release = 0) {
    if (n <= 0) {
      clear(release);
      return;
    }
    destroy_from(n);
    if (release && n < m_capacity) reallocate(n);
  }
  // Size 0; with release set the store is freed too.
  void clear(int release = 0) {
    destroy_from(0);
    if (release) {
      ::operator delete(m_data, std::nothrow);
      m_data = nullptr;
      m_capacity = 0;
    }
  }
  // Removes the element at index, moving the later ones down.
  void remove(int index) {
    if (index < 0 || index >= m_size) return;
    for (int i = index; i + 1 < m_size; ++i) m_data[i] = std::move(m_data[i + 1]);
    destroy_from(m_size - 1);
  }
  void remove_last() { destroy_from(m_size - 1); }
  T& last() { return m_data[m_size - 1]; }
  T const& last() const { return m_data[m_size - 1]; }

  T* data() { return m_data; }
  T const* data() const { return m_data; }
  T* begin() { return m_data; }
  T* end() { return m_data + m_size; }
  T const* begin() const { return m_data; }
  T const* end() const { return m_data + m_size; }

 protected:
  // Grows the capacity by the smallest multiple of the increment that takes it past index.
  int resize(int index) {
    int target;
    if (m_increment > 0) {
      int steps = (index - m_capacity) / m_increment + 1;
      target = m_capacity + steps * m_increment;
    } else {
      target = m_capacity < 4 ? 4 : m_capacity * 2;
      if (target <= index) target = index + 1;
    }
    return reallocate(target);
  }

 private:
  int reallocate(int n) {
    if (n < m_size) n = m_size;
    T* store = nullptr;
    if (n > 0) {
      store = static_cast<T*>(::operator new(sizeof(T) * static_cast<size_t>(n), std::nothrow));
      if (!store) return 0;
    }
    for (int i = 0; i < m_size; ++i) {
      new (store + i) T(std::move_if_noexcept(m_data[i]));
      m_data[i].~T();
    }
    ::operator delete(m_data, std::nothrow);
    m_data = store;
    m_capacity = n;
    return 1;
  }
  void destroy_from(int n) {
    if (n < 0) n = 0;
    if constexpr (!std::is_trivially_destructible_v<T>)
      for (int i = n; i < m_size; ++i) m_data[i].~T();
    if (n < m_size) m_size = n;
  }
  static T& scratch() {
    static T value{};
    value = T{};
    return value;
  }

  T* m_data = nullptr;
  int m_capacity = 0;
  int m_size = 0;
  int m_increment = 0;
};

// Array whose length is fixed at construction.
template <class T> class coFixedArr {
 public:
  coFixedArr() = default;
  explicit coFixedArr(int n) : m_values(n > 0 ? static_cast<size_t>(n) : 0) {}
  int become(utCopy, coFixedArr const& other) {
    m_values = other.m_values;
    return 1;
  }
  int size() const { return static_cast<int>(m_values.size()); }
  T& operator[](int i) { return m_values[static_cast<size_t>(i)]; }
  T const& operator[](int i) const { return m_values[static_cast<size_t>(i)]; }
  auto begin() { return m_values.begin(); }
  auto end() { return m_values.end(); }
  auto begin() const { return m_values.begin(); }
  auto end() const { return m_values.end(); }

 private:
  std::vector<T> m_values;
};

// Two-dimensional array of extents fixed at construction, indexed (row, column).
template <class T> class coFixedArr2D {
 public:
  coFixedArr2D() = default;
  coFixedArr2D(int rows, int columns)
      : m_rows(rows > 0 ? rows : 0), m_columns(columns > 0 ? columns : 0),
        m_values(static_cast<size_t>(m_rows) * static_cast<size_t>(m_columns)) {}
  int become(utCopy, coFixedArr2D const& other) {
    m_rows = other.m_rows;
    m_columns = other.m_columns;
    m_values = other.m_values;
    return 1;
  }
  int rows() const { return m_rows; }
  int columns() const { return m_columns; }
  int size() const { return static_cast<int>(m_values.size()); }
  T& operator()(int r, int c) { return m_values[index(r, c)]; }
  T const& operator()(int r, int c) const { return m_values[index(r, c)]; }

 private:
  size_t index(int r, int c) const {
    return static_cast<size_t>(r) * static_cast<size_t>(m_columns) + static_cast<size_t>(c);
  }
  int m_rows = 0;
  int m_columns = 0;
  std::vector<T> m_values;
};

// Array of pages: the high bits of an index pick a page, the low bits an element. Pages are
// made on first use and never move, so the address of an element stays valid while the array
// grows (the entity table relies on that).
template <class T> class coPageArr {
 public:
  explicit coPageArr(int shift = 8, int capacity = 5, int increment = 10)
      : m_shift(shift), m_mask((1 << shift) - 1), m_pages(capacity, increment) {}
  coPageArr(coPageArr const&) = delete;
  coPageArr& operator=(coPageArr const&) = delete;
  ~coPageArr() {
    for (T* page : m_pages) delete[] page;
  }

  int size() const { return m_size; }
  // Makes the page on first use and extends the size past index.
  T& operator[](int index) {
    int page = index >> m_shift;
    if (page >= m_pages.size() && !m_pages.expand(page + 1)) return scratch();
    T*& p = m_pages[page];
    if (!p) {
      p = new (std::nothrow) T[static_cast<size_t>(m_mask) + 1]();
      if (!p) return scratch();
    }
    if (index >= m_size) m_size = index + 1;
    return p[index & m_mask];
  }
  // The element, or null where no page holds it yet.
  T const* find(int index) const {
    if (index < 0) return nullptr;
    int page = index >> m_shift;
    if (page >= m_pages.size() || !m_pages[page]) return nullptr;
    return &m_pages[page][index & m_mask];
  }
  T* find(int index) { return const_cast<T*>(static_cast<coPageArr const*>(this)->find(index)); }
  // Cuts the size to n: elements from n on are reset to their default and pages wholly beyond
  // the new size are freed.
  void shrink(int n) {
    if (n < 0) n = 0;
    for (int i = n; i < m_size; ++i)
      if (T* e = find(i)) *e = T();
    int keep = (n + m_mask) >> m_shift;
    for (int page = keep; page < m_pages.size(); ++page) {
      delete[] m_pages[page];
      m_pages[page] = nullptr;
    }
    m_size = n < m_size ? n : m_size;
  }

 private:
  static T& scratch() {
    static T value{};
    value = T{};
    return value;
  }
  int m_shift;
  int m_mask;
  int m_size = 0;
  coDynArr<T*> m_pages;
};
