// The Global section: the 25 parameters of the G lines. Its first two parameters set the
// delimiters of every free-format field that follows in the file.
#pragma once

#include "core/igsUnset.h"
#include "sections/igsDate.h"
#include "sections/igsUnits.h"
#include "support/giGeometry.h"

class igsFile;
class igsGlobalError;
class igsInStream;
class igsOutStream;
class utOstream;

// The number of a parameter in the file.
enum igsGlobalParameter : int {
  igsGPParameterDelimiter = 1,
  igsGPRecordDelimiter,
  igsGPProductIdSendingSystem,
  igsGPFileName,
  igsGPSystemId,
  igsGPPreprocessorVersion,
  igsGPBinaryBitsForInt,
  igsGPSinglePrecisionMagnitude,
  igsGPSinglePrecisionSignificance,
  igsGPDoublePrecisionMagnitude,
  igsGPDoublePrecisionSignificance,
  igsGPProductIdReceivingSystem,
  igsGPModelSpaceScale,
  igsGPUnitsFlag,
  igsGPUnitsName,
  igsGPMaxNumberOfLineWeights,
  igsGPWidthOfMaxLineWeight,
  igsGPFileCreationDate,
  igsGPMinimumResolution,
  igsGPMaxCoordinateValue,
  igsGPNameOfAuthor,
  igsGPAuthorsOrganization,
  igsGPIgesVersion,
  igsGPDraftingStandard,
  igsGPFileModificationDate
};

enum igsGlobalParameterType : int { igsGPTypeString = 1, igsGPTypeInteger = 2, igsGPTypeReal = 3 };

class igsGlobalSection {
 public:
  // The bounds of the maximum number of line weights.
  static constexpr int min_line_weights = 1;
  static constexpr int max_line_weights = 32768;

  // A free-standing section, owned by no file.
  igsGlobalSection() : igsGlobalSection(nullptr) {}
  explicit igsGlobalSection(igsFile* file);
  igsGlobalSection(igsGlobalSection const&) = delete;
  igsGlobalSection& operator=(igsGlobalSection const&) = delete;
  // Copies everything, the owning file included.
  void become(igsGlobalSection const& other);

  char parameter_delimiter() const { return m_parameter_delimiter; }
  char record_delimiter() const { return m_record_delimiter; }
  utString const& product_id_from_sending_system() const { return m_product_id_sending; }
  utString const& file_name() const { return m_file_name; }
  utString const& system_id() const { return m_system_id; }
  utString const& preprocessor_version() const { return m_preprocessor_version; }
  int binary_bits_for_int() const { return m_binary_bits_for_int; }
  int sp_max_pow10() const { return m_sp_max_pow10; }
  int sp_sig_digs() const { return m_sp_sig_digs; }
  int dp_max_pow10() const { return m_dp_max_pow10; }
  int dp_sig_digs() const { return m_dp_sig_digs; }
  utString const& product_id_for_receiving_system() const { return m_product_id_receiving; }
  double model_space_scale() const { return m_model_space_scale; }
  igsUnits const& units() const { return m_units; }
  int max_number_of_line_weights() const { return m_max_number_of_line_weights; }
  double width_of_max_line_weight() const { return m_width_of_max_line_weight; }
  igsDate const& file_creation_date() const { return m_file_creation_date; }
  double minimum_resolution() const { return m_minimum_resolution; }
  double max_coord_value() const { return m_max_coord_value; }
  utString const& name_of_author() const { return m_name_of_author; }
  utString const& authors_organization() const { return m_authors_organization; }
  int iges_version() const { return m_iges_version; }
  int drafting_standard() const { return m_drafting_standard; }
  igsDate const& file_modification_date() const { return m_file_modification_date; }
  igsFile* file() const { return m_file; }
  // The highest IGES version the tables know.
  int max_version() const;

  // Setters that return int store the value and return 1, or refuse it and return 0.
  // Refuse what valid_delimiter refuses, and the other delimiter: to swap the two, set one
  // of them to a third character first.
  int set_parameter_delimiter(char c);
  int set_record_delimiter(char c);
  // Refuse a null string.
  int set_product_id_from_sending_system(utString const& text);
  int set_product_id_for_receiving_system(utString const& text);
  int set_file_name(utString const& text);
  int set_system_id(utString const& text);
  int set_preprocessor_version(utString const& text);
  int set_name_of_author(utString const& text);
  int set_authors_organization(utString const& text);
  // Refuse 0 and less.
  int set_binary_bits_for_int(int bits);
  int set_sp_max_pow10(int power);
  int set_sp_sig_digs(int digits);
  // Refuse negative numbers.
  int set_dp_max_pow10(int power);
  int set_dp_sig_digs(int digits);
  // Refuses 0.0 and less.
  int set_model_space_scale(double scale);
  // Refuses negative widths.
  int set_width_of_max_line_weight(double width);
  // Refuses resolutions below the kvnTolMinValue key.
  int set_minimum_resolution(double resolution);
  // Refuses numbers outside min_line_weights to max_line_weights.
  int set_max_number_of_line_weights(int number);
  void set_units(igsUnits const& units) { m_units = units; }
  void set_file_creation_date(igsDate const& date) { m_file_creation_date = date; }
  void set_file_modification_date(igsDate const& date) { m_file_modification_date = date; }
  void set_max_coord_value(double value) { m_max_coord_value = value; }
  void set_iges_version(int version) { m_iges_version = version; }
  void set_drafting_standard(int standard) { m_drafting_standard = standard; }

  // Whether the character may delimit: "," and ";" always; never a control character, a
  // blank, a digit, a sign, a point, nor the letters of exponents and Hollerith strings.
  int valid_delimiter(char c) const;
  // Whether the character may delimit beside `other`, the other delimiter: one character for
  // both could not tell where a record ends.
  int distinct_delimiter(char c, char other) const { return valid_delimiter(c) && c != other; }

  // Reads the G lines from where the stream stands, up to the first line of the next section,
  // and sets the stream's delimiters. Stores what the file holds and raises the errors of
  // parameters left out; the flags become 1 if line numbers were out of sequence or lines
  // blank. Returns 0 if the delimiters are unusable or the stream failed. The messages stream
  // is not used: all reports are error objects.
  int read(igsInStream& in, utOstream& messages, int& bad_line_numbers, int& blank_lines);
  // Writes the G lines; the record delimiter follows when the stream leaves the section.
  // Returns the result of the stream's reset.
  int write(igsOutStream& out, utOstream& messages);
  // Raises an error for each value out of range.
  void check() const;
  void print(utOstream& out) const;

  // Sets the parameter to the value that repairs it: "Unknown" for the texts, today for the
  // dates, the least usable sizes and precisions, and the values a new section has; the units
  // flag is left to the repairs of the units. Returns 0 for a parameter with no repair.
  int repair_parameter(igsGlobalParameter number);
  // The name of the field in the message of a repaired default, or null where a parameter
  // that the file leaves out is no error.
  static char const* default_field_name(igsGlobalParameter number);

  // One row of the table of parameters, defined beside the table.
  struct Parameter;

 protected:
  int read_parameter_delimiter(igsInStream& in, utOstream& messages);
  int read_record_delimiter(igsInStream& in, utOstream& messages);
  int read_units(igsInStream& in, utOstream& messages);
  // Keys the error to this section and gives it the file's message stream.
  void tag_error(igsGlobalError* error) const;
  // Caches the highest version that the tables know.
  void set_max_version() const;

 private:
  friend class igsFile;
  void set_file(igsFile* file) { m_file = file; }
  struct ReadState;
  static Parameter const parameters[];
  static Parameter const* parameter(int number);

  template <class E, class... A> void raise(A&&... arguments) const;
  void read_parameter(Parameter const& p, ReadState& state);
  int read_units(ReadState& state);
  void read_modification_date(ReadState& state);

  char m_parameter_delimiter = ',';
  char m_record_delimiter = ';';
  utString m_product_id_sending{"Unknown"};
  utString m_file_name{"Unknown"};
  utString m_system_id{"Unknown"};
  utString m_preprocessor_version{"Unknown"};
  int m_binary_bits_for_int = igs_unset_int;
  int m_sp_max_pow10 = igs_unset_int;
  int m_sp_sig_digs = igs_unset_int;
  int m_dp_max_pow10 = igs_unset_int;
  int m_dp_sig_digs = igs_unset_int;
  utString m_product_id_receiving{"Unknown"};
  double m_model_space_scale = 1.0;
  igsUnits m_units{utString(""), igsUnitMillimeter};
  int m_max_number_of_line_weights = 1;
  double m_width_of_max_line_weight = 0.0;
  igsDate m_file_creation_date;
  double m_minimum_resolution = gi_unset_double;
  double m_max_coord_value = gi_unset_double;
  utString m_name_of_author{"Unknown"};
  utString m_authors_organization{"Unknown"};
  int m_iges_version = 3;
  mutable int m_max_version = 0;
  int m_drafting_standard = 0;
  igsDate m_file_modification_date;
  igsFile* m_file;
};

utOstream& operator<<(utOstream& out, igsGlobalSection const& section);
