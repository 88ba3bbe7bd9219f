// The face of the input pipeline: one call reads one field of one type.
#pragma once

#include "input/igsInEngine.h"

// Reads the fields of a file one by one, delimited or fixed-width, and keeps what there was to
// say about the last read as a list of codes. A reader asks for the codes it cares about
// (igsIOValuePresent tells a value from a defaulted field) and calls `reset` between records.
// While the buffer is stopped every read gives the default value (0, 0.0 or the empty string)
// and moves nothing.
class igsInStream : public igsInEngine {
 public:
  explicit igsInStream(std::istream& stream);
  ~igsInStream() override;

  void read_integer(int& value) { read(m_int, value); }
  void read_double(double& value) { read(m_real, value); }
  void read_holerith(utString& value) { read(m_holerith, value); }
  void read_integer(unsigned int width, int& value) { read(m_int, value, width); }
  void read_string(unsigned int width, utString& value) { read(m_string, value, width); }

  // Whether any code stands after the last read; igsIOValuePresent counts.
  int error();
  // Whether the code stands after the last read.
  int error_type(igsIOErrorCode code);
  // The codes that stand after the last read, with where the cursor stood.
  igsIOErrorcoDynArr const& errors();
  // 1 when no code other than igsIOValuePresent stands since the last collection: those are
  // dropped, as a collection would take them, and the stream then holds no code. Else 0, and
  // nothing changes. Nearly every record ends so, and needs no list made.
  int drop_value_codes();

  using igsInEngine::collect_errors;

  int reset() {
    m_collected = 0;
    return igsInEngine::reset();
  }
  void skip_line() {
    m_collected = 0;
    igsInEngine::skip_line();
  }
  // Moves over a field of the given width that the caller has read from the text at the
  // cursor itself; as after any read, the codes are collected anew when next asked for.
  void pass_over(unsigned int width) {
    m_collected = 0;
    *this += width;
  }

 protected:
  void collect_errors();
  unsigned decoder_code_bits() const {
    return m_int.code_bits() | m_string.code_bits() | m_holerith.code_bits() | m_real.code_bits();
  }

 private:
  template <class Decoder, class Value> void read(Decoder& decoder, Value& value) {
    m_collected = 0;
    configure_for_decode(&decoder);
    decode(decoder);
    value = decoder.decoded_value();
  }
  template <class Decoder, class Value>
  void read(Decoder& decoder, Value& value, unsigned int width) {
    m_collected = 0;
    configure_for_decode(&decoder);
    fixed_decode(decoder, width);
    value = decoder.decoded_value();
  }

  igsIOErrorcoDynArr m_errors;
  int m_collected = 0;
  igsIntDecoder m_int;
  igsDoubleDecoder m_real;
  igsHolerithDecoder m_holerith;
  igsStrDecoder m_string;
};
