#include "operations/igsConvert.h"

#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "entities/entityTestSupport.h"

using namespace igs_entity_test;

namespace {

using ConvertTest = EntityTest;

// A line and a point set become polylines, in the current file, with numbers of their own.
TEST_F(ConvertTest, LinesAndPointSetsBecomePolylinesOfTheirPoints) {
  auto* line = new igs110;
  ASSERT_EQ(read(*line, {"110,1.,2.,3.,4.,5.,6.;"}), 1);
  line->directory_entry().set_entity_label("L1");
  line->directory_entry().set_line_weight_number(1);
  line->directory_entry().set_level(igsLevel(7));
  igsObject* from_line = igsConvert::to_curve(line);
  ASSERT_NE(from_line, nullptr);
  ASSERT_TRUE(from_line->isa(igsPolyline::type()));
  EXPECT_EQ(&from_line->file(), file.get());
  EXPECT_EQ(from_line->de_number(), 3);
  EXPECT_EQ(from_line->directory_entry().form_number(), 12);
  EXPECT_EQ(from_line->directory_entry().entity_label(), "L1");
  EXPECT_EQ(from_line->directory_entry().line_weight_number(), 1);
  EXPECT_EQ(from_line->directory_entry().level().level(), 7);
  EXPECT_EQ(written(*from_line), records({"106,2,2,1.,2.,3.,4.,5.,6.;"}));
  EXPECT_EQ(checked(*from_line), std::vector<std::string>{});

  // Flag 1: a polyline of form 11 whose points hold the common Z.
  auto* planar = new igsPointset;
  ASSERT_EQ(read(*planar, {"106,1,2,7.5,0.,1.,2.,3.;"}), 1);
  igsObject* from_planar = igsConvert::to_curve(planar);
  ASSERT_NE(from_planar, nullptr);
  EXPECT_EQ(from_planar->directory_entry().form_number(), 11);
  auto* polyline = static_cast<igsPolyline*>(from_planar);
  giPoint3 p;
  ASSERT_TRUE(polyline->point_3d(1, p));
  EXPECT_EQ(p, giPoint3(2, 3, 7.5));
  EXPECT_EQ(written(*polyline), records({"106,1,2,7.5,0.,1.,2.,3.;"}));
  EXPECT_EQ(checked(*polyline), std::vector<std::string>{});

  auto* space = new igsPointset;
  ASSERT_EQ(read(*space, {"106,2,1,1.,2.,3.;"}), 1);
  igsObject* from_space = igsConvert::pointset_to_polyline(space);
  ASSERT_NE(from_space, nullptr);
  EXPECT_EQ(from_space->directory_entry().form_number(), 12);
  EXPECT_EQ(written(*from_space), records({"106,2,1,1.,2.,3.;"}));

  // The originals stay as they were.
  EXPECT_EQ(file->num_entities(), 6);
  EXPECT_EQ(written(*line), records({"110,1.,2.,3.,4.,5.,6.;"}));
}

} // namespace
