// Helpers of the output tests: streams that take, count or refuse what is written, and the
// written text cut into its lines.
#pragma once

#include "input/inputTestSupport.h"
#include "output/igsOutStream.h"
#include "support/coResource.h"

#include <functional>
#include <sstream>
#include <streambuf>
#include <string>

namespace igs_output_test {

using igs_input_test::Codes;
using igs_input_test::Lines;
using igs_input_test::record;
using igs_input_test::repeat;

// The lines of a written text. A text that does not end in an LF, or a line that is not 80
// columns wide, gives a line that says so, which no expected line matches.
inline Lines lines_of(std::string const& text) {
  Lines lines;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) {
      lines.push_back("unfinished: " + text.substr(start));
      break;
    }
    std::string line = text.substr(start, end - start);
    if (line.size() != 80) line = "not 80 columns: " + line;
    lines.push_back(line);
    start = end + 1;
  }
  return lines;
}

// What a stream writes while `fill` runs on it, once the stream is gone.
inline Lines written(std::function<void(igsOutStream&)> const& fill) {
  std::ostringstream out;
  {
    igsOutStream stream(&out);
    fill(stream);
  }
  return lines_of(out.str());
}

inline Codes codes_of_stream(igsOutStream& stream) {
  return igs_input_test::codes_of(stream.errors());
}

// Sets an integer key for one test and puts it back afterwards.
struct KeyOverride {
  KeyOverride(intcoResourceKey const& key, int value) : m_key(key), m_old(key.value()) {
    kvn_resource_table_inquire()->set(key, value);
  }
  ~KeyOverride() { kvn_resource_table_inquire()->set(m_key, m_old); }
  intcoResourceKey const& m_key;
  int m_old;
};

// Takes `limit` bytes, then refuses everything; optionally its sync fails too.
class FailingBuf : public std::streambuf {
 public:
  explicit FailingBuf(size_t limit, bool sync_fails = false)
      : m_limit(limit), m_sync_fails(sync_fails) {}
  std::string const& text() const { return m_text; }

 protected:
  std::streamsize xsputn(char const* s, std::streamsize n) override {
    size_t room = m_limit - m_text.size();
    size_t taken = static_cast<size_t>(n) < room ? static_cast<size_t>(n) : room;
    m_text.append(s, taken);
    return static_cast<std::streamsize>(taken);
  }
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    char ch = traits_type::to_char_type(c);
    return xsputn(&ch, 1) == 1 ? c : traits_type::eof();
  }
  int sync() override { return m_sync_fails ? -1 : 0; }

 private:
  std::string m_text;
  size_t m_limit;
  bool m_sync_fails;
};

// Counts what it is given and keeps only the last two lines: for runs of millions of lines.
class TailBuf : public std::streambuf {
 public:
  std::string const& last() const { return m_last; }
  long long bytes() const { return m_bytes; }

 protected:
  std::streamsize xsputn(char const* s, std::streamsize n) override {
    m_last.assign(s, static_cast<size_t>(n));
    m_bytes += n;
    return n;
  }

 private:
  std::string m_last;
  long long m_bytes = 0;
};

} // namespace igs_output_test
