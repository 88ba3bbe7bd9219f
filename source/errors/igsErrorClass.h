// Error classes declared as table rows. Most error classes carry nothing but their constructor
// arguments, so each is one row of a table (a .def file) of this form:
//
//   IGS_ERROR(Name, Base, Behaviour, (type, name), (type, name), ...)
//
// Behaviour says which operations the class writes by hand:
//   REPORT   inherits the base's fix (reported, never repaired);
//   SETTLED  fix returns 1 and does nothing else: the log may forget the error;
//   FIX      declares `int fix() override;`, written beside what it repairs (with
//            IGS_ERROR_MESSAGE_FIX when the repair is only a message);
//   OBJ      declares `int obj() override;` (object errors that name a child);
//   FIX_OBJ  both.
//
// A header expands a table with IGS_ERROR defined as IGS_ERROR_DECLARE, and one source file
// expands it again with IGS_ERROR_DEFINE for the type records:
//
//   #define IGS_ERROR IGS_ERROR_DECLARE
//   #include "core/igsFileErrors.def"
//
// The table undefines IGS_ERROR at its end. Each generated class has a public constructor
// taking the arguments in row order, a const accessor per argument, `arguments()`, and
// `visit_arguments`. A structure error takes its key from its first int argument, a compound
// entity error and a drawing's view error (igsMemberError) their member index.
#pragma once

#include "errors/igsError.h"

#include <type_traits>

// Hands one argument to a visitor; enumerations go as int. A row with another argument type
// needs an overload here.
inline void igs_visit_error_argument(igsErrorArgumentVisitor& v, char const* name, int value) {
  v.argument(name, value);
}
inline void igs_visit_error_argument(igsErrorArgumentVisitor& v, char const* name, double value) {
  v.argument(name, value);
}
inline void igs_visit_error_argument(igsErrorArgumentVisitor& v, char const* name, char value) {
  v.argument(name, value);
}
inline void igs_visit_error_argument(igsErrorArgumentVisitor& v, char const* name,
                                     utString const& value) {
  v.argument(name, value);
}
template <class E>
requires std::is_enum_v<E>
void igs_visit_error_argument(igsErrorArgumentVisitor& v, char const* name, E value) {
  v.argument(name, static_cast<int>(value));
}

// Gives the base part of a new error what its constructor arguments say about it. Overload
// resolution picks the most derived base that has something to take.
struct igsErrorBinder {
  template <class... T> static void bind(igsError&, T const&...) {}
  template <class... T> static void bind(igsStructureError& e, T const&... values) {
    first_int(e, &igsIndexedError::set_key, values...);
  }
  template <class... T> static void bind(igsMemberError& e, T const&... values) {
    first_int(e, &igsMemberError::set_index, values...);
  }

 private:
  template <class E, class Set> static void first_int(E&, Set) {}
  template <class E, class Set, class T, class... R>
  static void first_int(E& e, Set set, T const& first, R const&... rest) {
    if constexpr (std::is_same_v<T, int>)
      (e.*set)(first);
    else
      first_int(e, set, rest...);
  }
};

// A bounded FOR_EACH for argument lists (up to 16 items), cheaper to preprocess than the
// general one when hundreds of rows expand.
#define IGS_ERROR_FOR_EACH(macro, ...)                                                             \
  __VA_OPT__(KVU_EXPAND3(KVU_FOR_EACH_HELPER(macro, __VA_ARGS__)))
// A comma-separated list made by a macro that puts a comma before each item.
#define IGS_ERROR_LIST(macro, ...) IGS_ERROR_TAIL(0 IGS_ERROR_FOR_EACH(macro, __VA_ARGS__))
#define IGS_ERROR_TAIL(...) IGS_ERROR_TAIL_(__VA_ARGS__)
#define IGS_ERROR_TAIL_(first, ...) __VA_ARGS__

#define IGS_ERROR_FIELD_(pair) IGS_ERROR_FIELD_I pair
#define IGS_ERROR_FIELD_I(type, name) type name;
#define IGS_ERROR_PARAM_(pair) IGS_ERROR_PARAM_I pair
#define IGS_ERROR_PARAM_I(type, name) , type name
#define IGS_ERROR_NAME_(pair) IGS_ERROR_NAME_I pair
#define IGS_ERROR_NAME_I(type, name) , name
#define IGS_ERROR_ACCESSOR_(pair) IGS_ERROR_ACCESSOR_I pair
#define IGS_ERROR_ACCESSOR_I(type, name)                                                           \
  type const& name() const {                                                                       \
    return m_arguments.name;                                                                       \
  }
#define IGS_ERROR_VISIT_(pair) IGS_ERROR_VISIT_I pair
#define IGS_ERROR_VISIT_I(type, name) igs_visit_error_argument(visitor, #name, m_arguments.name);

#define IGS_ERROR_BEHAVIOUR_REPORT
#define IGS_ERROR_BEHAVIOUR_SETTLED                                                                \
  int fix() override {                                                                             \
    return 1;                                                                                      \
  }
#define IGS_ERROR_BEHAVIOUR_FIX int fix() override;
#define IGS_ERROR_BEHAVIOUR_OBJ int obj() override;
#define IGS_ERROR_BEHAVIOUR_FIX_OBJ                                                                \
  int fix() override;                                                                              \
  int obj() override;

#define IGS_ERROR_DECLARE(Name, Base, Behaviour, ...)                                              \
  class Name : public Base {                                                                       \
    KVU_DECLARE_TYPE()                                                                             \
   public:                                                                                         \
    struct Arguments {                                                                             \
      IGS_ERROR_FOR_EACH(IGS_ERROR_FIELD_, __VA_ARGS__)                                            \
    };                                                                                             \
    explicit Name(IGS_ERROR_LIST(IGS_ERROR_PARAM_, __VA_ARGS__))                                   \
        : m_arguments{IGS_ERROR_LIST(IGS_ERROR_NAME_, __VA_ARGS__)} {                              \
      igsErrorBinder::bind(static_cast<Base&>(*this)                                               \
                               IGS_ERROR_FOR_EACH(IGS_ERROR_NAME_, __VA_ARGS__));                  \
    }                                                                                              \
    Arguments const& arguments() const { return m_arguments; }                                     \
    IGS_ERROR_FOR_EACH(IGS_ERROR_ACCESSOR_, __VA_ARGS__)                                           \
    void visit_arguments([[maybe_unused]] igsErrorArgumentVisitor& visitor) const override{        \
        IGS_ERROR_FOR_EACH(IGS_ERROR_VISIT_, __VA_ARGS__)} IGS_ERROR_BEHAVIOUR_##Behaviour         \
                                                                                                   \
        private : Arguments m_arguments;                                                           \
  };

#define IGS_ERROR_DEFINE(Name, Base, Behaviour, ...) KVU_DEFINE_TYPE(Name, Base)

// The fix of a FIX row whose repair is only a message: sends the printf-style message (format
// and arguments, which may use the accessors) and returns the result.
#define IGS_ERROR_MESSAGE_FIX(Name, result, ...)                                                   \
  int Name::fix() {                                                                                \
    message(__VA_ARGS__);                                                                          \
    return result;                                                                                 \
  }
