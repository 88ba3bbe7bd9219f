// Run-time type records of the entity and error class trees.
#pragma once

#include "support/kvuMacros.h"
#include "support/utString.h"

// One record per class, built at compile time from the class name and a null-ended list of
// the records of its direct bases. `childof` is the kind-of test, `==` the exact test.
class kvuTypeInfo {
 public:
  constexpr kvuTypeInfo(char const* name, kvuTypeInfo const* const* parents)
      : m_name(name), m_parents(parents) {}
  kvuTypeInfo(kvuTypeInfo const&) = delete;
  kvuTypeInfo& operator=(kvuTypeInfo const&) = delete;

  bool operator==(kvuTypeInfo const& other) const { return this == &other; }
  // True if this record is `other` or descends from it.
  int childof(kvuTypeInfo const& other) const {
    if (this == &other) return 1;
    for (kvuTypeInfo const* const* p = m_parents; p && *p; ++p)
      if ((*p)->childof(other)) return 1;
    return 0;
  }
  utString id_string() const { return utString(m_name); }
  char const* name() const { return m_name; }
  kvuTypeInfo const* const* parents() const { return m_parents; }

 private:
  char const* m_name;
  kvuTypeInfo const* const* m_parents;
};

// The type boilerplate of a class in a tree rooted at a class that declares
// `virtual kvuTypeInfo const& objtype() const`: a static record `id`, `type()`, and the
// override of `objtype`. The root derives `typeof` and `isa` from `objtype`.
#define KVU_DECLARE_TYPE()                                                                         \
  KVU_TYPE_RECORD_()                                                                               \
  kvuTypeInfo const& objtype() const override {                                                    \
    return id;                                                                                     \
  }

// The type boilerplate of the root of a tree: the record, `type()`, the virtual `objtype`, and
// the kind-of (`typeof`) and exact (`isa`) tests derived from it.
#define KVU_DECLARE_ROOT_TYPE()                                                                    \
  KVU_TYPE_RECORD_()                                                                               \
  virtual kvuTypeInfo const& objtype() const {                                                     \
    return id;                                                                                     \
  }                                                                                                \
  int typeof(kvuTypeInfo const& t) const {                                                         \
    return objtype().childof(t);                                                                   \
  }                                                                                                \
  int isa(kvuTypeInfo const& t) const {                                                            \
    return objtype() == t;                                                                         \
  }
#define KVU_TYPE_RECORD_()                                                                         \
 public:                                                                                           \
  static kvuTypeInfo const id;                                                                     \
  static kvuTypeInfo const& type() {                                                               \
    return id;                                                                                     \
  }

// Defines the record of Class with its direct bases, at namespace scope in one source file.
#define KVU_DEFINE_TYPE(Class, ...)                                                                \
  static constexpr kvuTypeInfo const* Class##_type_parents[] = {                                   \
      KVU_FOR_EACH(KVU_TYPE_PARENT_, __VA_ARGS__) nullptr};                                        \
  constinit kvuTypeInfo const Class::id(#Class, Class##_type_parents);
#define KVU_TYPE_PARENT_(Base) &Base::id,
