#include "core/igsInfoDB.h"

#include <gtest/gtest.h>

#include <climits>
#include <span>
#include <string>
#include <string_view>

namespace {

struct NamedNumber {
  int number;
  char const* name;
};

} // namespace

// The tables against each other and against the reader's needs, rather than against a copy:
// every known type's default form is a form of that type (the reader puts it in place of a bad
// form), and the forms at the ends of each range the entity table registers a class for are forms
// of the table.
TEST(igsInfoDB, DefaultFormsAndRegisteredFormsExist) {
  int known = 0;
  for (int type = -1100; type <= 1100; ++type) {
    EXPECT_EQ(igsInfoDB::entity_exists(type), igsInfoDB::entity_info(type) != nullptr);
    EXPECT_EQ(igsInfoDB::entity_name(type).is_null(), !igsInfoDB::entity_exists(type)) << type;
    known += igsInfoDB::entity_exists(type);
    int form = -5, found = -5;
    igsInfoDB::default_form_number(type, form, found);
    if (found) {
      EXPECT_TRUE(igsInfoDB::form_exists(type, form)) << type;
    } else {
      EXPECT_EQ(form, 0) << type;
    }
  }
  EXPECT_EQ(known, 90);
  struct Registration {
    int type, min_form, max_form;
  } const registrations[] = {
#define IGS_ENTITY(type, min_form, max_form, Class) {type, min_form, max_form},
#include "entities/igsEntityTable.def"
  };
  for (Registration const& r : registrations) {
    EXPECT_TRUE(igsInfoDB::entity_exists(r.type)) << r.type;
    if (r.type <= 0) continue; // Null and Unknown take any form
    // A range may span forms the table lacks (212 holds 0 to 8 and 100 to 105); its ends exist.
    EXPECT_TRUE(igsInfoDB::form_exists(r.type, r.min_form)) << r.type << "." << r.min_form;
    EXPECT_TRUE(igsInfoDB::form_exists(r.type, r.max_form)) << r.type << "." << r.max_form;
  }
  for (int type : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX}) {
    EXPECT_FALSE(igsInfoDB::entity_exists(type));
    EXPECT_FALSE(igsInfoDB::form_exists(type, 0));
    EXPECT_TRUE(igsInfoDB::form_name(type, 0).is_null());
  }
}

TEST(igsInfoDB, LookupsThatReadersAndPrintersRelyOn) {
  EXPECT_FALSE(igsInfoDB::form_exists(110, 1));
  EXPECT_TRUE(igsInfoDB::form_exists(108, -1));
  EXPECT_FALSE(igsInfoDB::form_exists(402, 17));
  EXPECT_TRUE(igsInfoDB::form_exists(402, 5500));
  EXPECT_EQ(igsInfoDB::entity_form_name(104, 1), "Conic Arc(Ellipse)");

  int form = -5, found = -5;
  igsInfoDB::default_form_number(106, form, found);
  EXPECT_EQ(found, 0);
  EXPECT_EQ(form, 0);
  igsInfoDB::default_form_number(214, form, found);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(form, 4);

  // An unknown type: nothing exists, names are null, and joining them does not fail.
  EXPECT_FALSE(igsInfoDB::form_exists(999, 0));
  EXPECT_TRUE(igsInfoDB::form_name(999, 0).is_null());
  EXPECT_EQ(igsInfoDB::entity_form_name(999, 0), "()");

  // Names are kept, not built: the same object each time.
  EXPECT_EQ(&igsInfoDB::entity_name(100), &igsInfoDB::entity_name(100));
  EXPECT_EQ(&igsInfoDB::form_name(406, 8), &igsInfoDB::form_name(406, 8));
}

TEST(igsInfoDB, UnitsVersionsAndDraftingStandards) {
  // The ends of each table; the names in between are data, not behaviour.
  NamedNumber const units[] = {{1, "Inches"}, {11, "Microinches"}};
  NamedNumber const versions[] = {{1, "1.0"}, {11, "5.3"}};
  NamedNumber const drafts[] = {{0, "None - No standard specified"},
                                {7, "JIS - Japanese Institute for Standardization"}};
  struct Table {
    char const* what;
    std::span<NamedNumber const> rows;
    int (*exists)(int);
    utString const& (*name)(int);
  };
  Table const tables[] = {
      {"units", units, igsInfoDB::units_exist, igsInfoDB::units_name},
      {"versions", versions, igsInfoDB::version_exists, igsInfoDB::version_name},
      {"drafts", drafts, igsInfoDB::draft_exists, igsInfoDB::draft_name}};
  for (Table const& table : tables) {
    SCOPED_TRACE(table.what);
    for (NamedNumber const& row : table.rows) {
      EXPECT_TRUE(table.exists(row.number)) << row.number;
      EXPECT_EQ(table.name(row.number).view(), std::string_view(row.name));
    }
    int below = table.rows.front().number - 1;
    int above = table.rows.back().number + 1;
    for (int number : {INT_MIN, -1, below, above, 100, INT_MAX}) {
      EXPECT_FALSE(table.exists(number)) << number;
      EXPECT_TRUE(table.name(number).is_null()) << number;
    }
  }
  EXPECT_FALSE(igsInfoDB::version_exists(0));
  EXPECT_TRUE(igsInfoDB::draft_exists(0));
  // The Global section finds the highest version by counting up while versions exist.
  int highest = 0;
  while (igsInfoDB::version_exists(highest + 1)) ++highest;
  EXPECT_EQ(highest, 11);
}

TEST(igsEntityInfo, FormListIsSearchedLatestFirstAndFallsBackToDefault) {
  igsEntityInfo info("Widget", 2);
  EXPECT_EQ(info.entity_name(), "Widget");
  EXPECT_EQ(info.default_form_number(), 2);
  EXPECT_TRUE(info.form_exists(0)); // no list: form 0 alone
  EXPECT_FALSE(info.form_exists(2));
  EXPECT_EQ(info.form_info(0).form_name(), "Default");

  info.add_form(igsFormInfo(1, 10, "Wide"));
  info.add_form(igsFormInfo(5, 5, "Narrow"));
  EXPECT_FALSE(info.form_exists(0)); // a list replaces the lone form 0
  EXPECT_TRUE(info.form_exists(10));
  EXPECT_EQ(info.form_info(5).form_name(), "Narrow");
  EXPECT_EQ(info.form_info(4).form_name(), "Wide");
  EXPECT_EQ(info.form_info(4).min_form_number(), 1);
  EXPECT_EQ(info.form_info(4).max_form_number(), 10);
  EXPECT_EQ(info.form_info(4).min_version(), 0);
  EXPECT_EQ(info.form_info(4).max_version(), 0);

  igsFormInfo const& missing = info.form_info(11);
  EXPECT_EQ(missing.form_name(), "Default");
  EXPECT_EQ(missing.min_form_number(), 0);
  EXPECT_EQ(missing.max_form_number(), 0);
}
