// The Global section: delimiters, parameters left out, checks and repairs, writing.
#include "sectionsTestSupport.h"

#include "sections/igsGlobalSectionErrors.h"
#include "support/coResource.h"

#include <algorithm>
#include <cfloat>

using namespace igs_sections_test;

namespace {

// The G lines of the data, 72 columns each, and a D line behind them.
Lines g_lines(std::string const& data) {
  Lines lines;
  for (size_t at = 0; at < data.size(); at += 72)
    lines.push_back(record('G', static_cast<int>(lines.size()) + 1, data.substr(at, 72)));
  lines.push_back(record('D', 1, "     116       1       0       0       0       0       0"));
  return lines;
}

// Opens the read of the units pair alone.
struct UnitsReader : igsGlobalSection {
  using igsGlobalSection::igsGlobalSection;
  int read_units_alone(igsInStream& in, utOstream& out) { return read_units(in, out); }
};

class GlobalSectionTest : public SectionTest {
 protected:
  // Reads a new section of a file of its own from the lines; the stream is kept.
  int read(Lines const& lines) {
    own = std::make_unique<PackableFile>();
    own->set_message_stream(&messages);
    global.become(igsGlobalSection(own.get()));
    input = std::make_unique<InputOver>(lines);
    std::ostringstream ignored;
    utOstream out(ignored);
    bad_line_numbers = blank_lines = 0;
    return global.read(input->stream, out, bad_line_numbers, blank_lines);
  }
  int read(std::string const& data) { return read(g_lines(data)); }
  // The data columns of the G lines written.
  std::string written_data() {
    std::string text;
    for (std::string const& line : written_lines()) text += line.substr(0, 72);
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  Lines written_lines() {
    return igs_output_test::written([&](igsOutStream& out) {
      std::ostringstream ignored;
      utOstream out_messages(ignored);
      EXPECT_EQ(global.write(out, out_messages), 1);
      out.set_section(igsSectionDirectory);
    });
  }

  std::unique_ptr<PackableFile> own;
  igsGlobalSection global{file.get()};
  std::unique_ptr<InputOver> input;
  int bad_line_numbers = 0;
  int blank_lines = 0;
};

// A section with every parameter given, of version 11.
std::string const full =
    "1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,32,38,6,308,15,7HReceive,2.5,1,4HINCH,8,0.7,"
    "15H20240102.030405,0.001,500.,6HAuthor,3HOrg,11,3,15H20240203.040506;";

TEST_F(GlobalSectionTest, AFullSectionReadsWritesAndReadsBack) {
  ASSERT_EQ(read(full), 1);
  // The lines written below pin every value read.
  EXPECT_EQ(bad_line_numbers + blank_lines, 0);
  // The stream stands at the first D line, ready for the Directory section.
  EXPECT_EQ(igs_stream_section(input->stream), igsSectionDirectory);
  EXPECT_FALSE(input->stream.frozen());
  global.check();
  EXPECT_TRUE(describe(igsGlobalLog).empty());

  // A field that does not fit the rest of a line starts the next; a Hollerith body may be
  // split, its count not.
  EXPECT_EQ(written_lines(),
            (Lines{record('G', 1,
                          "1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,32,38,6,308,15,7HReceive,"),
                   record('G', 2,
                          "2.5,1,4HINCH,8,0.7,15H20240102.030405,0.001,500.,6HAuthor,3HOrg,11,3,"
                          "15H"),
                   record('G', 3, "20240203.040506;")}));

  // With other delimiters, read back into another section.
  global.set_parameter_delimiter('|');
  global.set_record_delimiter('#');
  global.set_file_name("name,with;delimiters|#");
  Lines other = written_lines();
  EXPECT_EQ(other[0].substr(0, 21), "1H||1H#|7HProduct|22H");
  other.push_back(record('D', 1, "     116"));
  igsGlobalSection back(file.get());
  InputOver in(other);
  std::ostringstream ignored;
  utOstream out(ignored);
  ASSERT_EQ(back.read(in.stream, out, bad_line_numbers, blank_lines), 1);
  EXPECT_EQ(printed(back), printed(global));

  // The file keeps a copy as its own.
  file->set_global_section(back);
  EXPECT_EQ(file->global_section().file(), file.get());
  EXPECT_EQ(printed(file->global_section()), printed(back));

  // A new section writes what it holds, the unset values included.
  global.become(igsGlobalSection(file.get()));
  EXPECT_EQ(written_data(),
            "1H,,1H;,7HUnknown,7HUnknown,7HUnknown,7HUnknown,-2147483647,-2147483647,"
            "-2147483647,-2147483647,-2147483647,7HUnknown,1.,2,0H,1,0.,15H20240615.102030,"
            "-1.79769313486232D+308,-1.79769313486232D+308,7HUnknown,7HUnknown,3,0;");
}

TEST_F(GlobalSectionTest, DelimitersAreTheHollerithCharacterOrTheDefaults) {
  struct Case {
    std::string data;
    int result;
    char parameter;
    char record;
    std::string error; // the first raised
  } const cases[] = {
      {",,;", 1, ',', ';', ""},
      {"1H,,,;", 1, ',', ';', ""},
      {"1H||1H#|4HPART#", 1, '|', '#', ""},
      {"1H;;1H,;4HPART;;6HSender,", 1, ';', ',', ""}, // the two swapped
      {"1H|,1H;,", 0, ',', ';', ""},                  // the character behind must be the delimiter
      {"1X,,1H;;", 0, ',', ';', ""},                  // a count of 1 with no H
      // A record delimiter of two characters cannot end a record: the defaults stand.
      {"1H||2H;#|", 0, ',', ';', ""},
      {"1H;;2H,;", 0, ',', ';', ""},
      {"|,;", 0, ',', ';', "igsGlobalSectionInvalidParamDelim('|')"},
      {" 1H,,1H;;", 0, ',', ';', "igsGlobalSectionInvalidParamDelim(' ')"},
      {"1HDD1H;D", 0, ',', ';', "igsGlobalSectionInvalidParamDelim('D')"},
      {"1H11", 0, ',', ';', "igsGlobalSectionInvalidParamDelim('1')"},
      {"1H,,1HH,", 0, ',', ';', "igsGlobalSectionInvalidRecordDelim('H')"},
      // One character for both cannot end a record; the section falls back to the defaults.
      {"1H;;1H;;", 0, ',', ';', "igsGlobalSectionInvalidRecordDelim(';')"},
      {"1H||1H||", 0, ',', ';', "igsGlobalSectionInvalidRecordDelim('|')"},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.data);
    EXPECT_EQ(read(c.data), c.result);
    EXPECT_EQ(global.parameter_delimiter(), c.parameter);
    EXPECT_EQ(global.record_delimiter(), c.record);
    Lines raised = describe(igsGlobalLog);
    if (!c.result) {
      EXPECT_EQ(raised.empty() ? "" : raised.front(), c.error);
    }
  }
  // The fields behind delimiters of a file's own are read with them.
  ASSERT_EQ(read("1H;;1H,;4HPART;;6HSender,"), 1);
  EXPECT_EQ(global.product_id_from_sending_system(), "PART");
  EXPECT_EQ(global.system_id(), "Sender");

  // Which characters may delimit.
  for (int c = 0; c < 256; ++c) {
    char ch = static_cast<char>(c);
    bool expected = c == ',' || c == ';' || c > 127 ||
                    (c > ' ' && c < 127 && !(c >= '0' && c <= '9') &&
                     std::string("+-.DEHdeh").find(ch) == std::string::npos);
    EXPECT_EQ(global.valid_delimiter(ch), expected) << c;
  }
  // The setters refuse what cannot delimit and the other delimiter.
  std::pair<char, int> const parameter[] = {{'E', 0}, {',', 0}, {'/', 1}};
  for (auto const& [ch, result] : parameter) EXPECT_EQ(global.set_parameter_delimiter(ch), result);
  std::pair<char, int> const record_[] = {{' ', 0}, {'/', 0}, {',', 1}};
  for (auto const& [ch, result] : record_) EXPECT_EQ(global.set_record_delimiter(ch), result);
}

TEST_F(GlobalSectionTest, TheModificationDateFromVersion8On) {
  // Parameters 3 to 17 left out, a creation date, 19 to 22 left out, a version.
  std::string const head = "1H,,1H;," + std::string(15, ',') + "13H240101.120000,,,,,";
  struct Case {
    std::string rest;
    bool extra; // raised as a date the version does not have
    char const* stored;
    std::string written_end;
  } const cases[] = {
      {"11,0;", false, "240101.120000", "11,0,13H240101.120000;"}, // left out: the creation date
      {"8,0,13H240202.120000;", false, "240202.120000", ",8,0,13H240202.120000;"},
      {"7,0,13H240202.120000;", true, fixed_today, ",7,0;"},
      {"3,0,13H240202.120000;", true, fixed_today, ",3,0;"},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.rest);
    EXPECT_EQ(read(head + c.rest), 1);
    Lines raised = describe(igsGlobalLog);
    EXPECT_EQ(!raised.empty() && raised.back() == "igsGlobalSectionExtraModificationDate()",
              c.extra);
    EXPECT_EQ(global.file_modification_date().date_string(), c.stored);
    EXPECT_TRUE(written_data().ends_with(c.written_end)) << written_data();
  }
}

TEST_F(GlobalSectionTest, LinesOutOfSequenceBlankLinesAndDataAfterTheRecordEnd) {
  std::string const d1 = record('D', 1, "     116       1       0       0       0       0       0");
  EXPECT_EQ(read(Lines{record('G', 1, "1H,,1H;,4HPART,"), "", record('G', 3, "8Hpart.igs;extra,"),
                       record('G', 4, "more after the end"), d1}),
            1);
  EXPECT_EQ(global.file_name(), "part.igs");
  EXPECT_EQ(bad_line_numbers, 1);
  EXPECT_EQ(blank_lines, 1);
  utString type;
  input->stream.read_string(8, type);
  EXPECT_EQ(type, "     116");

  // A line out of sequence met by the read of the units flag, the first of a pair.
  EXPECT_EQ(
      read(Lines{record('G', 1, "1H,,1H;," + std::string(11, ',')), record('G', 3, "2,2HMM;"), d1}),
      1);
  EXPECT_EQ(global.units().name(), "MM");
  EXPECT_EQ(bad_line_numbers, 1);
  // The units pair read alone.
  UnitsReader units(file.get());
  InputOver pair({record('G', 1, "6,1HM;")});
  std::ostringstream ignored;
  utOstream out(ignored);
  EXPECT_EQ(units.read_units_alone(pair.stream, out), 1);
  EXPECT_EQ(units.units().name(), "M");

  // Without G lines there is nothing to take the delimiters from; a file that ends in the
  // Global section fails at the end of the stream.
  EXPECT_EQ(read(Lines{d1}), 0);
  EXPECT_EQ(read(Lines{record('G', 1, "1H,,1H;,4HPART,")}), 0);
  EXPECT_EQ(global.product_id_from_sending_system(), "PART");
}

TEST_F(GlobalSectionTest, UnitsFlagAndNameInConflict) {
  std::string const mismatch =
      "Warning : There is a mismatch between the specified unit type and the unit name.\n"
      "Length units are being defaulted to ";
  struct Case {
    int flag;
    char const* name;
    std::string error;
    int fixed_flag;
    char const* fixed_name;
    std::string message;
  } const cases[] = {
      {1, "in", "", 1, "in", ""},
      {2, "IN", "igsGlobalSectionUnitNameTypeMismatch(2,\"IN\")", 2, "MM", mismatch + "MM.\n"},
      {6, "", "igsGlobalSectionUnitNameTypeMismatch(6,\"UNKNOWN\")", 6, "M", mismatch + "M.\n"},
      {3, "PARSEC", "igsGlobalSectionUserDefinedUnits(\"UNKNOWN\")", 2, "MM", ""},
      {3, "FT", "igsGlobalSectionUserDefinedUnits(\"FT\")", 4, "FT", ""},
      {12, "FT", "igsGlobalSectionInvalidUnitsFlag(12)", 4, "FT", ""},
      {0, "", "igsGlobalSectionInvalidUnitsFlag(0)", 2, "MM", ""},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.error);
    ASSERT_EQ(read(full), 1);
    global.set_units(igsUnits(c.name, c.flag));
    global.check();
    std::vector<igsError*> raised = errors_in(igsGlobalLog);
    ASSERT_EQ(raised.size(), c.error.empty() ? 0u : 1u);
    if (c.error.empty()) continue;
    EXPECT_EQ(ErrorText(*raised[0]).text(), c.error);
    messages.clear();
    EXPECT_EQ(raised[0]->fix(), 1);
    EXPECT_EQ(global.units().type(), c.fixed_flag);
    EXPECT_EQ(global.units().name(), c.fixed_name);
    EXPECT_EQ(messages.text(), c.message);
  }
}

TEST_F(GlobalSectionTest, CheckRaisesEveryValueOutOfRangeInOrderAndRepairs) {
  // Parameters 7 to 11, 19 and 20 left unset.
  global.set_file_creation_date(igsDate("19791231.235959"));
  global.set_file_modification_date(igsDate("20250101.000000")); // next year
  global.set_iges_version(12);
  global.set_drafting_standard(-1);
  global.set_units(igsUnits("MM", 2));
  global.check();
  EXPECT_EQ(describe(igsGlobalLog),
            (Lines{"igsGlobalSectionInvalidSinglePrecMagnitude(-2147483647)",
                   "igsGlobalSectionInvalidSinglePrecSignificance(-2147483647)",
                   "igsGlobalSectionInvalidDoublePrecMagnitude(-2147483647)",
                   "igsGlobalSectionInvalidDoublePrecSignificance(-2147483647)",
                   "igsGlobalSectionInvalidFileCreationDate(\"19791231.235959\")",
                   "igsGlobalSectionInvalidMinResolution(-1.7976931348623157e+308)",
                   "igsGlobalSectionInvalidMaxCoordinate(-1.7976931348623157e+308)",
                   "igsGlobalSectionInvalidIgesVersion(12)",
                   "igsGlobalSectionInvalidDraftingStandard(-1)",
                   "igsGlobalSectionInvalidFileModificationDate(\"20250101.000000\")"}));
  EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(10, 1));
  EXPECT_EQ(global.sp_sig_digs(), 6);
  EXPECT_EQ(global.dp_max_pow10(), 308);
  EXPECT_EQ(global.file_creation_date().date_string(), fixed_today);
  EXPECT_EQ(global.iges_version(), 3);
  EXPECT_EQ(global.drafting_standard(), 0);
  EXPECT_EQ(global.file_modification_date().date_string(), fixed_today);
  // The unset bits of an integer pass the unsigned test; 3 bits fail it.
  EXPECT_EQ(global.binary_bits_for_int(), igs_unset_int);

  // The other ranges, each at its limit, as a file holds them.
  ASSERT_EQ(read("1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,3,37,5,37,5,7HReceive,0.0,1,4HINCH,"
                 "8,-.1,15H20240102.030405,1E-16,500.,6HAuthor,3HOrg,1,7;"),
            1);
  global.check();
  EXPECT_EQ(describe(igsGlobalLog),
            (Lines{"igsGlobalSectionInvalidIntegerSize(3)",
                   "igsGlobalSectionInvalidSinglePrecMagnitude(37)",
                   "igsGlobalSectionInvalidSinglePrecSignificance(5)",
                   "igsGlobalSectionInvalidDoublePrecMagnitude(37)",
                   "igsGlobalSectionInvalidDoublePrecSignificance(5)",
                   "igsGlobalSectionInvalidModelSpaceScale(0)",
                   "igsGlobalSectionInvalidMaxLineWeightWidth(-0.10000000000000001)",
                   "igsGlobalSectionInvalidMinResolution(9.9999999999999998e-17)"}));
  EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(8, 1));
  EXPECT_EQ(global.binary_bits_for_int(), 4);
  EXPECT_EQ(global.model_space_scale(), 1.0);
  EXPECT_EQ(global.width_of_max_line_weight(), 0.0);
  EXPECT_EQ(global.minimum_resolution(), 0.0001);
  EXPECT_EQ(global.max_version(), 11);
}

TEST_F(GlobalSectionTest, SettersRefuseWhatTheSectionCannotHold) {
  using G = igsGlobalSection;
  for (auto set : {&G::set_product_id_from_sending_system, &G::set_product_id_for_receiving_system,
                   &G::set_file_name, &G::set_system_id, &G::set_preprocessor_version,
                   &G::set_name_of_author, &G::set_authors_organization}) {
    EXPECT_EQ((global.*set)(utString()), 0);
    EXPECT_EQ((global.*set)(""), 1);
  }
  // {setter, the highest refused, the lowest taken} and the same for reals.
  std::tuple<int (G::*)(int), int, int> const integers[] = {
      {&G::set_binary_bits_for_int, 0, 1}, {&G::set_sp_max_pow10, 0, 1},
      {&G::set_sp_sig_digs, 0, 1},         {&G::set_dp_max_pow10, -1, 0},
      {&G::set_dp_sig_digs, -1, 0},        {&G::set_max_number_of_line_weights, 0, 1}};
  for (auto const& [set, refused, taken] : integers) {
    EXPECT_EQ((global.*set)(refused), 0);
    EXPECT_EQ((global.*set)(taken), 1);
  }
  EXPECT_EQ(global.set_max_number_of_line_weights(32769), 0);
  EXPECT_EQ(global.set_max_number_of_line_weights(32768), 1);
  std::tuple<int (G::*)(double), double, double> const reals[] = {
      {&G::set_model_space_scale, 0.0, 1e-300},
      {&G::set_width_of_max_line_weight, -1e-300, 0.0},
      {&G::set_minimum_resolution, 1e-16, kvnTolMinValue.value()}};
  for (auto const& [set, refused, taken] : reals) {
    EXPECT_EQ((global.*set)(refused), 0);
    EXPECT_EQ((global.*set)(taken), 1);
  }
  EXPECT_EQ(global.minimum_resolution(), 1e-15);
}

} // namespace
