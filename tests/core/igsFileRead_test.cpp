// Reading whole files: sound ones, and each kind of damage with the result, the counts and the
// errors it leaves.
#include "readTestSupport.h"

#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "input/igsInStream.h"
#include "output/outputTestSupport.h"
#include "sections/igsDirectoryEntry.h"

using namespace igs_read_test;

namespace {

TEST_F(ReadTest, TypeMismatchesDropTheEntityWithTheirErrors) {
  FileText f;
  // The two type fields of the D lines differ: an Unknown entity, dropped after reading.
  int de_mismatch = f.add(110, 0, {"110,0.,0.,0.,1.,1.,1.;"});
  f.entity(de_mismatch).second_type = 116;
  // The record opens with another type than its D lines: it is not read, so the entity has no
  // parameter data.
  int pd_mismatch = f.add(110, 0, {"116,1.,2.,3.;"});
  int sound = f.add(116, 0, {"116,1.,2.,3.;"});
  ASSERT_EQ(read(f.text()), 1);
  EXPECT_EQ(errors(), (Lines{"igsFileDEEntityTypeMismatch(line=1,first_type=110,second_type=116)",
                             "igsFilePDEntityTypeMismatch(de_number=3,type_read=116)",
                             "igsFileNoPDData(de_number=3)"}));
  EXPECT_EQ(file->num_entities(), 1);
  EXPECT_EQ(file->num_unknowns(), 1);
  EXPECT_EQ(file->num_nulls(), 0);
  EXPECT_FALSE(entity<igsObject>(de_mismatch));
  EXPECT_FALSE(entity<igsObject>(pd_mismatch));
  ASSERT_TRUE(entity<igs116>(sound));
  EXPECT_EQ(entity<igs116>(sound)->point(), giPoint3(1, 2, 3));
  EXPECT_EQ(repaired(), "Warning : There is no Parameter Data associated with object DE 3.\n");
}

TEST_F(ReadTest, UnknownTypesAndFormsAreDefaultedOrDropped) {
  FileText f;
  int line_form_7 = f.add(110, 7, {"110,0.,0.,0.,1.,1.,1.;"});
  int copious_form_99 = f.add(106, 99, {"106,1,2,0.,0.,0.;"});
  int no_such_type = f.add(999, 0, {"999,1,2,3;"});
  // A type and form of the tables for which no class exists: Unknown, without an error.
  int without_class = f.add(125, 0, {"125,1.,1.,0.,0.,0.,0;"});
  ASSERT_EQ(read(f.text()), 1);
  EXPECT_EQ(errors(), (Lines{"igsFileDefaultedForm(line=1,entity_type=110,form=7)",
                             "igsFileUnknownForm(line=3,entity_type=106,form=99)",
                             "igsFileInvalidIGESEntity(line=5,entity_type=999)"}));
  // The line is read with the type's default form.
  auto* line = entity<igs110>(line_form_7);
  ASSERT_TRUE(line);
  EXPECT_EQ(line->directory_entry().form_number(), 0);
  EXPECT_EQ(line->end_point(), giPoint3(1, 1, 1));
  EXPECT_FALSE(entity<igsObject>(copious_form_99));
  EXPECT_FALSE(entity<igsObject>(no_such_type));
  EXPECT_FALSE(entity<igsObject>(without_class));
  EXPECT_EQ(file->num_unknowns(), 3);
  EXPECT_EQ(file->num_entities(), 1);
  // A defaulted form is settled by its repair, which says nothing; the others stay.
  EXPECT_EQ(repaired(), "");
}

TEST_F(ReadTest, StartAndCountOfParameterLinesAreComparedWithTheDirectoryEntry) {
  FileText f;
  int wrong_start = f.add(116, 0, {"116,1.,2.,3.;"});
  f.entity(wrong_start).start = 5;
  int wrong_count = f.add(110, 0, {"110,0.,0.,0.,", "1.,1.,1.;"});
  f.entity(wrong_count).count = 3;
  // Lines behind the record's end still count as the entity's; the last record ends on the
  // T line.
  int trailing = f.add(116, 0, {"116,4.,5.,6.;", "7.,8.;"});
  f.entity(trailing).count = 1;
  ASSERT_EQ(read(f.text()), 1);
  EXPECT_EQ(errors(),
            (Lines{"igsFileIncorrectStartOfPD(de_number=1,line_found=1,line_in_de=5)",
                   "igsFileIncorrectPDLineCount(de_number=3,lines_found=2,count_in_de=3)",
                   "igsFileIncorrectPDLineCount(de_number=5,lines_found=2,count_in_de=1)"}));
  // Reading goes on: every entity holds its values.
  EXPECT_EQ(file->num_entities(), 3);
  EXPECT_EQ(entity<igs116>(wrong_start)->point(), giPoint3(1, 2, 3));
  EXPECT_EQ(entity<igs110>(wrong_count)->end_point(), giPoint3(1, 1, 1));
  EXPECT_EQ(entity<igs116>(trailing)->point(), giPoint3(4, 5, 6));
  EXPECT_EQ(repaired(), "");
}

// The status field is four numbers of two columns each, whether all eight columns are digits
// or some pair is not.
TEST_F(ReadTest, TheStatusFieldIsReadAsFourPairsOfColumns) {
  struct Row {
    std::string status;
    igsStatusFlags flags;
  } const rows[] = {{"00010200", {0, 1, 2, 0}},
                    {"12345678", {12, 34, 56, 78}},
                    {"     103", {0, 0, 1, 3}},
                    {" 1 2 3 4", {1, 2, 3, 4}}};
  FileText f;
  for (Row const& row : rows) f.entity(f.add(116, 0, {"116,1.,2.,3.;"})).status = row.status;
  ASSERT_EQ(read(f.text()), 1);
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(entity<igs116>(2 * i + 1)->directory_entry().status_flags(), rows[i].flags) << i;
}

// A record that names an entity read already is passed over: the first one stands.
TEST_F(ReadTest, ASecondRecordOfAnEntityIsPassedOver) {
  FileText twice;
  int first = twice.add(116, 0, {"116,1.,2.,3.;"});
  twice.add(116, 0, {"116,4.,5.,6.;"});
  twice.entity(twice.add(116, 0, {"116,7.,8.,9.;"})).backpointer = first;
  ASSERT_EQ(read(twice.text()), 1);
  EXPECT_EQ(errors(), (Lines{"igsFileIncorrectStartOfPD(de_number=1,line_found=3,line_in_de=1)",
                             "igsFileNoPDData(de_number=5)"}));
  EXPECT_EQ(entity<igs116>(first)->point(), giPoint3(1, 2, 3));
}

// Damage inside a record is told against its entity, and a sound record beside it leaves
// nothing behind: a real that is no number, a NUL byte, and a blank line.
TEST_F(ReadTest, DamageInsideARecordIsToldForItsEntity) {
  FileText f;
  int not_a_number = f.add(116, 0, {"116,NAN,2.,3.;"});
  int sound = f.add(116, 0, {"116,1.,2.,3.;"});
  int nul = f.add(116, 0, {std::string("116,4.,5.,6.\0;", 14)});
  int blank_line = f.add(110, 0, {"110,0.,0.,0.,", "1.,1.,1.;"});
  Lines lines = f.lines();
  lines.insert(lines.end() - 2, "");
  ASSERT_EQ(read(igs_input_test::join(lines)), 1);
  EXPECT_EQ(errors(),
            (Lines{"igsFileCorruptObjectData(de_number=" + std::to_string(not_a_number) + ")",
                   "igsFilePDNullCharacters(de_number=" + std::to_string(nul) + ")",
                   "igsFileBlankLine"}));
  EXPECT_EQ(entity<igs116>(sound)->point(), giPoint3(1, 2, 3));
  EXPECT_EQ(entity<igs110>(blank_line)->end_point(), giPoint3(1, 1, 1));
}

TEST_F(ReadTest, ReferencesBindForwardAndToNothing) {
  FileText f;
  // Display symbols: the next entity, an entity that is never made, a Null entity, and an
  // even number that names no entity at all.
  int ahead = f.add(116, 0, {"116,0.,0.,0.,3;"});
  int to_nothing = f.add(116, 0, {"116,0.,0.,0.,99;"});
  int to_null = f.add(116, 0, {"116,0.,0.,0.,7;"});
  int null = f.add(0, 0, {"0;"});
  int even = f.add(116, 0, {"116,0.,0.,0.,4;"});
  ASSERT_EQ(read(f.text()), 1);
  EXPECT_EQ(errors(), Lines{});
  // The placeholder of DE 99 is gone: one manager for each entity. (Looking an entity up by
  // a number whose slot is empty makes a placeholder again, so this comes first.)
  EXPECT_EQ(file->num_entities(), 4);
  EXPECT_EQ(file->num_managers(), 4);
  EXPECT_EQ(file->num_nulls(), 1);
  EXPECT_EQ(entity<igs116>(ahead)->display_symbol()(), entity<igs116>(to_nothing));
  EXPECT_FALSE(entity<igs116>(to_nothing)->display_symbol());
  EXPECT_FALSE(entity<igs116>(to_null)->display_symbol());
  EXPECT_FALSE(entity<igsObject>(null));
  EXPECT_FALSE(entity<igs116>(even)->display_symbol());
}

// Reaches the protected record operations of any entity.
struct RecordAccess : igsObject {
  static void write_record(igsObject& e, igsOutStream& out) { (e.*&RecordAccess::write)(out); }
  static void read_tail(igsObject& e, igsInStream& in) {
    (e.*&RecordAccess::read_additional_entity_pointers)(in);
  }
};

TEST_F(ReadTest, AnEntityWritesItsTypeThenItsParametersAndDropsPointersBehindThem) {
  FileText f;
  f.add(116, 0, {"116,1.,2.,3.,3;"});
  f.add(110, 0, {"110,0.,0.,0.,1.,1.,1.;"});
  ASSERT_EQ(read(f.text()), 1);
  auto* point = entity<igs116>(1);
  EXPECT_EQ(igs_output_test::written([&](igsOutStream& out) {
              out.set_section(igsSectionParameter);
              RecordAccess::write_record(*point, out);
              out.set_backpointer(3);
            }),
            Lines{record('P', 1, "116,1.,2.,3.,3;", 1)});

  // Two lists of back pointers behind the parameters are read and dropped: a field behind them
  // is the next to read; a record that ends with them, or a count far beyond what stands there,
  // leaves the stream at the next record.
  struct Tail {
    char const* fields;
    int next;
  } const tails[] = {{"1,11,1,13,99;", 99}, {"2,11,13,1,15;", 110}, {"1000000000,7;", 110}};
  for (Tail const& tail : tails) {
    SCOPED_TRACE(tail.fields);
    std::istringstream text(
        igs_input_test::join({record('P', 1, std::string("116,1.,2.,3.,0,") + tail.fields, 1),
                              record('P', 2, "110,4.;", 3)}));
    igsInStream in(text);
    in.reset();
    double skipped = 0.0;
    for (int i = 0; i < 5; ++i) in.read_double(skipped);
    RecordAccess::read_tail(*point, in);
    int next = 0;
    in.read_integer(next);
    EXPECT_EQ(next, tail.next);
  }
}

} // namespace
