// Cuts the fields of a record and hands them to the decoders.
#pragma once

#include "input/igsDecoder.h"
#include "input/igsInBuffer.h"

// Drives a decoder over the current line: finds where a field starts, tries the decoder's
// fast way, falls back to its slow way, recognises the delimiters, and stops the buffer at a
// record delimiter. Fixed-width fields are a number of columns and know no delimiters.
class igsInEngine : public igsInBuffer {
 public:
  explicit igsInEngine(std::istream& stream) : igsInBuffer(stream) {}
  ~igsInEngine() override;

  // The decoder for the fields that follow; not owned.
  void configure_for_decode(igsDecoder* decoder) { m_decoder = decoder; }
  // Reads one delimited field with the current decoder.
  void decode();
  // Reads one field of `width` columns with the current decoder.
  void fixed_decode(unsigned int width);
  // Appends the codes of the filler, the checker and the current decoder, and stamps every
  // entry of the list with the cursor's section, line and column.
  void collect_errors(igsIOErrorcoDynArr& errors);
  void set_param_delimiter(char c) { m_param_delimiter = c; }
  void set_record_delimiter(char c) { m_record_delimiter = c; }

 protected:
  int delimiter(char c, int& is_record) const {
    is_record = c == m_record_delimiter;
    return is_record || c == m_param_delimiter;
  }
  int delimiter_check(int enabled, char c, int& is_record) const {
    is_record = 0;
    return enabled ? delimiter(c, is_record) : 0;
  }
  int fast_decode();
  void slow_decode();
  int fixed_fast_decode(unsigned int width);
  void fixed_slow_decode(unsigned int width);
  void pre_decode();
  void halt_buffer(int halt) {
    if (halt) freeze();
  }

 private:
  igsDecoder* m_decoder = nullptr;
  char m_param_delimiter = ',';
  char m_record_delimiter = ';';
};
