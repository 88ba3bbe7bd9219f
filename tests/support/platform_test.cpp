#include "support/coResource.h"
#include "support/giGeometry.h"
#include "support/kvnabs.h"
#include "support/kvuTempFile.h"
#include "support/kvuTypeInfo.h"
#include "support/utMath.h"

#include <cfloat>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct Root {
  virtual ~Root() = default;
  virtual kvuTypeInfo const& objtype() const { return id; }
  static kvuTypeInfo const id;
};
struct Left : Root {
  KVU_DECLARE_TYPE()
};
struct Right : Root {
  KVU_DECLARE_TYPE()
};
struct Both : Left, Right {
  KVU_DECLARE_TYPE()
};
KVU_DEFINE_TYPE(Root)
KVU_DEFINE_TYPE(Left, Root)
KVU_DEFINE_TYPE(Right, Root)
KVU_DEFINE_TYPE(Both, Left, Right)

TEST(kvuTypeInfo, KindOfWalksEveryBase) {
  EXPECT_TRUE(Both::id.childof(Root::id));
  EXPECT_TRUE(Both::id.childof(Right::id));
  EXPECT_FALSE(Left::id.childof(Right::id));
  EXPECT_FALSE(Root::id.childof(Left::id));
  Both b;
  Left const& l = b;
  EXPECT_TRUE(l.objtype() == Both::id);
  EXPECT_STREQ(Both::id.id_string().c_str(), "Both");
}

TEST(Resources, HostChangesAndResetsAKey) {
  coResourceTable* table = kvn_resource_table_inquire();
  EXPECT_EQ(*kvnOptDoubleGeometricPrecision.read(table), 15);
  table->set(kvnOptDoubleGeometricPrecision, 9);
  EXPECT_EQ(kvnOptDoubleGeometricPrecision.value(), 9);
  table->reset(kvnOptDoubleGeometricPrecision);
  EXPECT_EQ(kvnOptDoubleGeometricPrecision.value(), 15);
  table->set(kvnTolZeroLength, 0.25);
  EXPECT_EQ(*kvnTolZeroLength.read(table), 0.25);
  table->reset(kvnTolZeroLength);
  EXPECT_EQ(kvnTolZeroLength.value(), 1e-9);
}

TEST(TempFile, UniqueExclusiveAndNullWhereNoFolder) {
  auto dir = std::filesystem::temp_directory_path();
  utString a = kvu_make_temp_file_name(utString(dir.string()));
  utString b = kvu_make_temp_file_name(utString(dir.string()));
  ASSERT_FALSE(a.is_null());
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(std::filesystem::exists(a.c_str()));
  std::filesystem::remove(a.c_str());
  std::filesystem::remove(b.c_str());
  EXPECT_TRUE(kvu_make_temp_file_name(utString("/no/such/folder/at/all")).is_null());
  utString c = kvu_make_temp_file_name(utString(""));
  EXPECT_FALSE(c.is_null());
  std::filesystem::remove(c.c_str());
}

TEST(Messages, SinksOrFallback) {
  kvnabsStringOutput sink;
  get_igs_stream().set_error_stream(&sink);
  igs_print_error_message("Warning: %d lines\n", 3);
  get_igs_stream().set_error_stream(nullptr);
  EXPECT_EQ(sink.text(), "Warning: 3 lines\n");
  sink.message("iges", "DE %d", 7);
  EXPECT_EQ(sink.text(), "Warning: 3 lines\nDE 7");
}

TEST(Geometry, UnsetValuesLengthsAndTransforms) {
  EXPECT_TRUE(giPoint3().invalid());
  EXPECT_TRUE(giPoint3(0, DBL_MAX, 0).invalid());
  EXPECT_FALSE(giPoint3(0, 0, 0).invalid());
  EXPECT_TRUE(giPoint2().invalid());
  EXPECT_TRUE(giVector3().invalid());
  giLength l = distance(giPoint3(0, 0, 0), giPoint3(3, 4, 0));
  EXPECT_TRUE(l < giLength(5.5));
  EXPECT_DOUBLE_EQ(static_cast<double>(l), 5.0);
  EXPECT_TRUE(giPoint2(1, 1).coincident(giPoint2(1, 1.0000001), 1e-6));
  giXform3 t(giXformTranslateTag, 1, 2, 3), s(giXformScaleTag, 2, 2, 2), p;
  EXPECT_TRUE(p.invalid());
  p.become(giXformProductTag, t, s); // scale, then translate
  giPoint3 q = p.apply(giPoint3(1, 1, 1));
  EXPECT_EQ(q, giPoint3(3, 4, 5));
  EXPECT_DOUBLE_EQ(utMath::pow(10.0, -3), 0.001);
  EXPECT_DOUBLE_EQ(utMath::pow(2.0, 10), 1024.0);
  giVector3 v(0, 0, 2);
  EXPECT_DOUBLE_EQ(v.orthogonal().dot(v), 0.0);
}

} // namespace
