// Reading whole files: sound ones, and each kind of damage with the result, the counts and the
// errors it leaves.
#include "readTestSupport.h"

#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"

using namespace igs_read_test;

namespace {

// A point, a line and an arc, the point's display symbol naming the arc ahead of it.
FileText three_entities() {
  FileText f;
  f.add(116, 0, {"116,1.,2.,3.,5;"});
  f.add(110, 0, {"110,0.,0.,0.,", "4.,5.,6.;"});
  f.add(100, 0, {"100,1.5,0.,0.,2.,0.,0.,2.;"});
  return f;
}

TEST_F(ReadTest, ASoundFileReadsEveryEntityWithItsValues) {
  ASSERT_EQ(read(three_entities().text()), 1);
  EXPECT_EQ(errors(), Lines{});
  EXPECT_EQ(file->num_entities(), 3);
  EXPECT_EQ(file->num_managers(), 3);
  EXPECT_EQ(file->parameter_data_read(), 1);
  EXPECT_EQ(file->num_nulls(), 0);
  EXPECT_EQ(file->num_unknowns(), 0);

  auto* point = entity<igs116>(1);
  auto* line = entity<igs110>(3);
  auto* arc = entity<igs100>(5);
  ASSERT_TRUE(point && line && arc);
  EXPECT_EQ(point->point(), giPoint3(1, 2, 3));
  EXPECT_EQ(point->display_symbol()(), arc); // a reference forward, bound while reading
  EXPECT_EQ(line->start_point(), giPoint3(0, 0, 0));
  EXPECT_EQ(line->end_point(), giPoint3(4, 5, 6));
  EXPECT_EQ(arc->z_level(), 1.5);
  EXPECT_EQ(arc->centre(), giPoint2(0, 0));
  EXPECT_EQ(arc->start_point(), giPoint2(2, 0));
  EXPECT_EQ(arc->end_point(), giPoint2(0, 2));
  EXPECT_EQ(arc->num_references(), 1);

  // The sections around the entities.
  EXPECT_EQ(file->global_section().product_id_from_sending_system(), utString("Product"));
  EXPECT_EQ(file->terminate_section().lines(igsSectionParameter), 4);
  EXPECT_EQ(file->terminate_section().lines(igsSectionDirectory), 6);
}

} // namespace
