#include "sections/igsGlobalSection.h"

#include "core/igsFile.h"
#include "core/igsInfoDB.h"
#include "input/igsInStream.h"
#include "output/igsOutStream.h"
#include "sections/igsGlobalSectionErrors.h"
#include "sections/igsStreamSection.h"
#include "support/coResource.h"
#include "support/utOstream.h"

#include <cctype>
#include <cfloat>
#include <new>

// The parameters in file order: how each is printed, stored, read when the file leaves it
// out, and repaired.
struct igsGlobalSection::Parameter {
  enum class Kind { delimiter, text, integer, real, date, units_flag, units_name };
  // A text or a number, whichever the kind takes.
  struct Value {
    char const* text;
    double number;
  };

  igsGlobalParameter number;
  char const* label;
  Kind kind;
  char igsGlobalSection::*character;
  utString igsGlobalSection::*text;
  int igsGlobalSection::*integer;
  double igsGlobalSection::*real;
  igsDate igsGlobalSection::*date;
  // Left out by the file: the value stored (a date stays as it is), and whether that is an
  // error.
  Value absent;
  int illegal;
  // The repair: whether there is one, the value (a date becomes today's), and the name by
  // which a repair of a parameter left out calls the field.
  int repairable;
  Value repair;
  char const* repair_name;

  igsGlobalParameterType type() const {
    switch (kind) {
    case Kind::integer:
    case Kind::units_flag:
      return igsGPTypeInteger;
    case Kind::real:
      return igsGPTypeReal;
    default:
      return igsGPTypeString;
    }
  }
};

namespace {

using GS = igsGlobalSection;
using P = GS::Parameter;
using Kind = P::Kind;

constexpr P::Value none{nullptr, 0.0};

// A repair of a parameter left out, with the name of the field in its message.
struct Repair {
  P::Value value;
  char const* name;
};
constexpr Repair no_repair{none, nullptr};

P delimiter_row(igsGlobalParameter n, char const* label, char GS::*field) {
  return {n, label, Kind::delimiter, field, nullptr, nullptr, nullptr, nullptr, none, 0,
          0, none,  nullptr};
}
P text_row(igsGlobalParameter n, char const* label, utString GS::*field, char const* absent,
           int illegal = 0, Repair repair = no_repair) {
  return {n,
          label,
          Kind::text,
          nullptr,
          field,
          nullptr,
          nullptr,
          nullptr,
          {absent, 0.0},
          illegal,
          repair.name != nullptr,
          repair.value,
          repair.name};
}
P integer_row(igsGlobalParameter n, char const* label, int GS::*field, double absent, int illegal,
              P::Value repair, char const* repair_name = nullptr) {
  return {n,     label,   Kind::integer, nullptr,           nullptr,
          field, nullptr, nullptr,       {nullptr, absent}, illegal,
          1,     repair,  repair_name};
}
P real_row(igsGlobalParameter n, char const* label, double GS::*field, double absent, int illegal,
           P::Value repair, char const* repair_name = nullptr) {
  return {n,       label,  Kind::real, nullptr,           nullptr,
          nullptr, field,  nullptr,    {nullptr, absent}, illegal,
          1,       repair, repair_name};
}
P date_row(igsGlobalParameter n, char const* label, igsDate GS::*field, int illegal,
           char const* repair_name = nullptr) {
  return {n,     label, Kind::date, nullptr, nullptr, nullptr,    nullptr,
          field, none,  illegal,    1,       none,    repair_name};
}
P units_row(igsGlobalParameter n, char const* label, Kind kind, char const* repair_name = nullptr) {
  return {n,
          label,
          kind,
          nullptr,
          nullptr,
          nullptr,
          nullptr,
          nullptr,
          none,
          0,
          repair_name != nullptr,
          none,
          repair_name};
}

constexpr P::Value number(double value) {
  return {nullptr, value};
}
constexpr Repair unknown_text(char const* name) {
  return {{"Unknown", 0.0}, name};
}

} // namespace

igsGlobalSection::Parameter const igsGlobalSection::parameters[] = {
    delimiter_row(igsGPParameterDelimiter, "ParameterDelimiter = ", &GS::m_parameter_delimiter),
    delimiter_row(igsGPRecordDelimiter, "RecordDelimiter = ", &GS::m_record_delimiter),
    text_row(igsGPProductIdSendingSystem, "ProductIdSendingSystem = ", &GS::m_product_id_sending,
             "", 1, unknown_text("product id from sending system")),
    text_row(igsGPFileName, "FileName = ", &GS::m_file_name, ""),
    text_row(igsGPSystemId, "SystemId = ", &GS::m_system_id, "", 1, unknown_text("system id")),
    text_row(igsGPPreprocessorVersion, "PreprocessorVersion = ", &GS::m_preprocessor_version, "", 1,
             unknown_text("preprocessor version")),
    integer_row(igsGPBinaryBitsForInt, "BinaryBitsForInteger = ", &GS::m_binary_bits_for_int, 0, 1,
                number(4), "number of bits in an integer"),
    integer_row(igsGPSinglePrecisionMagnitude, "SinglePrecisionMagnitude = ", &GS::m_sp_max_pow10,
                0, 1, number(38), "maximum single precision float"),
    integer_row(igsGPSinglePrecisionSignificance, "FloatSignificantFigs = ", &GS::m_sp_sig_digs, 0,
                1, number(6), "significant figures in a single precision float"),
    integer_row(igsGPDoublePrecisionMagnitude, "DoublePowerOf10 = ", &GS::m_dp_max_pow10, 0, 1,
                number(308), "maximum double precision float"),
    integer_row(igsGPDoublePrecisionSignificance, "DoubleSignificantFigs = ", &GS::m_dp_sig_digs, 0,
                1, number(15), "significant figures in a double precision float"),
    // Left out, it takes the sender's product id: see read_parameter.
    text_row(igsGPProductIdReceivingSystem,
             "ProductIdReceivingSystem = ", &GS::m_product_id_receiving, nullptr),
    real_row(igsGPModelSpaceScale, "ModelSpaceScale = ", &GS::m_model_space_scale, 1.0, 0,
             number(1.0)),
    units_row(igsGPUnitsFlag, "UnitsFlag = ", Kind::units_flag, "units flag"),
    units_row(igsGPUnitsName, "Units = ", Kind::units_name),
    integer_row(igsGPMaxNumberOfLineWeights,
                "LineWeightGraduations = ", &GS::m_max_number_of_line_weights, 1, 0, number(1)),
    real_row(igsGPWidthOfMaxLineWeight, "MaxLineWeightWidth = ", &GS::m_width_of_max_line_weight,
             0.0, 0, number(0.0)),
    date_row(igsGPFileCreationDate, "GenerationDate = ", &GS::m_file_creation_date, 1,
             "file creation date"),
    real_row(igsGPMinimumResolution, "MinimumResolution = ", &GS::m_minimum_resolution, 0.0001, 1,
             number(0.0001), "minimum user-intended resolution"),
    real_row(igsGPMaxCoordinateValue, "MaxCoordinateValue = ", &GS::m_max_coord_value, DBL_MAX, 0,
             number(DBL_MAX)),
    text_row(igsGPNameOfAuthor, "AuthorsName = ", &GS::m_name_of_author, "unknown"),
    text_row(igsGPAuthorsOrganization, "AuthorsOrganization = ", &GS::m_authors_organization,
             "unknown"),
    integer_row(igsGPIgesVersion, "IGESVersion = ", &GS::m_iges_version, 3, 0, number(3)),
    integer_row(igsGPDraftingStandard, "DraftingStandard = ", &GS::m_drafting_standard, 0, 0,
                number(0)),
    // Read, written and printed only from version 8 on: see read_modification_date.
    date_row(igsGPFileModificationDate, "ModificationDate = ", &GS::m_file_modification_date, 0),
};

igsGlobalSection::Parameter const* igsGlobalSection::parameter(int number) {
  if (number < igsGPParameterDelimiter || number > igsGPFileModificationDate) return nullptr;
  return &parameters[number - 1];
}

namespace {

// The first version that has a modification date.
constexpr int first_version_with_modification_date = 8;

utString one_character(char c) {
  return utString(&c, 1);
}

} // namespace

igsGlobalSection::igsGlobalSection(igsFile* file) : m_file(file) {}

void igsGlobalSection::become(igsGlobalSection const& other) {
  if (this == &other) return;
  m_parameter_delimiter = other.m_parameter_delimiter;
  m_record_delimiter = other.m_record_delimiter;
  m_product_id_sending = other.m_product_id_sending;
  m_file_name = other.m_file_name;
  m_system_id = other.m_system_id;
  m_preprocessor_version = other.m_preprocessor_version;
  m_binary_bits_for_int = other.m_binary_bits_for_int;
  m_sp_max_pow10 = other.m_sp_max_pow10;
  m_sp_sig_digs = other.m_sp_sig_digs;
  m_dp_max_pow10 = other.m_dp_max_pow10;
  m_dp_sig_digs = other.m_dp_sig_digs;
  m_product_id_receiving = other.m_product_id_receiving;
  m_model_space_scale = other.m_model_space_scale;
  m_units = other.m_units;
  m_max_number_of_line_weights = other.m_max_number_of_line_weights;
  m_width_of_max_line_weight = other.m_width_of_max_line_weight;
  m_file_creation_date = other.m_file_creation_date;
  m_minimum_resolution = other.m_minimum_resolution;
  m_max_coord_value = other.m_max_coord_value;
  m_name_of_author = other.m_name_of_author;
  m_authors_organization = other.m_authors_organization;
  m_iges_version = other.m_iges_version;
  m_max_version = other.m_max_version;
  m_drafting_standard = other.m_drafting_standard;
  m_file_modification_date = other.m_file_modification_date;
  m_file = other.m_file;
}

// Setters

namespace {

template <class T, class Accept> int store_if(T& field, T const& value, Accept accept) {
  if (!accept(value)) return 0;
  field = value;
  return 1;
}

int not_null(utString const& text) {
  return !text.is_null();
}

} // namespace

int igsGlobalSection::set_parameter_delimiter(char c) {
  return store_if(m_parameter_delimiter, c,
                  [this](char d) { return distinct_delimiter(d, m_record_delimiter); });
}
int igsGlobalSection::set_record_delimiter(char c) {
  return store_if(m_record_delimiter, c,
                  [this](char d) { return distinct_delimiter(d, m_parameter_delimiter); });
}
int igsGlobalSection::set_product_id_from_sending_system(utString const& text) {
  return store_if(m_product_id_sending, text, not_null);
}
int igsGlobalSection::set_product_id_for_receiving_system(utString const& text) {
  return store_if(m_product_id_receiving, text, not_null);
}
int igsGlobalSection::set_file_name(utString const& text) {
  return store_if(m_file_name, text, not_null);
}
int igsGlobalSection::set_system_id(utString const& text) {
  return store_if(m_system_id, text, not_null);
}
int igsGlobalSection::set_preprocessor_version(utString const& text) {
  return store_if(m_preprocessor_version, text, not_null);
}
int igsGlobalSection::set_name_of_author(utString const& text) {
  return store_if(m_name_of_author, text, not_null);
}
int igsGlobalSection::set_authors_organization(utString const& text) {
  return store_if(m_authors_organization, text, not_null);
}
int igsGlobalSection::set_binary_bits_for_int(int bits) {
  return store_if(m_binary_bits_for_int, bits, [](int v) { return v > 0; });
}
int igsGlobalSection::set_sp_max_pow10(int power) {
  return store_if(m_sp_max_pow10, power, [](int v) { return v > 0; });
}
int igsGlobalSection::set_sp_sig_digs(int digits) {
  return store_if(m_sp_sig_digs, digits, [](int v) { return v > 0; });
}
int igsGlobalSection::set_dp_max_pow10(int power) {
  return store_if(m_dp_max_pow10, power, [](int v) { return v >= 0; });
}
int igsGlobalSection::set_dp_sig_digs(int digits) {
  return store_if(m_dp_sig_digs, digits, [](int v) { return v >= 0; });
}
int igsGlobalSection::set_model_space_scale(double scale) {
  return store_if(m_model_space_scale, scale, [](double v) { return v > 0.0; });
}
int igsGlobalSection::set_width_of_max_line_weight(double width) {
  return store_if(m_width_of_max_line_weight, width, [](double v) { return v >= 0.0; });
}
int igsGlobalSection::set_minimum_resolution(double resolution) {
  return store_if(m_minimum_resolution, resolution,
                  [](double v) { return v >= kvnTolMinValue.value(); });
}
int igsGlobalSection::set_max_number_of_line_weights(int number) {
  return store_if(m_max_number_of_line_weights, number,
                  [](int v) { return v >= min_line_weights && v <= max_line_weights; });
}

int igsGlobalSection::valid_delimiter(char c) const {
  if (c == ',' || c == ';') return 1;
  unsigned char u = static_cast<unsigned char>(c);
  if (std::iscntrl(u) || c == ' ' || std::isdigit(u)) return 0;
  // Signs, points and the letters of exponents and Hollerith strings, which the decoders read
  // in either case, belong to the fields.
  switch (std::toupper(u)) {
  case '+':
  case '-':
  case '.':
  case 'D':
  case 'E':
  case 'H':
    return 0;
  default:
    return 1;
  }
}

int igsGlobalSection::max_version() const {
  if (m_max_version == 0) set_max_version();
  return m_max_version;
}

void igsGlobalSection::set_max_version() const {
  int version = 0;
  while (igsInfoDB::version_exists(version + 1)) ++version;
  m_max_version = version;
}

void igsGlobalSection::tag_error(igsGlobalError* error) const {
  if (!error) return;
  // The repair changes the section through the key; sections are never made const.
  error->set_key(const_cast<igsGlobalSection*>(this));
  if (m_file)
    if (kvnabsOutput* stream = m_file->message_stream()) error->set_message_stream(stream);
}

template <class E, class... A> void igsGlobalSection::raise(A&&... arguments) const {
  tag_error(new (std::nothrow) E(std::forward<A>(arguments)...));
}

// Reading

// The stream and the two flags that every field read may set.
struct igsGlobalSection::ReadState {
  igsInStream& in;
  int& bad_line_numbers;
  int& blank_lines;

  // Notes the line codes of the field just read; 1 if the field held a value.
  int took() {
    if (in.error_type(igsIOLineSequence)) bad_line_numbers = 1;
    if (in.error_type(igsIOBlankLine)) blank_lines = 1;
    return in.error_type(igsIOValuePresent);
  }
};

// The delimiter is not known yet, so it is read by fixed-width reads: "1H" and the character,
// which must then stand again as the delimiter behind the Hollerith string; or the comma of a
// parameter left out.
int igsGlobalSection::read_parameter_delimiter(igsInStream& in, utOstream&) {
  char delimiter = ',';
  utString first;
  in.read_string(1, first);
  if (first.length() == 1 && first[0] == '1') {
    utString rest;
    in.read_string(3, rest);
    if (rest.length() != 3 || rest[0] != 'H' || rest[1] != rest[2]) return 0;
    delimiter = rest[1];
  } else if (first.length() == 1 && first[0] != ',') {
    raise<igsGlobalSectionInvalidParamDelim>(first[0]);
    return 0;
  }
  if (!valid_delimiter(delimiter)) {
    raise<igsGlobalSectionInvalidParamDelim>(delimiter);
    return 0;
  }
  m_parameter_delimiter = delimiter;
  in.set_param_delimiter(delimiter);
  // A ";" would still read as the end of the record until the record delimiter is known;
  // the comma, free now, stands in for it.
  if (delimiter == ';') in.set_record_delimiter(',');
  return 1;
}

int igsGlobalSection::read_record_delimiter(igsInStream& in, utOstream&) {
  utString text;
  in.read_holerith(text);
  if (!in.error_type(igsIOValuePresent)) text = ";";
  // A record delimiter that is no single character, or is also the parameter delimiter,
  // cannot tell where a record ends, and no file written with it could be read back. The
  // section then keeps the defaults, so that it stays writable whatever parameter delimiter
  // was read.
  char delimiter = text.length() == 1 ? text[0] : '\0';
  if (text.length() != 1 || !distinct_delimiter(delimiter, m_parameter_delimiter)) {
    if (text.length() == 1) raise<igsGlobalSectionInvalidRecordDelim>(delimiter);
    m_parameter_delimiter = ',';
    m_record_delimiter = ';';
    in.set_param_delimiter(',');
    in.set_record_delimiter(';');
    return 0;
  }
  m_record_delimiter = delimiter;
  in.set_record_delimiter(delimiter);
  return 1;
}

int igsGlobalSection::read_units(igsInStream& in, utOstream&) {
  int bad_line_numbers = 0;
  int blank_lines = 0;
  ReadState state{in, bad_line_numbers, blank_lines};
  return read_units(state);
}

int igsGlobalSection::read_units(ReadState& state) {
  int flag = 0;
  state.in.read_integer(flag);
  if (!state.took()) {
    raise<igsGlobalSectionIllegalDefault>(igsGPUnitsFlag, igsGPTypeInteger);
    flag = igs_unset_int;
  }
  utString name;
  state.in.read_holerith(name);
  if (state.took() && !name.is_null())
    m_units = igsUnits(name, flag);
  else
    m_units = igsUnits(flag);
  return 1;
}

void igsGlobalSection::read_parameter(Parameter const& p, ReadState& state) {
  igsInStream& in = state.in;
  switch (p.kind) {
  case Kind::text:
  case Kind::date: {
    utString value;
    in.read_holerith(value);
    if (state.took()) {
      if (value.is_null()) value = "";
      if (p.text)
        this->*p.text = value;
      else
        (this->*p.date).set_date_string(value);
    } else if (p.number == igsGPProductIdReceivingSystem) {
      m_product_id_receiving = m_product_id_sending;
    } else if (p.text) {
      this->*p.text = p.absent.text;
    }
    break;
  }
  case Kind::integer: {
    int value = 0;
    in.read_integer(value);
    if (!state.took()) {
      value = static_cast<int>(p.absent.number);
    } else if (p.number == igsGPMaxNumberOfLineWeights &&
               (value < min_line_weights || value > max_line_weights)) {
      value = value < min_line_weights ? min_line_weights : max_line_weights;
      raise<igsGlobalSectionInvalidMaxNumLineWeightGrads>(value);
    }
    this->*p.integer = value;
    break;
  }
  case Kind::real: {
    double value = 0.0;
    in.read_double(value);
    this->*p.real = state.took() ? value : p.absent.number;
    break;
  }
  default:
    return;
  }
  if (p.illegal && !in.error_type(igsIOValuePresent))
    raise<igsGlobalSectionIllegalDefault>(p.number, p.type());
}

// Only a file of version 8 or later has a modification date; one that lacks it was not
// modified after it was made.
void igsGlobalSection::read_modification_date(ReadState& state) {
  utString value;
  state.in.read_holerith(value);
  int present = state.took();
  if (m_iges_version < first_version_with_modification_date) {
    if (present) raise<igsGlobalSectionExtraModificationDate>();
  } else if (present) {
    m_file_modification_date.set_date_string(value.is_null() ? utString("") : value);
  } else {
    m_file_modification_date = m_file_creation_date;
  }
}

int igsGlobalSection::read(igsInStream& in, utOstream& messages, int& bad_line_numbers,
                           int& blank_lines) {
  // Without G lines there are no delimiters to read the rest of the file with.
  if (igs_stream_section(in) != igsSectionGlobal) return 0;
  ReadState state{in, bad_line_numbers, blank_lines};
  for (Parameter const& p : parameters) {
    switch (p.number) {
    case igsGPParameterDelimiter:
      if (!read_parameter_delimiter(in, messages)) return 0;
      state.took();
      break;
    case igsGPRecordDelimiter:
      if (!read_record_delimiter(in, messages)) return 0;
      state.took();
      break;
    case igsGPUnitsFlag:
      read_units(state);
      break;
    case igsGPUnitsName:
      break;
    case igsGPFileModificationDate:
      read_modification_date(state);
      break;
    default:
      read_parameter(p, state);
      break;
    }
  }
  // Whatever stands behind the record delimiter in the section is passed over.
  if (in.reset())
    while (igs_stream_section(in) == igsSectionGlobal && !in.frozen()) {
      in.skip_line();
      if (in.error_type(igsIOBlankLine)) blank_lines = 1;
    }
  return in.reset();
}

// Writing and printing

int igsGlobalSection::write(igsOutStream& out, utOstream&) {
  out.set_section(igsSectionGlobal);
  out.set_delimiters(one_character(m_parameter_delimiter), one_character(m_record_delimiter));
  int with_modification_date = m_iges_version >= first_version_with_modification_date;
  for (Parameter const& p : parameters) {
    if (p.number == igsGPFileModificationDate && !with_modification_date) continue;
    switch (p.kind) {
    case Kind::delimiter:
      out.write_holerith(one_character(this->*p.character));
      break;
    case Kind::text:
      out.write_holerith(this->*p.text);
      break;
    case Kind::integer:
      out.write_integer(this->*p.integer);
      break;
    case Kind::real:
      out.write_double(this->*p.real);
      break;
    case Kind::date:
      out.write_holerith((this->*p.date).date_string());
      break;
    case Kind::units_flag:
      out.write_integer(m_units.type());
      break;
    case Kind::units_name:
      out.write_holerith(m_units.name());
      break;
    }
  }
  return out.reset();
}

void igsGlobalSection::print(utOstream& out) const {
  utOstream nested(utOstreamTabTag, out, 1, 0);
  int with_modification_date = m_iges_version >= first_version_with_modification_date;
  out << "GlobalSection = {\n";
  for (Parameter const& p : parameters) {
    if (p.number == igsGPFileModificationDate && !with_modification_date) continue;
    nested << p.label;
    switch (p.kind) {
    case Kind::delimiter:
      nested << this->*p.character;
      break;
    case Kind::text:
      nested << "\"" << this->*p.text << "\"";
      break;
    case Kind::integer:
      nested << this->*p.integer;
      break;
    case Kind::real:
      nested << this->*p.real;
      break;
    case Kind::date:
      nested << "\"" << this->*p.date << "\"";
      break;
    case Kind::units_flag:
      nested << m_units.type();
      break;
    case Kind::units_name:
      nested << m_units.name();
      break;
    }
    nested << "\n";
  }
  out << "}\n";
}

utOstream& operator<<(utOstream& out, igsGlobalSection const& section) {
  section.print(out);
  return out;
}

// Checking and repairing

namespace {

// The lowest minimum resolution that the check accepts.
constexpr double lowest_resolution = 1e-15;

} // namespace

void igsGlobalSection::check() const {
  if (static_cast<unsigned>(m_binary_bits_for_int) < 4)
    raise<igsGlobalSectionInvalidIntegerSize>(m_binary_bits_for_int);
  if (m_sp_max_pow10 < 38) raise<igsGlobalSectionInvalidSinglePrecMagnitude>(m_sp_max_pow10);
  if (m_sp_sig_digs < 6) raise<igsGlobalSectionInvalidSinglePrecSignificance>(m_sp_sig_digs);
  if (m_dp_max_pow10 < 38) raise<igsGlobalSectionInvalidDoublePrecMagnitude>(m_dp_max_pow10);
  if (m_dp_sig_digs < 6) raise<igsGlobalSectionInvalidDoublePrecSignificance>(m_dp_sig_digs);
  if (m_model_space_scale <= 0.0)
    raise<igsGlobalSectionInvalidModelSpaceScale>(m_model_space_scale);
  tag_error(m_units.check());
  if (m_width_of_max_line_weight < 0.0)
    raise<igsGlobalSectionInvalidMaxLineWeightWidth>(m_width_of_max_line_weight);
  if (!m_file_creation_date.check())
    raise<igsGlobalSectionInvalidFileCreationDate>(m_file_creation_date.date_string());
  if (m_minimum_resolution < lowest_resolution)
    raise<igsGlobalSectionInvalidMinResolution>(m_minimum_resolution);
  if (m_max_coord_value == gi_unset_double)
    raise<igsGlobalSectionInvalidMaxCoordinate>(m_max_coord_value);
  if (m_iges_version < 1 || m_iges_version > max_version())
    raise<igsGlobalSectionInvalidIgesVersion>(m_iges_version);
  if (static_cast<unsigned>(m_drafting_standard) > 7)
    raise<igsGlobalSectionInvalidDraftingStandard>(m_drafting_standard);
  if (!m_file_modification_date.check())
    raise<igsGlobalSectionInvalidFileModificationDate>(m_file_modification_date.date_string());
}

int igsGlobalSection::repair_parameter(igsGlobalParameter number) {
  Parameter const* p = parameter(number);
  if (!p || !p->repairable) return 0;
  switch (p->kind) {
  case Kind::text:
    this->*p->text = p->repair.text;
    break;
  case Kind::integer:
    this->*p->integer = static_cast<int>(p->repair.number);
    break;
  case Kind::real:
    this->*p->real = p->repair.number;
    break;
  case Kind::date:
    this->*p->date = igsDate();
    break;
  default: // the units flag: the repairs of the units see to it
    break;
  }
  return 1;
}

char const* igsGlobalSection::default_field_name(igsGlobalParameter number) {
  Parameter const* p = parameter(number);
  return p ? p->repair_name : nullptr;
}
