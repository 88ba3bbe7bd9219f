// Lays the pieces of encoded fields into lines.
#pragma once

#include "output/igsEncoder.h"
#include "output/igsOutBuffer.h"

// Decides where each field goes. In the Global and Parameter sections fields are delimited: a
// parameter delimiter goes before every field of a record but the first, and a field keeps
// one column free behind it for that delimiter, so that the two stand together on one line.
// A field that does not fit into what is left of a line starts the next one; pieces that may
// be split, the delimiters, and pieces longer than a line run on over line ends instead.
// Fixed fields stand right-justified in their columns and know no delimiters.
class igsOutEngine : public igsOutBuffer {
 public:
  explicit igsOutEngine(std::ostream* destination) : igsOutBuffer(destination) {}
  ~igsOutEngine() override;

  // The encoder whose pieces the next encode lays out; not owned.
  void configure_for_encode(igsEncoder* encoder) { m_encoder = encoder; }
  // Lays out the encoder's pieces as one delimited field.
  void encode() {
    if (m_encoder) encode(*m_encoder);
  }
  // Lays out each of the encoder's pieces right-justified in `width` columns.
  void fixed_encode(unsigned int width) {
    if (m_encoder) fixed_encode(*m_encoder, width);
  }
  void set_delimiters(utString const& parameter, utString const& record) {
    m_parameter_delimiter = parameter;
    m_record_delimiter = record;
  }
  // Ends the Global section with the record delimiter when leaving it.
  void set_section(igsFileSection section);
  // Ends the Parameter record with the record delimiter; the next record gets the back
  // pointer.
  void set_backpointer(int backpointer);
  // Appends the buffer's codes and stamps every entry of the list with where the cursor
  // stands.
  void collect_errors(igsIOErrorcoDynArr& errors);

 protected:
  // The text on one line: if the length (which may count a column kept for a delimiter) is
  // more than is left of the line, the line is finished first. A text longer than a whole
  // line (only a fixed field wider than the line can be) starts where the cursor stands
  // rather than leave a blank line behind.
  void single_line_encode(std::string_view text, int length) {
    if (length > free_space() && !at_line_start()) *this += static_cast<unsigned int>(free_space());
    append(text.data(), static_cast<int>(text.size()));
  }
  // The text from the cursor on, over as many line ends as it takes.
  void split_line_encode(std::string_view text) {
    append(text.data(), static_cast<int>(text.size()));
  }
  void single_line_encode(utString const& text, int length) {
    single_line_encode(text.view(), length);
  }
  void split_line_encode(utString const& text) { split_line_encode(text.view()); }

  void encode(igsEncoder const& encoder);
  void fixed_encode(igsEncoder const& encoder, unsigned int width);

 private:
  igsEncoder* m_encoder = nullptr;
  utString m_parameter_delimiter{","};
  utString m_record_delimiter{";"};
  int m_delimited = 0;
  int m_delimiter_due = 0;
};
