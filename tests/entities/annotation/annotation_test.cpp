// The note, leader, annotation curve, dimension, general symbol and sectioned area family: a
// drawing of every class, each damage a file can carry with what check and repair make of it,
// and the text of notes through the round trip.
#include "entities/annotation/igs210.h"
#include "entities/annotation/igs212.h"
#include "entities/annotation/igsSection.h"
#include "entities/entityFamily.h"

using namespace igs_family_test;

namespace {

// Notes and annotation curves are drawn solid: line font 1.
Record solid(int type, int form, std::string data) {
  return {.type = type, .form = form, .data = std::move(data), .line_font = 1};
}

// Notes at DE 1 and 3; leaders at 5, 7, 9; witness lines at 11, 13; section lines at 15, 17;
// centre lines at 19, 21; lines at 23, 25, a circle at 27 and a square at 29 as geometry;
// then every dimension, the general symbols and the sectioned areas on them. Every record is
// as the writer gives it.
Family const annotation = {
    "annotation",
    "annotation",
    {
        solid(212, 0,
              "212,2,5,10.,2.,1,1.5707963267949,0.,0,0,1.,2.,0.,5HHELLO,9,18.,2.,17,1.2,0.5,1,1,1."
              ",4.,0.,9H  centred;"),
        solid(212, 1, "212,1,4,8.,2.,2001,1.5707963267949,0.,2,0,0.,0.,0.,4HABCD;"),
        {214, 1, "214,1,0.5,0.2,0.,0.,0.,5.,5.;"},
        {214, 2, "214,2,0.5,0.2,0.,0.,10.,10.,5.,15.,5.;"},
        {214, 4, "214,1,0.,0.,0.,3.,3.,6.,3.;"}, // no arrowhead, so no size
        solid(106, 40, "106,1,3,0.,0.,0.,0.,1.,0.,5.;"),
        solid(106, 40, "106,1,5,0.,10.,0.,10.,1.,10.,5.,10.,6.,10.,7.;"),
        solid(106, 31, "106,1,2,0.,0.,0.,1.,1.;"),
        solid(106, 38, "106,1,4,0.,0.,0.,1.,1.,0.,1.,1.,2.;"),
        solid(106, 20, "106,1,2,0.,-1.,0.,1.,0.;"),
        solid(106, 21, "106,1,4,0.,-1.,0.,1.,0.,0.,-1.,0.,1.;"),
        {110, 0, "110,0.,0.,0.,10.,0.,0.;"},
        {110, 0, "110,0.,5.,0.,10.,5.,0.;"},
        {100, 0, "100,0.,5.,5.,6.,5.,6.,5.;"},
        {106, 63, "106,1,5,0.,0.,0.,10.,0.,10.,10.,0.,10.,0.,0.;"},
        {202, 0, "202,1,11,13,0.,0.,5.,5,7;"},
        {204, 0, "204,1,23,25,5,7,11,13;"},
        {206, 0, "206,1,5,7,5.,5.;"},
        {206, 0, "206,3,5,0,5.,5.;"}, // one leader
        {208, 0, "208,1.,2.,0.,0.5,1,2,5,7;"},
        {208, 0, "208,0.,0.,0.,0.,3,0;"}, // a flag note needs no leader
        {210, 0, "210,1,3,5,7,9;"},
        {216, 0, "216,1,5,7,11,13;"},
        {216, 1, "216,3,5,7,0,0;"}, // no witness lines
        {218, 0, "218,1,11;"},
        {218, 1, "218,1,13,5;"},
        {220, 0, "220,1,5,27;"},
        {222, 0, "222,1,5,5.,5.;"},
        {222, 1, "222,1,5,5.,5.,7;"},
        {228, 0, "228,0,2,23,27,1,5;"}, // form 0 needs no note
        {228, 1, "228,1,1,29,2,5,7;"},
        {230, 0, "230,29,1,0.,0.,0.,0.5,0.785398163397448,1,27;"},
        {230, 0, "230,27,19,0.,0.,0.,0.,0.,0;"},
    }};

TEST(Annotation, TheFamilyFile) {
  expect_family(annotation);
}

// What the writer gives for each record of the family file is the record itself.
TEST(Annotation, TheFamilyFileIsWrittenAsItWasRead) {
  int result = 0;
  auto file = igs_test::read_text(file_text(annotation.records), result);
  ASSERT_EQ(result, 1);
  std::string const text = igs_test::written_text(*file);
  for (size_t i = 0; i < annotation.records.size(); ++i)
    EXPECT_EQ(igs_test::written_record(text, 2 * static_cast<int>(i) + 1),
              annotation.records[i].data);
}

} // namespace
