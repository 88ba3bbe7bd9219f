// Field decoders: each turns the characters of one field into one value.
#pragma once

#include "input/igsIOCodeList.h"
#include "input/igsNumberText.h"
#include "support/coNames.h"
#include "support/utString.h"

// A decoder has two ways of working. The fast way converts the text at a pointer into the line
// in one call and says how many characters it used; nearly every field is a clean number and
// goes this way. The slow way takes the field one character at a time, so that it can cross a
// line end, pass over blanks and say what was unusual about the field. The engine tries the
// fast way first and falls back to the slow way from the same start.
class igsDecoder {
 public:
  explicit igsDecoder(int fast_available);
  virtual ~igsDecoder();
  igsDecoder(igsDecoder const&) = delete;
  igsDecoder& operator=(igsDecoder const&) = delete;

  // Decodes the field at the text; returns the number of characters used.
  virtual int decode_fast(char const*) { return 0; }
  // Takes one character of the field. cont becomes 0 when the decoder wants no more;
  // check_delimiter says whether the next character may end the field as a delimiter.
  virtual void accept_character(char c, int& cont, int& check_delimiter) = 0;
  // Makes the value from the characters taken.
  virtual void decode() = 0;
  virtual void reset_fast_decode() = 0;
  virtual void reset_slow_decode() = 0;

  int fast_decode_avail() const { return m_fast_available; }
  // Appends the recorded codes and forgets them.
  void collect_errors(igsIOErrorcoDynArr& errors) { m_errors.collect(errors); }
  unsigned code_bits() const { return m_errors.codes(); }
  void drop_codes() { m_errors.drop(); }

 protected:
  // Appends one character to the text; 0 if there was no room.
  int add_to_buffer(char c) { return m_text.append(c); }
  char const* buffer() const { return m_text.data(); }
  char* buffer() { return m_text.data(); }
  void reset() { m_text.shrink(0); }
  void reset_buffer() { m_text.shrink(0); }
  void set_error(igsIOErrorCode code) { m_errors.record(code); }
  // A field that used any characters held a value.
  void check_for_default(char const*, int length) {
    if (length > 0) set_error(igsIOValuePresent);
  }
  utString decode_string(char const* text) const;
  // Ends the text with a NUL so that it can be converted; 0 if there was no room.
  int terminate_text() { return add_to_buffer('\0'); }

 private:
  int m_fast_available;
  charcoDynArr m_text;
  igsIOCodeList m_errors;
};

// The slow way of every decoder: a state machine over the characters of a field. Newline
// means the byte 10 that the checker put at a data end. The number states join the characters
// of a value across blanks and line ends and record that they did:
//
//   state            newline               blank                  other character
//   start            stay                  stay                   value present; store
//   storing          split line            embedded blank         store it
//   embedded blank   embedded split        stay                   embedded blank; store
//   split line       stay                  embedded split         split value; store
//   embedded split   stay                  stay                   embedded blank, split value;
//                                                                 store
//
// The string state takes the body of a text field. The store steps are the decoder's own.
class igsStateDecoder : public igsDecoder {
 public:
  void accept_character(char c, int& cont, int& check_delimiter) override;
  void decode() override {
    if (m_active) active_decode();
  }

 protected:
  enum State {
    start_state,
    storing_state,
    embedded_blank_state,
    split_line_state,
    embedded_split_state,
    storing_string_state,
    frozen_state
  };

  igsStateDecoder(int fast_available, State storing)
      : igsDecoder(fast_available), m_storing(storing) {}
  void use_character(char c);
  // The slow way starts over; the fast way and a finished slow way leave the machine stopped.
  void start() {
    m_state = start_state;
    m_active = 1;
    reset_buffer();
  }
  void stop() {
    m_state = frozen_state;
    m_active = 0;
  }
  void passive_decode() {}
  // The store step of the storing state and of the string state.
  virtual void store_character(char c) { add_to_buffer(c); }
  virtual void string_character(char) {}
  virtual void active_decode() = 0;

  State m_state = frozen_state;
  int m_active = 0;

 private:
  State m_storing;
};

// A decoder with a value of its own, which goes back to its default when a field starts.
template <class Value> class igsValueDecoder : public igsStateDecoder {
 public:
  void reset_fast_decode() override { m_value = Value(); }
  void reset_slow_decode() override {
    start();
    m_value = Value();
  }
  Value const& decoded_value() const { return m_value; }

 protected:
  using igsStateDecoder::igsStateDecoder;
  Value m_value{};
};

// Integer fields.
class igsIntDecoder final : public igsValueDecoder<int> {
 public:
  igsIntDecoder() : igsValueDecoder(1, storing_state) {}
  int decode_fast(char const* text) override {
    char const* end = nullptr;
    m_value = igs_parse_int(text, end);
    stop();
    int used = static_cast<int>(end - text);
    check_for_default(text, used);
    return used;
  }

 protected:
  void active_decode() override;
};

// Real fields; a D exponent counts as an E.
class igsDoubleDecoder final : public igsValueDecoder<double> {
 public:
  igsDoubleDecoder() : igsValueDecoder(1, storing_state) {}
  int decode_fast(char const* text) override;

 protected:
  void store_character(char c) override { add_to_buffer(c == 'D' || c == 'd' ? 'E' : c); }
  void active_decode() override;
};

// Fixed-width text fields: the columns as they stand, blanks included. The Directory Entry
// reads two of them per entity, nearly always the same texts (blanks), so the last two texts
// made are kept and shared again when a field repeats one of them.
class igsStrDecoder final : public igsValueDecoder<utString> {
 public:
  igsStrDecoder() : igsValueDecoder(1, storing_string_state) {}
  int decode_fast(char const* text) override;

 protected:
  void string_character(char c) override;
  void active_decode() override;

 private:
  utString recent_or_new(char const* text);
  utString m_recent[2];
  int m_oldest = 0;
};

// Hollerith strings, "nH" and n characters. There is no fast way. A body shorter than declared
// takes in the delimiters behind it; a longer one loses doubled blanks first, then its tail.
class igsHolerithDecoder final : public igsValueDecoder<utString> {
 public:
  igsHolerithDecoder() : igsValueDecoder(0, storing_state) {}
  void accept_character(char c, int& cont, int& check_delimiter) override;
  void reset_fast_decode() override {
    igsValueDecoder::reset_fast_decode();
    m_length = 0;
    m_count = 0;
  }
  void reset_slow_decode() override {
    start();
    reset_fast_decode();
  }
  // Whether body characters are still due.
  int char_expected() const { return m_count < m_length; }

 protected:
  void store_character(char c) override;
  void string_character(char c) override;
  void active_decode() override;

 private:
  void decode_holerith_length();
  utString truncate_string();

  int m_length = 0;
  int m_count = 0;
};
