// Cuts the fields of a record and hands them to the decoders.
#pragma once

#include "input/igsDecoder.h"
#include "input/igsInBuffer.h"
#include "input/igsNumberText.h"

#include <bit>
#include <cstdint>

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
  void decode() {
    if (m_decoder) decode(*m_decoder);
  }
  // Reads one field of `width` columns with the current decoder.
  void fixed_decode(unsigned int width) {
    if (m_decoder) fixed_decode(*m_decoder, width);
  }
  // Appends the codes of the filler, the checker and the current decoder, and stamps every
  // entry of the list with the cursor's section, line and column.
  void collect_errors(igsIOErrorcoDynArr& errors);
  void set_param_delimiter(char c) { m_param_delimiter = c; }
  void set_record_delimiter(char c) { m_record_delimiter = c; }

 protected:
  // The two halves of collect_errors: the codes appended, and the list stamped with where
  // the cursor stands.
  void append_errors(igsIOErrorcoDynArr& errors);
  void stamp_errors(igsIOErrorcoDynArr& errors) const;

  int delimiter(char c, int& is_record) const {
    is_record = c == m_record_delimiter;
    return is_record || c == m_param_delimiter;
  }
  int delimiter_check(int enabled, char c, int& is_record) const {
    is_record = 0;
    return enabled ? delimiter(c, is_record) : 0;
  }
  int fast_decode() { return m_decoder ? fast_decode(*m_decoder) : 0; }
  void slow_decode() {
    if (m_decoder) slow_decode(*m_decoder);
  }
  int fixed_fast_decode(unsigned int width) {
    return m_decoder ? fixed_fast_decode(*m_decoder, width) : 0;
  }
  void fixed_slow_decode(unsigned int width) {
    if (m_decoder) fixed_slow_decode(*m_decoder, width);
  }
  void halt_buffer(int halt) {
    if (halt) freeze();
  }

  // The blanks at p, of which `bytes` may be read; the NUL behind the line ends the count.
  // Eight bytes are looked at together while eight remain, since data columns are mostly
  // blank.
  static unsigned int count_blanks(char const* p, long bytes) {
    unsigned int n = 0;
    if constexpr (std::endian::native == std::endian::little) {
      constexpr std::uint64_t eight_blanks = 0x2020202020202020ULL;
      for (; n + 8 <= bytes; n += 8) {
        if (std::uint64_t other = igs_load8(p + n) ^ eight_blanks)
          return n + static_cast<unsigned int>(std::countr_zero(other)) / 8;
      }
    }
    while (p[n] == ' ') ++n;
    return n;
  }
  // Brings the cursor to the first character of the field, across blank and short lines.
  void pre_decode() {
    for (;;) {
      char const* p = (*this)();
      unsigned int blanks = count_blanks(p, room() + 1);
      if (p[blanks] != '\n' || frozen()) {
        if (blanks) *this += blanks;
        return;
      }
      *this += blanks + 1;
    }
  }

  // The steps of the reads for a decoder whose class is known to the caller: a final decoder
  // class has its fast way called directly.
  template <class Decoder> void decode(Decoder& decoder) {
    decoder.reset_fast_decode();
    pre_decode();
    if (fast_decode(decoder)) return;
    decoder.reset_slow_decode();
    slow_decode(decoder);
  }
  template <class Decoder> int fast_decode(Decoder& decoder) {
    if (!decoder.fast_decode_avail()) return 0;
    char const* p = (*this)();
    int used = decoder.decode_fast(p);
    int is_record = 0;
    if (!delimiter(p[used], is_record)) return 0;
    *this += static_cast<unsigned int>(used) + 1;
    halt_buffer(is_record);
    return 1;
  }
  template <class Decoder> void fixed_decode(Decoder& decoder, unsigned int width) {
    decoder.reset_fast_decode();
    if (fixed_fast_decode(decoder, width)) return;
    decoder.reset_slow_decode();
    fixed_slow_decode(decoder, width);
  }
  // The field is cut out by a NUL planted behind it; behind the end of the line the NUL that
  // ends it does the same.
  template <class Decoder> int fixed_fast_decode(Decoder& decoder, unsigned int width) {
    if (!decoder.fast_decode_avail()) return 0;
    char* p = cursor();
    bool planted = static_cast<long>(width) <= room();
    char saved = planted ? p[width] : '\0';
    if (planted) p[width] = '\0';
    int used = decoder.decode_fast(p);
    if (planted) p[width] = saved;
    if (static_cast<unsigned int>(used) != width) return 0;
    *this += width;
    return 1;
  }
  void slow_decode(igsDecoder& decoder);
  void fixed_slow_decode(igsDecoder& decoder, unsigned int width);

 private:
  igsDecoder* m_decoder = nullptr;
  char m_param_delimiter = ',';
  char m_record_delimiter = ';';
};
