// The face of the output pipeline: one call writes one field.
#pragma once

#include "output/igsOutEngine.h"

// Writes the fields of a file one by one, delimited or fixed-width, into finished 80-column
// lines. The codes of the stream (a failed destination, a line number or back pointer too
// large for its columns) stand until they are collected by `error` or `error_type`; until
// then, and for good after a number too large, the stream is frozen and writes go nowhere.
class igsOutStream : protected igsOutEngine {
 public:
  explicit igsOutStream(std::ostream* destination) : igsOutEngine(destination) {}
  ~igsOutStream() override;

  // One delimited field each.
  void write_integer(int value) { write(m_int, value); }
  void write_double(double value) { write(m_real, value); }
  void write_holerith(utString value) { write(m_holerith, value); }
  // One field of `width` columns each, right-justified.
  void write_integer(int width, int value) { write(m_int, value, width); }
  void write_string(int width, utString value) { write(m_string, value, width); }

  // The format of the reals that follow, until it is popped (significant digits only: the
  // width does not show in the text).
  void push_double_format(int width, int precision) { m_real.push_format(width, precision); }
  void pop_double_format() { m_real.pop_format(); }

  void set_section(igsFileSection section) { igsOutEngine::set_section(section); }
  void set_backpointer(int backpointer) { igsOutEngine::set_backpointer(backpointer); }
  void set_delimiters(utString const& parameter, utString const& record) {
    igsOutEngine::set_delimiters(parameter, record);
  }
  void set_destination(std::ostream* destination) { igsOutEngine::set_destination(destination); }
  int num_lines(igsFileSection section) const { return igsOutEngine::num_lines(section); }
  using igsOutEngine::frozen;
  using igsOutEngine::position;

  // Whether any code stands since the last write.
  int error() { return !errors().empty(); }
  // Whether the code stands since the last write.
  int error_type(igsIOErrorCode code) { return igs_has_io_error(errors(), code); }
  // The codes that stand since the last write, each with where the cursor stood.
  igsIOErrorcoDynArr const& errors();
  // Ends a freeze once the codes are collected; on success the codes are forgotten.
  int reset();

 private:
  template <class Encoder, class Value> void write(Encoder& encoder, Value const& value) {
    m_collected = 0;
    encoder.reset();
    encoder.encode(value);
    configure_for_encode(&encoder);
    encode(encoder);
  }
  template <class Encoder, class Value>
  void write(Encoder& encoder, Value const& value, int width) {
    m_collected = 0;
    encoder.reset();
    encoder.encode(value);
    configure_for_encode(&encoder);
    fixed_encode(encoder, width > 0 ? static_cast<unsigned int>(width) : 0u);
  }

  igsIOErrorcoDynArr m_errors;
  int m_collected = 0;
  igsIntEncoder m_int;
  igsDoubleEncoder m_real;
  igsStrEncoder m_string;
  igsHolerithEncoder m_holerith;
};
