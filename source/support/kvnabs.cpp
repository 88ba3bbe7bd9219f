#include "support/kvnabs.h"

#include <cstdio>
#include <ostream>
#include <vector>

void kvnabsOutput::message(char const* key, char const* format, ...) {
  va_list args;
  va_start(args, format);
  vmessage(key, format, args);
  va_end(args);
}

std::string kvn_vformat(char const* format, va_list args) {
  va_list copy;
  va_copy(copy, args);
  int n = std::vsnprintf(nullptr, 0, format, copy);
  va_end(copy);
  if (n <= 0) return {};
  std::string text(static_cast<size_t>(n), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, args);
  return text;
}

void kvnabsStreamOutput::vmessage(char const*, char const* format, va_list args) {
  *m_target << kvn_vformat(format, args);
  m_target->flush();
}

void kvnabsStringOutput::vmessage(char const*, char const* format, va_list args) {
  m_text += kvn_vformat(format, args);
}

kvnabsStream& get_igs_stream() {
  static kvnabsStream iges_stream;
  return iges_stream;
}

static void print_to(kvnabsOutput* sink, std::FILE* fallback, char const* format, va_list args) {
  if (sink) {
    sink->vmessage("DO_NOT_TRANSLATE", format, args);
  } else {
    std::vfprintf(fallback, format, args);
    std::fflush(fallback);
  }
}

void igs_print_message(char const* format, ...) {
  va_list args;
  va_start(args, format);
  print_to(get_igs_stream().output_stream(), stdout, format, args);
  va_end(args);
}

void igs_print_error_message(char const* format, ...) {
  va_list args;
  va_start(args, format);
  print_to(get_igs_stream().error_stream(), stderr, format, args);
  va_end(args);
}

void kvaString::convert(kvaStringOutput, coDynArr<char>& out) const {
  out.clear();
  if (out.reserve(m_text.length()))
    for (int i = 0; i < m_text.length(); ++i) out.append(m_text.c_str()[i]);
}
