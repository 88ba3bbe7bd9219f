// Field encoders: each turns one value into the text of one field.
#pragma once

#include "support/coNames.h"
#include "support/utString.h"

#include <string_view>

// The text of one field as a short list of pieces, each with a flag that says whether the
// engine may break the piece at a line end. An encoder knows nothing of lines or columns.
//
// The pieces live in one reusable byte store, so that encoding a number allocates nothing
// once the store has grown; get_string makes the strings only when someone asks for them.
class igsEncoder {
 public:
  igsEncoder() = default;

  int num_items() const { return m_ends.size(); }
  // The text of piece i as a string; a null string for an index out of range.
  utString const& get_string(int i) const;
  // The text of piece i without making a string: what the engine reads.
  std::string_view item_text(int i) const {
    int begin = i > 0 ? m_ends[i - 1] : 0;
    return {m_text.data() + begin, static_cast<size_t>(m_ends[i] - begin)};
  }
  int get_split_flag(int i) const { return i >= 0 && i < num_items() ? m_split_flags[i] : 0; }
  // Empties the pieces and their flags.
  void reset() {
    m_used = 0;
    m_ends.shrink(0);
    m_split_flags.shrink(0);
    m_made = 0;
  }

 protected:
  igsEncoder(igsEncoder const&) = default;
  igsEncoder& operator=(igsEncoder const&) = default;

  // Adds one piece and its flag.
  void append_string(utString& text, int split_flag) {
    append_text(text.c_str(), text.length(), split_flag);
  }
  void append_text(char const* text, int length, int split_flag);
  // Room for n more bytes behind the pieces, into which an encoder may print its text
  // directly; null if the store cannot grow.
  char* text_room(int n);
  // Makes the next n bytes of the room one piece.
  void add_piece(int n, int split_flag);

 private:
  charcoDynArr m_text;              // the store of the pieces' bytes; only ever grows
  int m_used = 0;                   // the bytes of the pieces, one behind the other
  intcoDynArr m_ends;               // where each piece ends in m_text
  utBoolcoDynArr m_split_flags;     // one for each piece
  mutable utStringcoDynArr m_items; // strings of the first m_made pieces, made on request
  mutable int m_made = 0;
};

// Integers, in decimal.
class igsIntEncoder : public igsEncoder {
 public:
  igsIntEncoder() = default;
  void encode(int value);
  int value() const { return m_value; }

 protected:
  igsIntEncoder(igsIntEncoder const&) = default;
  igsIntEncoder& operator=(igsIntEncoder const&) = default;

 private:
  int m_value = 0;
};

// Real numbers, with the significant digits of the format on top of a stack. Every real
// written has a point, and its exponent, if any, is a D exponent: "1.", "0.5", "1.5D+20".
class igsDoubleEncoder : public igsEncoder {
 public:
  // The most characters that the text of one real may have.
  static constexpr int max_text = 923;

  // Starts the stack with the field width and geometric precision of the resource table.
  igsDoubleEncoder();
  void encode(double value);
  double value() const { return m_value; }

  void push_format(int field_width, int precision);
  // Drops the top format. The format made at construction stays at the bottom for good, so
  // that a stray pop cannot leave the encoder without one.
  void pop_format();
  // The printf format on top of the stack, such as "%-20.15G".
  utString const& current_format() const { return m_formats.peek(); }
  int num_formats() const { return m_formats.size(); }

 protected:
  igsDoubleEncoder(igsDoubleEncoder const&) = default;
  igsDoubleEncoder& operator=(igsDoubleEncoder const&) = default;

 private:
  utString generate_format_string(int field_width, int precision);

  double m_value = 0.0;
  utStringcoStack m_formats;
  intcoStack m_precisions; // the precision of each format, beside it
};

// The text encoders: the value is the text in the output encoding.
class igsTextEncoder : public igsEncoder {
 public:
  utString const& value() const { return m_value; }

 protected:
  igsTextEncoder() = default;
  igsTextEncoder(igsTextEncoder const&) = default;
  igsTextEncoder& operator=(igsTextEncoder const&) = default;
  // Converts the text into the output encoding and keeps it as the value.
  void convert(utString const& value);

  utString m_value;

 private:
  charcoDynArr m_bytes; // conversion store, kept for the next field
};

// Fixed-width text, as it stands.
class igsStrEncoder : public igsTextEncoder {
 public:
  igsStrEncoder() = default;
  void encode(utString const& value);

 protected:
  igsStrEncoder(igsStrEncoder const&) = default;
  igsStrEncoder& operator=(igsStrEncoder const&) = default;
};

// Hollerith strings: "nH" and the n characters of the body, trailing white space cut. The
// prefix is never broken across lines; the body may be.
class igsHolerithEncoder : public igsTextEncoder {
 public:
  igsHolerithEncoder() = default;
  void encode(utString const& value);

 protected:
  igsHolerithEncoder(igsHolerithEncoder const&) = default;
  igsHolerithEncoder& operator=(igsHolerithEncoder const&) = default;
};
