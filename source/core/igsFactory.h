// Turns an entity type and form number into a new object of the right class, and the macros
// that give every concrete entity class its place in that scheme.
//
// Every concrete class is registered once, with its form range, from the one table
// entities/igsEntityTable.def; the factory's own source makes those registrations, so they
// stand in any program that uses the factory, from a static library too.
#pragma once

#include "core/igsEntityType.h"
#include "core/igsObject.h"
#include "core/igsObjectPtr.h"
#include "support/coCollections.h"

#include <new>

// One registration: a form range and the prototype that makes the objects for it.
class igsFactoryShop {
 public:
  igsFactoryShop(int min_form, int max_form, igsObject* prototype)
      : m_min_form(min_form), m_max_form(max_form), m_prototype(prototype) {}

  int min_form_number() const { return m_min_form; }
  int max_form_number() const { return m_max_form; }
  // The prototype; null if it could not be made or has gone with its file.
  igsObject* object() const { return m_prototype ? m_prototype.operator->() : nullptr; }
  int holds(int form) const { return m_min_form <= form && form <= m_max_form; }

 private:
  int m_min_form;
  int m_max_form;
  // A reference rather than a plain pointer, so that a prototype deleted with the system's
  // first file reads null instead of dangling.
  igsObjectPtr m_prototype;
};

using igsFactoryShopcoSList = coSList<igsFactoryShop>;
using intigsFactoryShopcoSListcoTable = coTable<int, igsFactoryShopcoSList>;

// A registration of a prototype for an entity type and a form range. The registrations of one
// type are searched in the order they were made, and the first whose range holds the form wins.
class igsFactory {
 public:
  // A registration that does nothing.
  igsFactory() = default;
  igsFactory(igsEntityType type, int min_form, int max_form, igsObject* prototype);
  ~igsFactory();
  igsFactory(igsFactory const&) = delete;
  igsFactory& operator=(igsFactory const&) = delete;

  // A new object of the class registered for the type and form; an igsUnknown when no
  // registration holds them. The object joins the current file.
  static igsObject* make_one(igsEntityType type, int form);
  // The number of live registrations.
  static int num_registrations() { return m_ref_count; }

 private:
  // Makes the registrations of the entity table, once; both the load of the library and the
  // first request come here, whichever is first.
  static void register_table();

  int m_registered = 0;
  static inline intigsFactoryShopcoSListcoTable* m_type_object_table = nullptr;
  static inline int m_ref_count = 0;
  static int const m_table_registered;
};

// The declarations of a concrete entity class: its type record, its default constructor, its
// own make_one and the Directory Entry check. Classes whose parameter data come from a shared
// base use this alone.
#define IGS_ENTITY_IDENTITY(Class)                                                                 \
  KVU_DECLARE_TYPE()                                                                               \
 public:                                                                                           \
  Class();                                                                                         \
                                                                                                   \
 protected:                                                                                        \
  igsObject* make_one() override;                                                                  \
  void check_de() const override;                                                                  \
                                                                                                   \
 public:

// The operations on the parameter data that every concrete class writes for itself.
#define IGS_ENTITY_DATA_OPERATIONS                                                                 \
 protected:                                                                                        \
  int read_pd_data(igsInStream& in) override;                                                      \
  void write_pd_data(igsOutStream& out) override;                                                  \
  void print_pd_data(utOstream& out) const override;                                               \
  void check_pd() const override;                                                                  \
                                                                                                   \
 public:

// Everything an ordinary concrete entity class declares; put it first in the class body.
#define IGS_ENTITY_CLASS(Class) IGS_ENTITY_IDENTITY(Class) IGS_ENTITY_DATA_OPERATIONS

// Defines, in the class's source, what IGS_ENTITY_IDENTITY declared: the type record with its
// direct base, the constructor that stores the entity type and the default form in the DE
// (members are all initialised in their declarations, so this comes last), make_one, the
// Directory Entry check with the steps of igsDECheckStep that apply, and the prototype maker
// that the factory names.
#define IGS_ENTITY_DEFINE(Class, Base, type, form, de_steps)                                       \
  IGS_ENTITY_DEFINE_USE(Class, Base, type, form, de_steps, 0)
// The same for a class whose entities have an entity use of their own: the constructor sets it,
// and the Directory Entry check demands it when IGS_DE_ENTITY_USE is among the steps.
#define IGS_ENTITY_DEFINE_USE(Class, Base, type, form, de_steps, use)                              \
  IGS_ENTITY_DEFINE_OWN_DE_USE(Class, Base, type, form, use)                                       \
  void Class::check_de() const {                                                                   \
    check_directory_entry(de_steps, use);                                                          \
  }
// The same for a class that writes its Directory Entry check by hand, where a test of its own
// stands in the place of one of the usual steps.
#define IGS_ENTITY_DEFINE_OWN_DE(Class, Base, type, form)                                          \
  IGS_ENTITY_DEFINE_OWN_DE_USE(Class, Base, type, form, 0)
#define IGS_ENTITY_DEFINE_OWN_DE_USE(Class, Base, type, form, use)                                 \
  KVU_DEFINE_TYPE(Class, Base)                                                                     \
  Class::Class() {                                                                                 \
    set_directory_entry_type(static_cast<igsEntityType>(type), form, use);                         \
  }                                                                                                \
  igsObject* Class::make_one() {                                                                   \
    return new (std::nothrow) Class;                                                               \
  }                                                                                                \
  igsObject* igs_make_prototype_##Class();                                                         \
  igsObject* igs_make_prototype_##Class() {                                                        \
    return new (std::nothrow) Class;                                                               \
  }
