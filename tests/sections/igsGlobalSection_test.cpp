// The Global section: delimiters, parameters left out, checks and repairs, writing, printing.
#include "sectionsTestSupport.h"

#include "sections/igsGlobalSectionErrors.h"
#include "support/coResource.h"

#include <algorithm>
#include <cfloat>
#include <tuple>

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

class GlobalSectionTest : public SectionTest {
 protected:
  // Reads the section from the lines; the stream is kept for a look at where it stopped.
  int read(Lines const& lines) {
    input = std::make_unique<InputOver>(lines);
    std::ostringstream ignored;
    utOstream messages_out(ignored);
    return global.read(input->stream, messages_out, bad_line_numbers, blank_lines);
  }
  int read(std::string const& data) { return read(g_lines(data)); }
  igsFileSection section_now() { return igs_stream_section(input->stream); }
  Lines written() {
    return igs_output_test::written([&](igsOutStream& out) {
      std::ostringstream ignored;
      utOstream messages_out(ignored);
      EXPECT_EQ(global.write(out, messages_out), 1);
      out.set_section(igsSectionDirectory);
    });
  }
  void check_now() { global.check(); }

  igsGlobalSection global{file.get()};
  std::unique_ptr<InputOver> input;
  int bad_line_numbers = 0;
  int blank_lines = 0;
};

// A section with every parameter given, of version 11.
std::string const full =
    "1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,32,38,6,308,15,7HReceive,2.5,1,4HINCH,8,0.7,"
    "15H20240102.030405,0.001,500.,6HAuthor,3HOrg,11,3,15H20240203.040506;";

// What that section prints: every parameter as the file holds it.
std::string const full_print = "GlobalSection = {\n"
                               "  ParameterDelimiter = ,\n"
                               "  RecordDelimiter = ;\n"
                               "  ProductIdSendingSystem = \"Product\"\n"
                               "  FileName = \"part.igs\"\n"
                               "  SystemId = \"Sender\"\n"
                               "  PreprocessorVersion = \"5.3a\"\n"
                               "  BinaryBitsForInteger = 32\n"
                               "  SinglePrecisionMagnitude = 38\n"
                               "  FloatSignificantFigs = 6\n"
                               "  DoublePowerOf10 = 308\n"
                               "  DoubleSignificantFigs = 15\n"
                               "  ProductIdReceivingSystem = \"Receive\"\n"
                               "  ModelSpaceScale = 2.5\n"
                               "  UnitsFlag = 1\n"
                               "  Units = INCH\n"
                               "  LineWeightGraduations = 8\n"
                               "  MaxLineWeightWidth = 0.7\n"
                               "  GenerationDate = \"20240102.030405\"\n"
                               "  MinimumResolution = 0.001\n"
                               "  MaxCoordinateValue = 500\n"
                               "  AuthorsName = \"Author\"\n"
                               "  AuthorsOrganization = \"Org\"\n"
                               "  IGESVersion = 11\n"
                               "  DraftingStandard = 3\n"
                               "  ModificationDate = \"20240203.040506\"\n"
                               "}\n";

TEST_F(GlobalSectionTest, AFullSectionReadsAsTheFileHoldsIt) {
  EXPECT_EQ(read(full), 1);
  EXPECT_EQ(printed(global), full_print);
  EXPECT_EQ(global.units().type(), igsUnitInch);
  EXPECT_EQ(global.max_coord_value(), 500.0);
  EXPECT_TRUE(describe(igsGlobalLog).empty());
  EXPECT_EQ(bad_line_numbers, 0);
  EXPECT_EQ(blank_lines, 0);
  // The stream stands at the first D line, ready for the Directory section.
  EXPECT_EQ(section_now(), igsSectionDirectory);
  EXPECT_FALSE(input->stream.frozen());
  global.check();
  EXPECT_TRUE(describe(igsGlobalLog).empty());
}

TEST_F(GlobalSectionTest, DelimitersAreTheHollerithCharacterOrTheDefaults) {
  struct Case {
    std::string data;
    int result;
    char parameter;
    char record;
    Lines errors;
  } const cases[] = {
      {",,;", 1, ',', ';', {}},
      {"1H,,,;", 1, ',', ';', {}},
      {"1H,,1H;;", 1, ',', ';', {}},
      {"1H||1H#|4HPART#", 1, '|', '#', {}},
      {"1H;;1H,;4HPART,", 1, ';', ',', {}}, // the two swapped
      {"1H|,1H;,", 0, ',', ';', {}},        // the character behind must be the delimiter
      {"|,;", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim('|')"}},
      {" 1H,,1H;;", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim(' ')"}},
      {"1HDD1H;D", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim('D')"}},
      {"1HEE", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim('E')"}},
      {"1HHH", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim('H')"}},
      {"1H11", 0, ',', ';', {"igsGlobalSectionInvalidParamDelim('1')"}},
      {"1H,,1HH,", 0, ',', ';', {"igsGlobalSectionInvalidRecordDelim('H')"}},
      {"1H,,1H.,", 0, ',', ';', {"igsGlobalSectionInvalidRecordDelim('.')"}},
      // One character for both, or a record delimiter of two characters, cannot end a record;
      // the section falls back to the defaults.
      {"1H||2H;#|", 0, ',', ';', {}},
      {"1H;;2H,;", 0, ',', ';', {}},
      {"1H,,1H,,", 0, ',', ';', {"igsGlobalSectionInvalidRecordDelim(',')"}},
      {"1H;;1H;;", 0, ',', ';', {"igsGlobalSectionInvalidRecordDelim(';')"}},
      {"1H||1H||", 0, ',', ';', {"igsGlobalSectionInvalidRecordDelim('|')"}},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.data);
    auto file_of_case = std::make_unique<PackableFile>();
    igsGlobalSection section(file_of_case.get());
    InputOver in(g_lines(c.data));
    std::ostringstream ignored;
    utOstream out(ignored);
    int bad = 0;
    int blank = 0;
    EXPECT_EQ(section.read(in.stream, out, bad, blank), c.result);
    EXPECT_EQ(section.parameter_delimiter(), c.parameter);
    EXPECT_EQ(section.record_delimiter(), c.record);
    Lines raised = describe(igsGlobalLog);
    if (c.result) raised.clear(); // the defaults of the later parameters
    EXPECT_EQ(raised, c.errors);
  }
  // The last field of "1H||1H#|4HPART#" and its swapped twin is read with the new delimiters.
  EXPECT_EQ(read("1H||1H#|4HPART#"), 1);
  EXPECT_EQ(global.product_id_from_sending_system(), "PART");
  EXPECT_EQ(read("1H;;1H,;4HPART;;6HSender,"), 1);
  EXPECT_EQ(global.product_id_from_sending_system(), "PART");
  EXPECT_EQ(global.file_name(), "");
  EXPECT_EQ(global.system_id(), "Sender");

  // Which characters may delimit.
  for (int c = 0; c < 256; ++c) {
    char ch = static_cast<char>(c);
    bool expected = c == ',' || c == ';' ||
                    (c > ' ' && c < 127 && !(c >= '0' && c <= '9') &&
                     std::string("+-.DEHdeh").find(ch) == std::string::npos) ||
                    c > 127;
    EXPECT_EQ(global.valid_delimiter(ch), expected) << c;
  }
  EXPECT_EQ(global.set_parameter_delimiter('E'), 0);
  EXPECT_EQ(global.set_record_delimiter(' '), 0);
  EXPECT_EQ(global.set_parameter_delimiter(','), 0); // the record delimiter, as last read
  EXPECT_EQ(global.set_parameter_delimiter('/'), 1);
  EXPECT_EQ(global.set_record_delimiter('/'), 0); // the parameter delimiter
  EXPECT_EQ(global.set_record_delimiter(','), 1);
  EXPECT_EQ(global.parameter_delimiter(), '/');
  EXPECT_EQ(global.record_delimiter(), ',');
}

TEST_F(GlobalSectionTest, ParametersLeftOutTakeTheirDefaultsAndSomeAreErrors) {
  EXPECT_EQ(read(",,;"), 1);
  EXPECT_EQ(describe(igsGlobalLog),
            (Lines{"igsGlobalSectionIllegalDefault(3,1)", "igsGlobalSectionIllegalDefault(5,1)",
                   "igsGlobalSectionIllegalDefault(6,1)", "igsGlobalSectionIllegalDefault(7,2)",
                   "igsGlobalSectionIllegalDefault(8,2)", "igsGlobalSectionIllegalDefault(9,2)",
                   "igsGlobalSectionIllegalDefault(10,2)", "igsGlobalSectionIllegalDefault(11,2)",
                   "igsGlobalSectionIllegalDefault(14,2)", "igsGlobalSectionIllegalDefault(18,1)",
                   "igsGlobalSectionIllegalDefault(19,3)"}));
  for (igsError* e : errors_in(igsGlobalLog))
    EXPECT_EQ(static_cast<igsGlobalError*>(e)->key(), &global);
  EXPECT_EQ(global.product_id_from_sending_system(), "");
  EXPECT_EQ(global.file_name(), "");
  EXPECT_EQ(global.system_id(), "");
  EXPECT_EQ(global.preprocessor_version(), "");
  EXPECT_EQ(global.binary_bits_for_int(), 0);
  EXPECT_EQ(global.dp_sig_digs(), 0);
  EXPECT_EQ(global.product_id_for_receiving_system(), "");
  EXPECT_EQ(global.model_space_scale(), 1.0);
  EXPECT_EQ(global.units().type(), igs_unset_int);
  EXPECT_EQ(global.units().name(), "");
  EXPECT_EQ(global.max_number_of_line_weights(), 1);
  EXPECT_EQ(global.width_of_max_line_weight(), 0.0);
  EXPECT_EQ(global.file_creation_date().date_string(), fixed_today);
  EXPECT_EQ(global.minimum_resolution(), 0.0001);
  EXPECT_EQ(global.max_coord_value(), DBL_MAX);
  EXPECT_EQ(global.name_of_author(), "unknown");
  EXPECT_EQ(global.authors_organization(), "unknown");
  EXPECT_EQ(global.iges_version(), 3);
  EXPECT_EQ(global.drafting_standard(), 0);

  // Each repair sets its value and says which field it defaulted.
  EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(11, 1));
  std::string expected;
  for (auto [number, name] : std::vector<std::pair<int, char const*>>{
           {3, "product id from sending system"},
           {5, "system id"},
           {6, "preprocessor version"},
           {7, "number of bits in an integer"},
           {8, "maximum single precision float"},
           {9, "significant figures in a single precision float"},
           {10, "maximum double precision float"},
           {11, "significant figures in a double precision float"},
           {14, "units flag"},
           {18, "file creation date"},
           {19, "minimum user-intended resolution"}})
    expected += "Warning : Invalid data has been found in the global section of the file.\n"
                "Defaulting the data for field " +
                std::to_string(number) + " (\"" + name + "\")\n";
  EXPECT_EQ(messages.text(), expected);
  EXPECT_EQ(global.product_id_from_sending_system(), "Unknown");
  EXPECT_EQ(global.system_id(), "Unknown");
  EXPECT_EQ(global.preprocessor_version(), "Unknown");
  EXPECT_EQ(global.binary_bits_for_int(), 4);
  EXPECT_EQ(global.sp_max_pow10(), 38);
  EXPECT_EQ(global.sp_sig_digs(), 6);
  EXPECT_EQ(global.dp_max_pow10(), 308);
  EXPECT_EQ(global.dp_sig_digs(), 15);
  EXPECT_EQ(global.minimum_resolution(), 0.0001);
  // The receiving system took the sender's id as it was read, and keeps it.
  EXPECT_EQ(global.product_id_for_receiving_system(), "");
  EXPECT_EQ(global.units().type(), igs_unset_int);

  // Another parameter has no default to repair: the warning alone, and it stays.
  messages.clear();
  igsGlobalSectionIllegalDefault other(igsGPFileName, igsGPTypeString);
  other.set_key(&global);
  other.set_message_stream(&messages);
  EXPECT_EQ(other.fix(), 0);
  EXPECT_EQ(messages.text(),
            "Warning : Invalid data has been found in the global section of the file.\n");
  EXPECT_EQ(global.file_name(), "");

  // A receiving system left out takes the sender's id.
  EXPECT_EQ(read("1H,,1H;,4HPART,,,,,,,,,;"), 1);
  EXPECT_EQ(global.product_id_for_receiving_system(), "PART");
}

TEST_F(GlobalSectionTest, LineWeightsOutOfRangeAreHeldAtTheLimits) {
  std::string const head = "1H,,1H;,1HP,1HF,1HS,1HV,32,38,6,308,15,,1.,2,2HMM,";
  for (auto [field, stored, errors] : std::vector<std::tuple<std::string, int, Lines>>{
           {"0", 1, {"igsGlobalSectionInvalidMaxNumLineWeightGrads(1)"}},
           {"-5", 1, {"igsGlobalSectionInvalidMaxNumLineWeightGrads(1)"}},
           {"40000", 32768, {"igsGlobalSectionInvalidMaxNumLineWeightGrads(32768)"}},
           {"32768", 32768, {}},
           {"1", 1, {}},
           {"", 1, {}}}) {
    SCOPED_TRACE(field);
    auto own = std::make_unique<PackableFile>();
    global.become(igsGlobalSection(own.get()));
    ASSERT_EQ(read(head + field + ",0.,13H240101.120000,1E-6,1000.,1HA,1HO,11,0;"), 1);
    EXPECT_EQ(global.max_number_of_line_weights(), stored);
    EXPECT_EQ(describe(igsGlobalLog), errors);
    EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(errors.size(), 1));
    EXPECT_EQ(global.max_number_of_line_weights(), stored);
  }
  EXPECT_EQ(global.set_max_number_of_line_weights(0), 0);
  EXPECT_EQ(global.set_max_number_of_line_weights(32769), 0);
  EXPECT_EQ(global.set_max_number_of_line_weights(32768), 1);
}

TEST_F(GlobalSectionTest, TheModificationDateDependsOnTheVersion) {
  // Parameters 3 to 17 left out, a creation date, 19 to 22 left out, a version.
  std::string const head = "1H,,1H;," + std::string(15, ',') + "13H240101.120000,,,,,";
  // Version 11 without a modification date: it is the creation date.
  EXPECT_EQ(read(head + "11,0;"), 1);
  EXPECT_EQ(global.file_creation_date().date_string(), "240101.120000");
  EXPECT_EQ(global.file_modification_date().date_string(), "240101.120000");

  // Version 3 with one: an error, and the date is neither kept nor written.
  auto own = std::make_unique<PackableFile>();
  global.become(igsGlobalSection(own.get()));
  EXPECT_EQ(read(head + "3,0,13H240202.120000;"), 1);
  Lines raised = describe(igsGlobalLog);
  ASSERT_FALSE(raised.empty());
  EXPECT_EQ(raised.back(), "igsGlobalSectionExtraModificationDate()");
  EXPECT_EQ(global.file_modification_date().date_string(), fixed_today);
  EXPECT_EQ(errors_in(igsGlobalLog).back()->fix(), 1);
  std::string text;
  for (std::string const& line : written()) text += line.substr(0, 72);
  EXPECT_EQ(text.find("240202"), std::string::npos);
  EXPECT_EQ(text.find(fixed_today), std::string::npos);
  EXPECT_NE(text.find(",3,0;"), std::string::npos) << text;
}

TEST_F(GlobalSectionTest, LinesOutOfSequenceBlankLinesAndDataAfterTheRecordEnd) {
  Lines lines = {record('G', 1, "1H,,1H;,4HPART,"), "", record('G', 3, "8Hpart.igs;extra,data"),
                 record('G', 4, "more after the end"),
                 record('D', 1, "     116       1       0       0       0       0       0")};
  EXPECT_EQ(read(lines), 1);
  EXPECT_EQ(global.file_name(), "part.igs");
  EXPECT_EQ(bad_line_numbers, 1);
  EXPECT_EQ(blank_lines, 1);
  EXPECT_EQ(section_now(), igsSectionDirectory);
  EXPECT_FALSE(input->stream.frozen());
  utString type;
  input->stream.read_string(8, type);
  EXPECT_EQ(type, "     116");

  // A line out of sequence met by the read of the units flag, the first of a pair.
  bad_line_numbers = 0;
  EXPECT_EQ(read(Lines{record('G', 1, "1H,,1H;," + std::string(11, ',')), record('G', 3, "2,2HMM;"),
                       lines.back()}),
            1);
  EXPECT_EQ(global.units().type(), igsUnitMillimeter);
  EXPECT_EQ(global.units().name(), "MM");
  EXPECT_EQ(bad_line_numbers, 1);

  // Without G lines there is nothing to take the delimiters from.
  auto own = std::make_unique<PackableFile>();
  igsGlobalSection none(own.get());
  InputOver no_global({record('D', 1, "     116")});
  std::ostringstream ignored;
  utOstream out(ignored);
  int bad = 0;
  int blank = 0;
  EXPECT_EQ(none.read(no_global.stream, out, bad, blank), 0);
  // A file that ends in the Global section fails at the end of the stream.
  EXPECT_EQ(read(Lines{record('G', 1, "1H,,1H;,4HPART,")}), 0);
  EXPECT_EQ(global.product_id_from_sending_system(), "PART");
}

TEST_F(GlobalSectionTest, UnitsFlagAndNameInConflict) {
  struct Case {
    int flag;
    char const* name;
    std::string error;
    int fixed_flag;
    char const* fixed_name;
    std::string message;
  };
  std::string const mismatch =
      "Warning : There is a mismatch between the specified unit type and the unit name.\n"
      "Length units are being defaulted to ";
  Case const cases[] = {
      {1, "INCH", "", 1, "INCH", ""},
      {1, "in", "", 1, "in", ""},
      {2, "mm", "", 2, "mm", ""},
      {2, "IN", "igsGlobalSectionUnitNameTypeMismatch(2,\"IN\")", 2, "MM", mismatch + "MM.\n"},
      {6, "", "igsGlobalSectionUnitNameTypeMismatch(6,\"UNKNOWN\")", 6, "M", mismatch + "M.\n"},
      {3, "PARSEC", "igsGlobalSectionUserDefinedUnits(\"UNKNOWN\")", 2, "MM", ""},
      {3, "FT", "igsGlobalSectionUserDefinedUnits(\"FT\")", 4, "FT", ""},
      {12, "FT", "igsGlobalSectionInvalidUnitsFlag(12)", 4, "FT", ""},
      {0, "", "igsGlobalSectionInvalidUnitsFlag(0)", 2, "MM", ""},
      {igs_unset_int, "", "igsGlobalSectionInvalidUnitsFlag(-2147483647)", 2, "MM", ""},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.error);
    auto own = std::make_unique<PackableFile>();
    own->set_message_stream(&messages);
    igsGlobalSection section(own.get());
    section.set_units(igsUnits(c.name, c.flag));
    igsGlobalError* e = section.units().check();
    if (c.error.empty()) {
      EXPECT_EQ(e, nullptr);
      continue;
    }
    ASSERT_NE(e, nullptr);
    EXPECT_EQ(ErrorText(*e).text(), c.error);
    // Checked as part of the section, the error is tagged to it.
    section.check();
    Lines raised = describe(igsGlobalLog);
    EXPECT_EQ(std::count(raised.begin(), raised.end(), c.error), 2);
    igsError* tagged = nullptr;
    for (igsError* candidate : errors_in(igsGlobalLog))
      if (ErrorText(*candidate).text() == c.error && candidate != e) tagged = candidate;
    ASSERT_NE(tagged, nullptr);
    messages.clear();
    EXPECT_EQ(tagged->fix(), 1);
    EXPECT_EQ(section.units().type(), c.fixed_flag);
    EXPECT_EQ(section.units().name(), c.fixed_name);
    EXPECT_EQ(messages.text(), c.message);
  }
}

TEST_F(GlobalSectionTest, CheckRaisesEveryValueOutOfRangeInOrderAndRepairs) {
  // Parameters 7 to 11, 19 and 20 left unset.
  global.set_model_space_scale(1.0);
  global.set_file_creation_date(igsDate("19791231.235959"));
  global.set_file_modification_date(igsDate("20250101.000000")); // next year
  global.set_iges_version(12);
  global.set_drafting_standard(-1);
  global.set_units(igsUnits("MM", 2));
  check_now();
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
  EXPECT_EQ(messages.text(), "");
  EXPECT_EQ(global.sp_max_pow10(), 38);
  EXPECT_EQ(global.sp_sig_digs(), 6);
  EXPECT_EQ(global.dp_max_pow10(), 308);
  EXPECT_EQ(global.dp_sig_digs(), 15);
  EXPECT_EQ(global.file_creation_date().date_string(), fixed_today);
  EXPECT_EQ(global.minimum_resolution(), 0.0001);
  EXPECT_EQ(global.max_coord_value(), DBL_MAX);
  EXPECT_EQ(global.iges_version(), 3);
  EXPECT_EQ(global.drafting_standard(), 0);
  EXPECT_EQ(global.file_modification_date().date_string(), fixed_today);
  // The unset bits of an integer pass the unsigned test; 3 bits fail it.
  EXPECT_EQ(global.binary_bits_for_int(), igs_unset_int);

  // The other ranges, each at its limit.
  auto own = std::make_unique<PackableFile>();
  global.become(igsGlobalSection(own.get()));
  igsGlobalSection& g = global;
  g.set_binary_bits_for_int(3);
  g.set_sp_max_pow10(37);
  g.set_sp_sig_digs(5);
  g.set_dp_max_pow10(37);
  g.set_dp_sig_digs(5);
  g.set_model_space_scale(0.5);
  g.set_width_of_max_line_weight(0.0);
  g.set_minimum_resolution(1e-15);
  g.set_max_coord_value(0.0);
  g.set_iges_version(1);
  g.set_drafting_standard(7);
  g.set_units(igsUnits("MM", 2));
  check_now();
  EXPECT_EQ(describe(igsGlobalLog), (Lines{"igsGlobalSectionInvalidIntegerSize(3)",
                                           "igsGlobalSectionInvalidSinglePrecMagnitude(37)",
                                           "igsGlobalSectionInvalidSinglePrecSignificance(5)",
                                           "igsGlobalSectionInvalidDoublePrecMagnitude(37)",
                                           "igsGlobalSectionInvalidDoublePrecSignificance(5)"}));
  EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(5, 1));
  EXPECT_EQ(g.binary_bits_for_int(), 4);
  check_now();
  EXPECT_EQ(describe(igsGlobalLog).size(), 5u); // the fixed ones stay until the fixer moves them
  EXPECT_EQ(g.max_version(), 11);

  // Below the lowest resolution, and scales and widths out of range, set as a file holds them.
  auto third = std::make_unique<PackableFile>();
  global.become(igsGlobalSection(third.get()));
  std::string data = full;
  data.replace(data.find("2.5"), 3, "0.0");
  data.replace(data.find("0.7"), 3, "-.1");
  data.replace(data.find("0.001"), 5, "1E-16");
  ASSERT_EQ(read(data), 1);
  check_now();
  EXPECT_EQ(describe(igsGlobalLog),
            (Lines{"igsGlobalSectionInvalidModelSpaceScale(0)",
                   "igsGlobalSectionInvalidMaxLineWeightWidth(-0.10000000000000001)",
                   "igsGlobalSectionInvalidMinResolution(9.9999999999999998e-17)"}));
  EXPECT_EQ(fix_all(igsGlobalLog), std::vector<int>(3, 1));
  EXPECT_EQ(global.model_space_scale(), 1.0);
  EXPECT_EQ(global.width_of_max_line_weight(), 0.0);
  EXPECT_EQ(global.minimum_resolution(), 0.0001);
}

TEST_F(GlobalSectionTest, SettersRefuseWhatTheSectionCannotHold) {
  EXPECT_EQ(global.set_product_id_from_sending_system(utString()), 0);
  EXPECT_EQ(global.set_product_id_for_receiving_system(utString()), 0);
  EXPECT_EQ(global.set_file_name(utString()), 0);
  EXPECT_EQ(global.set_system_id(utString()), 0);
  EXPECT_EQ(global.set_preprocessor_version(utString()), 0);
  EXPECT_EQ(global.set_name_of_author(utString()), 0);
  EXPECT_EQ(global.set_authors_organization(utString()), 0);
  EXPECT_EQ(global.file_name(), "Unknown");
  EXPECT_EQ(global.set_file_name(""), 1);
  EXPECT_EQ(global.set_binary_bits_for_int(0), 0);
  EXPECT_EQ(global.set_sp_max_pow10(0), 0);
  EXPECT_EQ(global.set_sp_sig_digs(-1), 0);
  EXPECT_EQ(global.set_dp_max_pow10(-1), 0);
  EXPECT_EQ(global.set_dp_max_pow10(0), 1);
  EXPECT_EQ(global.set_dp_sig_digs(0), 1);
  EXPECT_EQ(global.set_model_space_scale(0.0), 0);
  EXPECT_EQ(global.set_width_of_max_line_weight(-1e-300), 0);
  EXPECT_EQ(global.set_width_of_max_line_weight(0.0), 1);
  EXPECT_EQ(global.set_minimum_resolution(1e-16), 0);
  EXPECT_EQ(global.set_minimum_resolution(kvnTolMinValue.value()), 1);
  EXPECT_EQ(global.minimum_resolution(), 1e-15);
}

TEST_F(GlobalSectionTest, WrittenReadsBackEqualAndPrints) {
  ASSERT_EQ(read(full), 1);
  Lines lines = written();
  // A field that does not fit the rest of a line starts the next; a Hollerith body may be
  // split, its count not.
  EXPECT_EQ(lines,
            (Lines{record('G', 1,
                          "1H,,1H;,7HProduct,8Hpart.igs,6HSender,4H5.3a,32,38,6,308,15,7HReceive,"),
                   record('G', 2,
                          "2.5,1,4HINCH,8,0.7,15H20240102.030405,0.001,500.,6HAuthor,3HOrg,11,3,"
                          "15H"),
                   record('G', 3, "20240203.040506;")}));

  // With other delimiters, and then read back into another section.
  global.set_parameter_delimiter('|');
  global.set_record_delimiter('#');
  global.set_file_name("name,with;delimiters|#");
  Lines other = written();
  EXPECT_EQ(other[0].substr(0, 21), "1H||1H#|7HProduct|22H");
  auto own = std::make_unique<PackableFile>();
  igsGlobalSection back(own.get());
  other.push_back(record('D', 1, "     116"));
  InputOver in(other);
  std::ostringstream ignored;
  utOstream out(ignored);
  int bad = 0;
  int blank = 0;
  ASSERT_EQ(back.read(in.stream, out, bad, blank), 1);
  EXPECT_EQ(printed(back), printed(global));
  EXPECT_EQ(back.file_name(), "name,with;delimiters|#");

  // A new section writes what it holds, the unset values included.
  auto fresh_file = std::make_unique<PackableFile>();
  igsGlobalSection fresh(fresh_file.get());
  global.become(fresh);
  std::string text;
  for (std::string const& line : written()) text += line.substr(0, 72);
  EXPECT_EQ(text.substr(0, text.find_last_not_of(' ') + 1),
            "1H,,1H;,7HUnknown,7HUnknown,7HUnknown,7HUnknown,-2147483647,-2147483647,"
            "-2147483647,-2147483647,-2147483647,7HUnknown,1.,2,0H,1,0.,15H20240615.102030,"
            "-1.79769313486232D+308,-1.79769313486232D+308,7HUnknown,7HUnknown,3,0;");
  EXPECT_EQ(global.file(), fresh_file.get());

  // The file keeps a copy as its own.
  file->set_global_section(back);
  EXPECT_EQ(file->global_section().file(), file.get());
  EXPECT_EQ(printed(file->global_section()), printed(back));
}

} // namespace
