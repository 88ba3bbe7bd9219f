#include "core/igsFactory.h"

#include "core/igsFile.h"
#include "core/igsInfoDB.h"
#include "core/igsNull.h"
#include "core/igsObjectSystem.h"
#include "core/igsUnknown.h"
#include "input/igsInStream.h"
#include "sections/igsDirectoryEntry.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

// Classes of the tests' own stand outside the anonymous namespace: the entity pattern gives
// them a prototype maker with external linkage.
// A class, to register over form ranges of a type nobody uses.
class testShape : public igsObject {
  IGS_ENTITY_CLASS(testShape)
};
IGS_ENTITY_DEFINE(testShape, igsObject, 9100, 0, 0u)
int testShape::read_pd_data(igsInStream&) {
  return 1;
}
void testShape::write_pd_data(igsOutStream&) {}
void testShape::print_pd_data(utOstream&) const {}
void testShape::check_pd() const {}

class testRound : public testShape {
  KVU_DECLARE_TYPE()
 protected:
  igsObject* make_one() override { return new testRound; }
};
KVU_DEFINE_TYPE(testRound, testShape)

namespace {

// The rows of the registration table.
struct Row {
  int type;
  int min_form;
  int max_form;
  std::string name;
};

std::vector<Row> const& table() {
  static std::vector<Row> const rows = {
#define IGS_ENTITY(type, min_form, max_form, Class) {type, min_form, max_form, #Class},
#include "entities/igsEntityTable.def"
  };
  return rows;
}

// What the table says the factory makes for a type and form: the first row that holds the form,
// else igsUnknown.
std::string expected_class(int type, int form) {
  for (Row const& row : table())
    if (row.type == type && row.min_form <= form && form <= row.max_form)
      return row.name;
  return "igsUnknown";
}

// Makes an object through the factory; its class name, or "null" if none came.
struct Made {
  igsObject* object;
  std::string name() const { return object ? object->objtype().name() : "null"; }
};

class FactoryTest : public ::testing::Test {
 protected:
  std::unique_ptr<igsFile> file = std::make_unique<igsFile>();
  static Made make(int type, int form) {
    return {igsFactory::make_one(static_cast<igsEntityType>(type), form)};
  }
};

TEST_F(FactoryTest, EveryRegisteredRangeMakesItsClassWithItsTypeInTheCurrentFile) {
  for (Row const& row : table()) {
    for (int form : {row.min_form, row.max_form}) {
      SCOPED_TRACE(row.name + " form " + std::to_string(form));
      Made made = make(row.type, form);
      ASSERT_NE(made.object, nullptr);
      EXPECT_EQ(made.name(), row.name);
      EXPECT_EQ(&made.object->file(), file.get());
      // The class's constructor stores its own type and a form of its range.
      igsDirectoryEntry const& de = made.object->directory_entry();
      EXPECT_EQ(de.entity_type(), row.type);
      // But an external reference: built in memory it is of form 0, naming a file and an
      // entity, while the factory makes it only for form 1, naming a whole file.
      if (row.type > 0 && row.name != "igs416") {
        EXPECT_GE(de.form_number(), row.min_form);
        EXPECT_LE(de.form_number(), row.max_form);
      }
    }
    // Just outside the range (which for type 0 and -1 is the whole of int but its lowest
    // value), no other row of the type may claim the form.
    if (row.max_form == INT_MAX) continue;
    for (int form : {row.min_form - 1, row.max_form + 1})
      EXPECT_EQ(make(row.type, form).name(), expected_class(row.type, form))
          << row.name << " form " << form;
  }
}

TEST_F(FactoryTest, RegistrationsMatchInTheirOrderAndLeaveWhenDestroyed) {
  igsEntityType const type = static_cast<igsEntityType>(9100);
  int before = igsFactory::num_registrations();
  EXPECT_EQ(make(9100, 0).name(), "igsUnknown");
  {
    igsFactory nothing;
    EXPECT_EQ(igsFactory::num_registrations(), before);
    igsFactory shape(type, 0, 5, new testShape);
    igsFactory round(type, 3, 9, new testRound); // overlaps: the first registration wins
    EXPECT_EQ(igsFactory::num_registrations(), before + 2);
    EXPECT_EQ(make(9100, 0).name(), "testShape");
    EXPECT_EQ(make(9100, 5).name(), "testShape");
    EXPECT_EQ(make(9100, 6).name(), "testRound");
    EXPECT_EQ(make(9100, 9).name(), "testRound");
    EXPECT_EQ(make(9100, 10).name(), "igsUnknown");
    EXPECT_EQ(make(9100, -1).name(), "igsUnknown");
    // A registration whose prototype is gone makes an igsUnknown rather than fail.
    igsFactory lost(static_cast<igsEntityType>(9101), 0, 0, nullptr);
    EXPECT_EQ(make(9101, 0).name(), "igsUnknown");
  }
  EXPECT_EQ(igsFactory::num_registrations(), before);
  // The table keeps what was registered; the prototypes lived in this test's file, and once
  // that is closed the registrations make igsUnknown instead of reaching a deleted prototype.
  EXPECT_EQ(make(9100, 0).name(), "testShape");
  file = std::make_unique<igsFile>();
  EXPECT_EQ(make(9100, 0).name(), "igsUnknown");
  EXPECT_EQ(make(9100, 9).name(), "igsUnknown");
  EXPECT_EQ(make(110, 0).name(), "igs110");
}

class AccessObject : public igsObject {
 public:
  static igsObject* create(int type, int form) {
    return igsObject::create(static_cast<igsEntityType>(type), form);
  }
  static int read(igsObject& e, igsInStream& in) { return (e.*&AccessObject::read_pd_data)(in); }
};

TEST_F(FactoryTest, NullAndUnknownEntitiesHoldNothing) {
  igsObject* null = AccessObject::create(0, 5);
  igsObject* unknown = AccessObject::create(777, 0);
  ASSERT_TRUE(null->isa(igsNull::type()));
  ASSERT_TRUE(unknown->isa(igsUnknown::type()));
  EXPECT_EQ(null->directory_entry().entity_type(), igsEntityTypeNull);
  EXPECT_EQ(unknown->directory_entry().entity_type(), igsEntityTypeUnknown);
  EXPECT_EQ(null->directory_entry().form_number(), 0);
  EXPECT_EQ(unknown->directory_entry().form_number(), 0);

  std::istringstream text("1,2,3;");
  igsInStream in(text);
  EXPECT_EQ(AccessObject::read(*null, in), 0);
  EXPECT_EQ(AccessObject::read(*unknown, in), 0);

  std::ostringstream out;
  utOstream stream(out);
  null->print(stream);
  unknown->print(stream);
  std::string printed = out.str();
  EXPECT_NE(printed.find("  NullEntity\n}\n"), std::string::npos) << printed;
  EXPECT_NE(printed.find("  UnknownEntity\n}\n"), std::string::npos) << printed;
  EXPECT_EQ(null->check(), 1);
  EXPECT_EQ(unknown->check(), 1);
}

} // namespace
