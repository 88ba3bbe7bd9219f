// What the entities of the boundary representation share: list indices that are 0-based here
// and 1-based in the file, elements of their lists reached without leaving the list, and the
// printing of numbered records.
#pragma once

#include "entities/igsChildCheck.h"
#include "entities/igsEntity.h"
#include "support/coDynArr.h"

#include <climits>
#include <new>
#include <utility>

// A list index as the file writes it (from 1) and as it is held (from 0). Both wrap at the
// ends of int instead of overflowing, so that any number read is written back as it was.
inline int igs_index_from_file(int index) {
  return static_cast<int>(static_cast<unsigned>(index) - 1u);
}
inline int igs_index_to_file(int index) {
  return static_cast<int>(static_cast<unsigned>(index) + 1u);
}
inline int igs_index_in(int index, int count) {
  return index >= 0 && index < count;
}
// The element at the index; a default-made one for an index outside the list, so that an
// accessor whose caller left the range still gives a defined value.
template <class T> T const& igs_element(coDynArr<T> const& list, int index) {
  static T const none{};
  return igs_index_in(index, list.size()) ? list[index] : none;
}
// Stores the element at the index, growing the list to index + 1 where `grow` allows; 0 when
// the index is outside what may be reached or the list could not grow. Taken by value and
// moved in, so that a record made for the list registers its references once.
template <class T> int igs_store_element(coDynArr<T>& list, int index, T value, int grow) {
  if (index < 0 || (index >= list.size() && (!grow || index == INT_MAX))) return 0;
  if (index >= list.size() && !list.expand(index + 1)) return 0;
  list[index] = std::move(value);
  return 1;
}

// An array that holds exactly its elements, for members of records kept by the ten thousand:
// a pointer and a count, where a growable array also keeps its capacity and growth step. It
// grows by one reallocation to the size asked for; reading fills a growable array first and
// hands it over whole. Elements are constructed in place and never copied bytewise, since
// references register their own address.
template <class T> class igsExactArray {
 public:
  igsExactArray() = default;
  igsExactArray(igsExactArray const& other) { copy_from(other.m_data, other.m_size); }
  igsExactArray(igsExactArray&& other) noexcept
      : m_data(std::exchange(other.m_data, nullptr)), m_size(std::exchange(other.m_size, 0)) {}
  igsExactArray& operator=(igsExactArray other) noexcept {
    std::swap(m_data, other.m_data);
    std::swap(m_size, other.m_size);
    return *this;
  }
  ~igsExactArray() { destroy(m_data, m_size); }

  int size() const { return m_size; }
  T const& operator[](int index) const { return m_data[index]; }
  T& operator[](int index) { return m_data[index]; }
  T* begin() { return m_data; }
  T* end() { return m_data + m_size; }
  T const* begin() const { return m_data; }
  T const* end() const { return m_data + m_size; }

  // The element at the index; a default-made one outside the array.
  T const& element(int index) const {
    static T const none{};
    return igs_index_in(index, m_size) ? m_data[index] : none;
  }
  // Stores the element, growing the array to index + 1 with default-made ones between; 0 for a
  // negative index or when there was no memory.
  int store(int index, T value) {
    if (index < 0 || (index >= m_size && (index == INT_MAX || !resize(index + 1)))) return 0;
    m_data[index] = std::move(value);
    return 1;
  }
  // Takes the elements of the list, moved, in place of its own; 0 when there was no memory.
  int take(coDynArr<T>& list) {
    T* data = allocate(list.size());
    if (list.size() && !data) return 0;
    for (int i = 0; i < list.size(); ++i) new (data + i) T(std::move(list[i]));
    destroy(m_data, m_size);
    m_data = data;
    m_size = list.size();
    list.clear();
    return 1;
  }

 private:
  static T* allocate(int n) {
    return n > 0 ? static_cast<T*>(::operator new(sizeof(T) * static_cast<size_t>(n), std::nothrow))
                 : nullptr;
  }
  static void destroy(T* data, int n) {
    for (int i = 0; i < n; ++i) data[i].~T();
    ::operator delete(data, std::nothrow);
  }
  void copy_from(T const* data, int n) {
    m_data = allocate(n);
    if (!m_data) return;
    for (int i = 0; i < n; ++i) new (m_data + i) T(data[i]);
    m_size = n;
  }
  int resize(int n) {
    T* data = allocate(n);
    if (!data) return 0;
    for (int i = 0; i < m_size; ++i) new (data + i) T(std::move(m_data[i]));
    for (int i = m_size; i < n; ++i) new (data + i) T();
    destroy(m_data, m_size);
    m_data = data;
    m_size = n;
    return 1;
  }

  T* m_data = nullptr;
  int m_size = 0;
};

// "Label (n) = {" and the opening's tail, with n counted from 1; then what `inner` prints one
// tab level deeper; then "}".
template <class Inner>
void igs_print_numbered(utOstream& out, char const* label, int index, char const* tail,
                        Inner const& inner) {
  out << label << " (" << igs_index_to_file(index) << ") = {" << tail << "\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    inner(nested);
  }
  out << "}\n";
}

// The entities of the boundary representation check their children as every entity does.
template <class Base> using igsBrepEntity = igsChildEntity<Base>;

// A reference with the flag that says whether it agrees (1) or not (0) with what it refers to:
// what an oriented face and an oriented shell share. A value.
template <class Target> class igsOrientedReference {
 public:
  int orientation() const { return m_orientation; }
  void set_orientation(int orientation) { m_orientation = orientation; }
  // 1 when the reference is to exactly a Target and the flag is 0 or 1.
  int valid() const {
    return m_target && m_target->isa(Target::type()) && igs_flag_valid(m_orientation);
  }
  void unreference_children() { m_target.unreference(); }
  // The reference under the name that both records share.
  igsObjectPtr const& target() const { return m_target; }
  void set_target(igsObjectPtr target) { m_target = std::move(target); }

 protected:
  // "<reference label> = {", the target or "(NullPointer)", "}"; then the flag's label and
  // "True", "False" or "(Undefined)".
  void print(utOstream& out, char const* reference_label, char const* flag_label) const {
    igs_print_reference(out, reference_label, m_target);
    out << flag_label << igs_flag_word(m_orientation, "True", "False", "(Undefined)") << "\n";
  }

 private:
  igsObjectPtr m_target;
  int m_orientation = igs_unset_int;
};

// Reads and writes the pair of an oriented reference: the pointer, then the flag.
template <class Record> Record igs_read_oriented(igsInStream& in) {
  igsObjectPtr target;
  int orientation = 0;
  igs_read_fields(in, target, orientation);
  Record record;
  record.set_target(std::move(target));
  record.set_orientation(orientation);
  return record;
}
template <class Record> void igs_write_oriented(igsOutStream& out, Record const& record) {
  igs_write_fields(out, record.target(), record.orientation());
}
