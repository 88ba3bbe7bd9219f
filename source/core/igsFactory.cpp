#include "core/igsFactory.h"

#include "core/igsUnknown.h"

// The prototype makers of the classes in the table. Each is defined beside its class, so
// naming them here brings every entity class into any program that uses the factory.
#define IGS_ENTITY(type, min_form, max_form, Class) igsObject* igs_make_prototype_##Class();
#include "entities/igsEntityTable.def"

igsFactory::igsFactory(igsEntityType type, int min_form, int max_form, igsObject* prototype) {
  if (!m_type_object_table) {
    m_type_object_table = new (std::nothrow) intigsFactoryShopcoSListcoTable(4, 50);
    if (!m_type_object_table) return;
  }
  m_registered = 1;
  ++m_ref_count;
  (*m_type_object_table)[type].insert_last(igsFactoryShop(min_form, max_form, prototype));
}

igsFactory::~igsFactory() {
  if (!m_registered) return;
  if (--m_ref_count == 0) {
    delete m_type_object_table;
    m_type_object_table = nullptr;
  }
}

void igsFactory::register_table() {
  static igsFactory const registrations[] = {
#define IGS_ENTITY(type, min_form, max_form, Class)                                                \
  igsFactory(static_cast<igsEntityType>(type), min_form, max_form, igs_make_prototype_##Class()),
#include "entities/igsEntityTable.def"
  };
  (void)registrations;
}

// The registrations are made while the library loads, as prototypes of every class.
int const igsFactory::m_table_registered = (register_table(), 1);

igsObject* igsFactory::make_one(igsEntityType type, int form) {
  register_table();
  if (intigsFactoryShopcoSListcoTable const* table = m_type_object_table)
    if (igsFactoryShopcoSList const* shops = table->read(type))
      for (igsFactoryShop const& shop : *shops)
        if (shop.holds(form)) {
          if (igsObject* prototype = shop.object()) return prototype->make_one();
          break;
        }
  return new (std::nothrow) igsUnknown;
}

igsObject* igsObject::create(igsEntityType type, int form) {
  return igsFactory::make_one(type, form);
}
