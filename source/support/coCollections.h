// Hashed sets and tables, lists, stacks and owning pointers of the container layer.
#pragma once

#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

// Hash functor: std::hash, plus the overloads the library adds beside a type (utString).
template <class T> struct co_hash : std::hash<T> {};

// Hash set. The two int arguments of the constructor (size hint and growth) only size the
// first bucket array.
template <class T, class Hash = co_hash<T>> class coSet {
 public:
  coSet() = default;
  explicit coSet(int size_hint, int = 0) { m_set.reserve(static_cast<size_t>(size_hint)); }

  // Adds the element if absent and returns the stored one.
  T const& add(T const& value) { return *m_set.insert(value).first; }
  // The stored element, or null when absent.
  T const* find(T const& value) const {
    auto it = m_set.find(value);
    return it == m_set.end() ? nullptr : &*it;
  }
  int member(T const& value) const { return m_set.count(value) != 0; }
  int remove(T const& value) { return m_set.erase(value) != 0; }
  void clear() { m_set.clear(); }
  void become(coSet const& other) { m_set = other.m_set; }
  int size() const { return static_cast<int>(m_set.size()); }
  bool empty() const { return m_set.empty(); }

  coSet& operator+=(coSet const& other) { // union
    m_set.insert(other.m_set.begin(), other.m_set.end());
    return *this;
  }
  coSet& operator*=(coSet const& other) { // intersection
    std::erase_if(m_set, [&](T const& v) { return !other.member(v); });
    return *this;
  }
  coSet& operator-=(coSet const& other) { // difference
    std::erase_if(m_set, [&](T const& v) { return other.member(v); });
    return *this;
  }
  bool operator<=(coSet const& other) const { // subset
    for (T const& v : m_set)
      if (!other.member(v)) return false;
    return true;
  }

  auto begin() const { return m_set.begin(); }
  auto end() const { return m_set.end(); }

 private:
  std::unordered_set<T, Hash> m_set;
};

// Hash map from key to value.
template <class K, class V, class Hash = co_hash<K>> class coTable {
 public:
  coTable() = default;
  explicit coTable(int size_hint, int = 0) { m_map.reserve(static_cast<size_t>(size_hint)); }

  // The value of key, added default-constructed when absent.
  V& operator[](K const& key) { return m_map[key]; }
  // The value of key, or null when absent; never adds.
  V const* read(K const& key) const {
    auto it = m_map.find(key);
    return it == m_map.end() ? nullptr : &it->second;
  }
  V* read(K const& key) {
    auto it = m_map.find(key);
    return it == m_map.end() ? nullptr : &it->second;
  }
  int member(K const& key) const { return m_map.count(key) != 0; }
  // Returns whether the key was there.
  int remove(K const& key) { return m_map.erase(key) != 0; }
  void clear() { m_map.clear(); }
  int size() const { return static_cast<int>(m_map.size()); }
  bool empty() const { return m_map.empty(); }

  auto begin() { return m_map.begin(); }
  auto end() { return m_map.end(); }
  auto begin() const { return m_map.begin(); }
  auto end() const { return m_map.end(); }

 private:
  std::unordered_map<K, V, Hash> m_map;
};

// Singly linked list.
template <class T> class coSList {
 public:
  void insert_first(T const& value) { m_list.push_front(value); }
  void insert_last(T const& value) { m_list.push_back(value); }
  bool empty() const { return m_list.empty(); }
  int size() const { return static_cast<int>(m_list.size()); }
  void clear() { m_list.clear(); }
  T& first() { return m_list.front(); }
  void remove_first() { m_list.pop_front(); }
  auto begin() { return m_list.begin(); }
  auto end() { return m_list.end(); }
  auto begin() const { return m_list.begin(); }
  auto end() const { return m_list.end(); }

 private:
  std::list<T> m_list;
};

// Stack: `insert_first` pushes, `pop` takes the top off and returns it.
template <class T> class coStack {
 public:
  void insert_first(T const& value) { m_items.push_back(value); }
  T const& peek() const { return m_items.back(); }
  T pop() {
    T top = std::move(m_items.back());
    m_items.pop_back();
    return top;
  }
  void remove_first() { m_items.pop_back(); }
  bool empty() const { return m_items.empty(); }
  int size() const { return static_cast<int>(m_items.size()); }
  void clear() { m_items.clear(); }

 private:
  std::vector<T> m_items;
};

// A plain pointer as an element type; owns nothing.
template <class T> using coPtr = T*;

// Owning pointer: deletes its object at the end of its life.
template <class T> class coPrg {
 public:
  coPrg() = default;
  explicit coPrg(T* p) : m_ptr(p) {}
  coPrg(coPrg&&) noexcept = default;
  coPrg& operator=(coPrg&&) noexcept = default;
  void delete_ptr() { m_ptr.reset(); }
  void reset(T* p) { m_ptr.reset(p); }
  T* release() { return m_ptr.release(); }
  T* operator->() const { return m_ptr.get(); }
  T& operator*() const { return *m_ptr; }
  operator T*() const { return m_ptr.get(); }
  T* get() const { return m_ptr.get(); }

 private:
  std::unique_ptr<T> m_ptr;
};

// Shared owning pointer. An object made with coPrfExternalDeleter is shared but never deleted.
struct coPrfExternalDeleter {
  template <class T> void operator()(T*) const {}
};
template <class T> class coPrf {
 public:
  coPrf() = default;
  explicit coPrf(T* p) : m_ptr(p) {}
  coPrf(T* p, coPrfExternalDeleter d) : m_ptr(p, d) {}
  T* operator->() const { return m_ptr.get(); }
  T& operator*() const { return *m_ptr; }
  operator T*() const { return m_ptr.get(); }
  T* get() const { return m_ptr.get(); }
  long use_count() const { return m_ptr.use_count(); }

 private:
  std::shared_ptr<T> m_ptr;
};
