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

} // namespace
