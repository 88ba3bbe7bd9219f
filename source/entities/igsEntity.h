// What every entity class uses beside the pattern macros of core/igsFactory.h: the unset
// values, the reading, writing and printing of the usual kinds of field, and the way a repair
// finds the entity its error names.
#pragma once

#include "core/igsFactory.h"
#include "core/igsObject.h"
#include "core/igsObjectPtr.h"
#include "core/igsUnset.h"
#include "input/igsInStream.h"
#include "output/igsOutStream.h"
#include "sections/igsDECheck.h"
#include "sections/igsDirectoryEntry.h"
#include "support/coNames.h"
#include "support/coResource.h"
#include "support/giGeometry.h"
#include "support/utOstream.h"

#include <type_traits>

// The rule of the setters of geometry values: a valid value is stored and gives 1; an
// invalid one leaves the field as it was and gives 0.
template <class Value> int igs_set_valid(Value& field, Value const& value) {
  if (value.invalid()) return 0;
  field = value;
  return 1;
}

// The rule of the setters of references that must be there: a null one leaves the field as it
// was and gives 0.
inline int igs_set_reference(igsObjectPtr& field, igsObjectPtr const& reference) {
  if (!reference) return 0;
  field = reference;
  return 1;
}

// A flag of 0 or 1, compared as unsigned so that a negative value fails too.
inline int igs_flag_valid(int flag) {
  return static_cast<unsigned>(flag) <= 1u;
}

// "One" for 1, "zero" for 0, "other" for anything else.
inline char const* igs_flag_word(int flag, char const* one, char const* zero, char const* other) {
  return flag == 1 ? one : flag == 0 ? zero : other;
}

// The most elements that a count read from a file reserves at once. A larger count (often a
// damaged one) reserves this much and lets the array grow while the data last, so a wild
// number costs no wild allocation.
inline constexpr int igs_max_initial_reserve = 1 << 16;

// Reserves room for a count read from a file (not above igs_max_initial_reserve); 0 if the
// allocation failed.
template <class Array> int igs_reserve(Array& array, int count) {
  return array.reserve(count < igs_max_initial_reserve ? count : igs_max_initial_reserve);
}

// Reads the members of a list that follow its count: up to `count` of them, each given by
// `read_one()`, appended in order in place of what the list held. A record that ends early
// gives the members it holds, so that a damaged count costs neither time nor memory. 0 when
// the list could not grow.
template <class List, class ReadOne>
int igs_read_members(igsInStream& in, int count, List& list, ReadOne const& read_one) {
  list.clear();
  if (count > 0 && !igs_reserve(list, count)) return 0;
  for (int i = 0; i < count && !in.frozen(); ++i)
    if (!list.append(read_one())) return 0;
  return 1;
}

// Reads a list behind its count as igs_read_members does. A record that ends before a count
// that is believable (not above igs_max_initial_reserve) leaves the members it lacks as
// default members (null references, unset values), which the check reports; a wild count
// gives what there was. 0 when the list could not grow.
template <class List, class ReadOne>
int igs_read_counted_members(igsInStream& in, int count, List& list, ReadOne const& read_one) {
  if (!igs_read_members(in, count, list, read_one)) return 0;
  return count <= list.size() || count > igs_max_initial_reserve || list.expand(count);
}

// One field each. The stream gives 0 for a defaulted field; a point or vector is made of its
// coordinates in order; a reference is a DE number, bound at once.
inline void igs_read_field(igsInStream& in, int& value) {
  in.read_integer(value);
}
inline void igs_read_field(igsInStream& in, double& value) {
  in.read_double(value);
}
inline void igs_read_field(igsInStream& in, giPoint2& point) {
  double x = 0.0, y = 0.0;
  in.read_double(x);
  in.read_double(y);
  point = giPoint2(x, y);
}
// Points and vectors in space: three coordinates.
template <class Triple>
requires std::is_same_v<Triple, giPoint3> || std::is_same_v<Triple, giVector3>
void igs_read_field(igsInStream& in, Triple& value) {
  double x = 0.0, y = 0.0, z = 0.0;
  in.read_double(x);
  in.read_double(y);
  in.read_double(z);
  value = Triple(x, y, z);
}
inline void igs_read_field(igsInStream& in, igsObjectPtr& reference) {
  int de_number = 0;
  in.read_integer(de_number);
  reference = igsObjectPtr(de_number);
}
// A Hollerith string. One without text (a defaulted field, or 0H, which the stream does not
// tell apart by the time a record is read) is null: no text was given.
inline void igs_read_field(igsInStream& in, utString& text) {
  in.read_holerith(text);
  if (text.length() == 0) text = utString();
}
// One field of a kind, as a value.
template <class Field> Field igs_read_value(igsInStream& in) {
  Field value{};
  igs_read_field(in, value);
  return value;
}
// Reads the fields in order.
template <class... Field> void igs_read_fields(igsInStream& in, Field&... fields) {
  (igs_read_field(in, fields), ...);
}

inline void igs_write_field(igsOutStream& out, int value) {
  out.write_integer(value);
}
inline void igs_write_field(igsOutStream& out, double value) {
  out.write_double(value);
}
inline void igs_write_field(igsOutStream& out, giPoint2 const& point) {
  out.write_double(point.x());
  out.write_double(point.y());
}
template <class Triple>
requires std::is_same_v<Triple, giPoint3> || std::is_same_v<Triple, giVector3>
void igs_write_field(igsOutStream& out, Triple const& value) {
  out.write_double(value.x());
  out.write_double(value.y());
  out.write_double(value.z());
}
inline void igs_write_field(igsOutStream& out, igsObjectPtr const& reference) {
  out.write_integer(reference ? reference->de_number() : 0);
}
inline void igs_write_field(igsOutStream& out, utString const& text) {
  out.write_holerith(text);
}
// Writes the fields in order.
template <class... Field> void igs_write_fields(igsOutStream& out, Field const&... fields) {
  (igs_write_field(out, fields), ...);
}

// Writes the reals of the stream with the parametric precision while it stands: knots, angles
// and the other values that are no coordinates.
class igsParametricFormat {
 public:
  explicit igsParametricFormat(igsOutStream& out) : m_out(out) {
    m_out.push_double_format(kvnOptDoubleFieldWidth.value(),
                             kvnOptDoubleParametricPrecision.value());
  }
  ~igsParametricFormat() { m_out.pop_double_format(); }
  igsParametricFormat(igsParametricFormat const&) = delete;
  igsParametricFormat& operator=(igsParametricFormat const&) = delete;

 private:
  igsOutStream& m_out;
};

// "Label = {", then on a nested stream the referenced entity or "(NullPointer)", then "}".
// `opening` stands for " = {".
void igs_print_reference(utOstream& out, char const* label, igsObjectPtr const& reference,
                         char const* opening = " = {");

// A heading such as "ControlPoints = {", then on a nested stream one line "(i) = " per member,
// whose value `item(out, i)` prints, then "}".
template <class Item>
void igs_print_list(utOstream& out, char const* heading, int count, Item const& item) {
  out << heading << "\n";
  utOstream nested(utOstreamTabTag, out, 1, 0);
  for (int i = 0; i < count; ++i) {
    nested << "(" << i << ") = ";
    item(nested, i);
    nested << "\n";
  }
  out << "}\n";
}
template <class Array>
void igs_print_values(utOstream& out, char const* heading, Array const& values) {
  igs_print_list(out, heading, values.size(), [&](utOstream& o, int i) { o << values[i]; });
}

// The member at a position in range into `member`, and 1; else 0.
int igs_member(igsObjectPtrcoDynArr const& list, int position, igsObjectPtr& member);
// Stores the member at the position, growing the list to hold it; 0 and nothing done for a
// negative position.
int igs_set_member(igsObjectPtrcoDynArr& list, int position, igsObjectPtr const& member);
// Reads `count` references into the list, as igs_read_members does.
inline int igs_read_references(igsInStream& in, int count, igsObjectPtrcoDynArr& list) {
  return igs_read_members(in, count, list, [&in] {
    igsObjectPtr member;
    igs_read_field(in, member);
    return member;
  });
}
// Reads a count, then that many references into the list. A negative count is handed to
// `bad(count)` and gives 0; so does a list that could not grow.
template <class Bad>
int igs_read_references(igsInStream& in, igsObjectPtrcoDynArr& list, Bad const& bad) {
  int count = 0;
  igs_read_field(in, count);
  if (count < 0) return bad(count), 0;
  return igs_read_references(in, count, list);
}
// The count, then the DE number of each member.
void igs_write_references(igsOutStream& out, igsObjectPtrcoDynArr const& list);
// For each member, "Name(i)= {", the member one tab level deeper or "(NullPointer)", "}".
void igs_print_references(utOstream& out, char const* name, igsObjectPtrcoDynArr const& list);

// The entity whose DE number an error holds as its key, if it is of class T (or derives from
// it); null when the number names no entity of that kind any more. Repairs reach their entity
// this way, by number, so that an error outlives the replacement of its entity.
template <class T> T* igs_error_entity(int key) {
  igsObjectPtr reference(key);
  if (!reference || !reference->typeof(T::type())) return nullptr;
  return static_cast<T*>(reference.operator->());
}
