// Message sinks of the host, and the text conversion used by the field coders.
#pragma once

#include "support/coDynArr.h"
#include "support/utString.h"

#include <cstdarg>
#include <iosfwd>
#include <string>

#if defined(__GNUC__)
#define KVN_PRINTF(fmt, args) __attribute__((format(printf, fmt, args)))
#else
#define KVN_PRINTF(fmt, args)
#endif

// A sink for messages. The key names the channel ("iges" for repair warnings,
// "DO_NOT_TRANSLATE" for the library's own line-level warnings); the rest is printf-style.
class kvnabsOutput {
 public:
  virtual ~kvnabsOutput() = default;
  virtual void vmessage(char const* key, char const* format, va_list args) = 0;
  void message(char const* key, char const* format, ...) KVN_PRINTF(3, 4);
};

// Writes messages to a std::ostream.
class kvnabsStreamOutput : public kvnabsOutput {
 public:
  explicit kvnabsStreamOutput(std::ostream& target) : m_target(&target) {}
  void vmessage(char const* key, char const* format, va_list args) override;

 private:
  std::ostream* m_target;
};

// Keeps messages in a string; for hosts that collect them, and for tests.
class kvnabsStringOutput : public kvnabsOutput {
 public:
  void vmessage(char const* key, char const* format, va_list args) override;
  std::string const& text() const { return m_text; }
  void clear() { m_text.clear(); }

 private:
  std::string m_text;
};

// A bundle of an error sink and an output sink; either may be null, and then messages go to
// standard error or standard output.
class kvnabsStream {
 public:
  kvnabsOutput* error_stream() const { return m_error; }
  kvnabsOutput* output_stream() const { return m_output; }
  void set_error_stream(kvnabsOutput* sink) { m_error = sink; }
  void set_output_stream(kvnabsOutput* sink) { m_output = sink; }

 private:
  kvnabsOutput* m_error = nullptr;
  kvnabsOutput* m_output = nullptr;
};

// The one message bundle of the process, through which a host reaches the library's
// line-level warnings.
kvnabsStream& get_igs_stream();

void igs_print_message(char const* format, ...) KVN_PRINTF(1, 2);
void igs_print_error_message(char const* format, ...) KVN_PRINTF(1, 2);

// Formats printf-style into a std::string.
std::string kvn_vformat(char const* format, va_list args);

enum kvaStringInput { kvaStringInputDefault = 0 };
enum kvaStringOutput { kvaStringOutputDefault = 0 };

// Text conversion between an external encoding and the library's strings. The only encoding
// in use, 0, passes the bytes through unchanged.
class kvaString {
 public:
  explicit kvaString(utString const& text) : m_text(text) {}
  kvaString(kvaStringInput, char const* bytes, int count) : m_text(bytes, count) {}
  void convert(kvaStringOutput, coDynArr<char>& out) const;
  utString string() const { return m_text; }

 private:
  utString m_text;
};
