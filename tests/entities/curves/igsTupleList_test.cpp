// The point set and the polyline share their code; every case runs on both, with the names and
// forms of each.
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

template <class T> struct Kind;
template <> struct Kind<igsPolyline> {
  static constexpr char const* prefix = "igsPolyline";
  static constexpr int offset = 10;
  using Dim = igsPolylineDim;
  using Traits = igsPolylineTraits;
};
template <> struct Kind<igsPointset> {
  static constexpr char const* prefix = "igsPointset";
  static constexpr int offset = 0;
  using Dim = igsPointsetDim;
  using Traits = igsPointsetTraits;
};

template <class T> class TupleListTest : public EntityTest {
 protected:
  using Dim = typename Kind<T>::Dim;
  static std::string error(std::string const& name) { return Kind<T>::prefix + name; }
  static std::vector<std::string> errors_named(std::vector<std::string> names) {
    for (auto& name : names) name = error(name);
    std::sort(names.begin(), names.end());
    return names;
  }
  // An entity read from the record, with the form of its flag.
  T* read_entity(std::string const& data, int expected = 1) {
    auto* e = new T;
    EXPECT_EQ(read(*e, {data}), expected);
    return e;
  }
  static int form(igsObject const& e) { return e.directory_entry().form_number(); }
};

using Kinds = ::testing::Types<igsPolyline, igsPointset>;
TYPED_TEST_SUITE(TupleListTest, Kinds);

TYPED_TEST(TupleListTest, EachFlagReadsWritesAndPrintsItsTuples) {
  using Dim = typename TestFixture::Dim;
  int const offset = Kind<TypeParam>::offset;

  // Flag 1: the common Z comes before the pairs, and every point takes it.
  TypeParam* planar = this->read_entity("106,1,3,5.,0.,0.,1.,0.,1.,1.;");
  Dim dim{};
  ASSERT_TRUE(planar->dimensionality(dim));
  EXPECT_EQ(dim, 1);
  EXPECT_EQ(planar->number_of_items(), 3);
  giPoint3 p;
  ASSERT_TRUE(planar->point_3d(2, p));
  EXPECT_EQ(p, giPoint3(1, 1, 5));
  EXPECT_EQ(this->written(*planar), this->records({"106,1,3,5.,0.,0.,1.,0.,1.,1.;"}));
  EXPECT_EQ(this->printed(*planar), "Flags = {\n"
                                    "  InterpretationFlag = XYCommonZ\n"
                                    "}\n"
                                    "NumberOfTuples = 3\n"
                                    "Common-Z-Level =5\n"
                                    "XYTuples {\n"
                                    "  (0) = (0, 0)\n"
                                    "  (1) = (1, 0)\n"
                                    "  (2) = (1, 1)\n"
                                    "}\n");
  Access::set_form(*planar, 1 + offset);
  EXPECT_EQ(this->checked(*planar), std::vector<std::string>{});

  TypeParam* space = this->read_entity("106,2,2,0.,0.,0.,1.,2.,3.;");
  EXPECT_EQ(this->written(*space), this->records({"106,2,2,0.,0.,0.,1.,2.,3.;"}));
  EXPECT_EQ(this->printed(*space), "Flags = {\n"
                                   "  InterpretationFlag = XYZ\n"
                                   "}\n"
                                   "NumberOfTuples = 2\n"
                                   "XYZTuples {\n"
                                   "  (0) = (0, 0, 0)\n"
                                   "  (1) = (1, 2, 3)\n"
                                   "}\n");

  TypeParam* vectors = this->read_entity("106,3,2,1.,2.,3.,0.,0.,1.,4.,5.,6.,1.,0.,0.;");
  giVector3 v;
  ASSERT_TRUE(vectors->point_vector(1, p, v));
  EXPECT_EQ(p, giPoint3(4, 5, 6));
  EXPECT_EQ(v, giVector3(1, 0, 0));
  EXPECT_EQ(this->written(*vectors),
            this->records({"106,3,2,1.,2.,3.,0.,0.,1.,4.,5.,6.,1.,0.,0.;"}));
  EXPECT_EQ(this->printed(*vectors), "Flags = {\n"
                                     "  InterpretationFlag = XYZIJK\n"
                                     "}\n"
                                     "NumberOfTuples = 2\n"
                                     "XYZIJKTuples {\n"
                                     "  (0) = (1, 2, 3),(0, 0, 1)\n"
                                     "  (1) = (4, 5, 6),(1, 0, 0)\n"
                                     "}\n");
  Access::set_form(*vectors, 3 + offset);
  EXPECT_EQ(this->checked(*vectors), std::vector<std::string>{});
}

TYPED_TEST(TupleListTest, BadFlagsAndCountsStopTheRead) {
  for (int ip : {0, 4, -1, 11}) {
    SCOPED_TRACE(ip);
    TypeParam* e = this->read_entity("106," + std::to_string(ip) + ",1,0.,0.,0.;", 0);
    EXPECT_EQ(this->errors(*e),
              std::vector<std::string>{this->error("InvalidIP(ip=" + std::to_string(ip) + ")")});
    EXPECT_EQ(e->number_of_items(), 0);
  }
  TypeParam* negative = this->read_entity("106,2,-1,0.,0.,0.;", 0);
  EXPECT_EQ(this->errors(*negative),
            std::vector<std::string>{this->error("BadNumTuples(count=-1)")});

  // No tuples read without an error; the check finds no points.
  TypeParam* empty = this->read_entity("106,1,0,7.;");
  EXPECT_EQ(this->errors(*empty), std::vector<std::string>{});
  double z = 0;
  ASSERT_TRUE(empty->z_level(z));
  EXPECT_EQ(z, 7.0);
  Access::set_form(*empty, 1 + Kind<TypeParam>::offset);
  EXPECT_EQ(this->checked(*empty), std::vector<std::string>{this->error("NoPoints")});
  EXPECT_EQ(this->written(*empty), this->records({"106,1,0,7.;"}));

  // A count far beyond the record gives the tuples that the record holds.
  TypeParam* short_record = this->read_entity("106,2,2000000000,1.,2.,3.,4.,5.,6.;");
  EXPECT_EQ(short_record->number_of_items(), 2);
  EXPECT_EQ(this->written(*short_record), this->records({"106,2,2,1.,2.,3.,4.,5.,6.;"}));
}

TYPED_TEST(TupleListTest, FormMismatchRepairGivesTheFormOfTheFlag) {
  int const offset = Kind<TypeParam>::offset;
  // The entity stands with form 2 (or 12) in its DE but its data say flag 3.
  TypeParam* e = this->read_entity("106,3,1,1.,2.,3.,0.,0.,1.;");
  Access::set_form(*e, 2 + offset);
  EXPECT_EQ(this->checked(*e),
            std::vector<std::string>{
                this->error("IPFormMismatch(ip=3,form=" + std::to_string(2 + offset) + ")")});
  int de = e->de_number();
  EXPECT_EQ(this->fix(de, Kind<TypeParam>::Traits::IPFormMismatch::type()), 1);
  EXPECT_EQ(this->form(*e), 3 + offset);
  EXPECT_EQ(this->written(*e), this->records({"106,3,1,1.,2.,3.,0.,0.,1.;"}));
  EXPECT_EQ(this->checked(*e), std::vector<std::string>{});

  // Without a flag there is no form to give.
  auto* unset = new TypeParam;
  EXPECT_EQ(TypeParam::repair_form(unset->de_number()), 0);
  EXPECT_EQ(this->form(*unset), 1 + offset);
  EXPECT_EQ(TypeParam::repair_form(de + 100), 0);
}

TYPED_TEST(TupleListTest, ChecksOfEntitiesBuiltThroughTheSetters) {
  using Dim = typename TestFixture::Dim;
  int const offset = Kind<TypeParam>::offset;

  auto* fresh = new TypeParam;
  EXPECT_EQ(this->checked(*fresh), this->errors_named({"InvalidDimensionality", "NoPoints"}));

  // A point set at index 2 of an empty list leaves two unset points before it.
  auto* gaps = new TypeParam;
  ASSERT_TRUE(gaps->set_dimensionality(Dim(2)));
  EXPECT_EQ(this->form(*gaps), 2 + offset);
  ASSERT_TRUE(gaps->set_point_3d(2, giPoint3(1, 2, 3)));
  EXPECT_EQ(gaps->number_of_items(), 3);
  EXPECT_EQ(this->checked(*gaps),
            this->errors_named({"InvalidPoint(index=0)", "InvalidPoint(index=1)"}));

  auto* sextuples = new TypeParam;
  ASSERT_TRUE(sextuples->set_dimensionality(Dim(3)));
  ASSERT_TRUE(sextuples->set_point_vector(1, giPoint3(1, 2, 3), giVector3(0, 0, 1)));
  EXPECT_EQ(this->checked(*sextuples),
            this->errors_named({"InvalidPoint(index=0)", "InvalidVector(index=0)"}));

  // With flag 1, points take the common Z of their time; a later Z leaves them unequal.
  auto* planar = new TypeParam;
  ASSERT_TRUE(planar->set_dimensionality(Dim(1)));
  ASSERT_TRUE(planar->set_point_planar(0, giPoint2(1, 1)));
  EXPECT_EQ(this->checked(*planar), this->errors_named({"InvalidZLevel"}));
  ASSERT_TRUE(planar->set_z_level(4.0));
  ASSERT_TRUE(planar->set_point_planar(1, giPoint2(2, 2)));
  EXPECT_EQ(this->checked(*planar), this->errors_named({"UnequalZLevels"}));
  ASSERT_TRUE(planar->set_point_planar(0, giPoint2(1, 1)));
  EXPECT_EQ(this->checked(*planar), std::vector<std::string>{});
  ASSERT_TRUE(planar->set_z_level(5.0));
  EXPECT_EQ(this->checked(*planar), this->errors_named({"UnequalZLevels", "UnequalZLevels"}));
}

TYPED_TEST(TupleListTest, AccessorsAnswerOnlyForTheirFlag) {
  using Dim = typename TestFixture::Dim;
  int const offset = Kind<TypeParam>::offset;
  auto* e = new TypeParam;
  Dim dim{};
  EXPECT_FALSE(e->dimensionality(dim));
  EXPECT_FALSE(e->set_dimensionality(Dim(4)));
  EXPECT_FALSE(e->set_dimensionality(Dim(0)));
  EXPECT_FALSE(e->set_point_3d(0, giPoint3(1, 2, 3)));
  EXPECT_FALSE(e->set_z_level(1.0));

  ASSERT_TRUE(e->set_dimensionality(Dim(1)));
  // A second flag is refused, even the same one.
  EXPECT_FALSE(e->set_dimensionality(Dim(2)));
  EXPECT_FALSE(e->set_dimensionality(Dim(1)));
  ASSERT_TRUE(e->dimensionality(dim));
  EXPECT_EQ(dim, 1);
  EXPECT_EQ(this->form(*e), 1 + offset);

  // A growth hint adds no items.
  EXPECT_TRUE(e->set_size(10));
  EXPECT_FALSE(e->set_size(0));
  EXPECT_EQ(e->number_of_items(), 0);

  EXPECT_FALSE(e->set_point_3d(0, giPoint3(1, 2, 3)));
  EXPECT_FALSE(e->set_point_vector(0, giPoint3(1, 2, 3), giVector3(1, 0, 0)));
  EXPECT_FALSE(e->set_point_planar(-1, giPoint2(1, 2)));
  EXPECT_FALSE(e->set_point_planar(0, giPoint2()));
  ASSERT_TRUE(e->set_z_level(2.0));
  ASSERT_TRUE(e->set_point_planar(0, giPoint2(1, 2)));
  giPoint2 planar;
  giPoint3 point;
  giVector3 vector;
  ASSERT_TRUE(e->point_planar(0, planar));
  EXPECT_EQ(planar, giPoint2(1, 2));
  EXPECT_FALSE(e->point_planar(1, planar));
  EXPECT_FALSE(e->point_planar(-1, planar));
  ASSERT_TRUE(e->point_3d(0, point)); // flag 1 answers in space too
  EXPECT_EQ(point, giPoint3(1, 2, 2));
  EXPECT_FALSE(e->point_vector(0, point, vector));

  auto* s = new TypeParam;
  ASSERT_TRUE(s->set_dimensionality(Dim(3)));
  EXPECT_FALSE(s->set_point_vector(0, giPoint3(1, 2, 3), giVector3()));
  ASSERT_TRUE(s->set_point_vector(0, giPoint3(1, 2, 3), giVector3(1, 0, 0)));
  EXPECT_FALSE(s->point_3d(0, point));
  EXPECT_FALSE(s->point_planar(0, planar));
  double z = 0;
  EXPECT_FALSE(s->z_level(z));
  ASSERT_TRUE(s->point_vector(0, point, vector));
  EXPECT_EQ(vector, giVector3(1, 0, 0));
  EXPECT_EQ(this->written(*s), this->records({"106,3,1,1.,2.,3.,1.,0.,0.;"}));
}

} // namespace
