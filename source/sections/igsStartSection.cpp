#include "sections/igsStartSection.h"

#include "core/igsFile.h"
#include "input/igsInStream.h"
#include "output/igsOutStream.h"
#include "sections/igsStartTerminateErrors.h"
#include "sections/igsStreamSection.h"
#include "support/utOstream.h"

#include <new>

igsStartSection::igsStartSection(igsFile* file) : m_file(file) {
  m_lines.append(utString(""));
}

void igsStartSection::become(igsStartSection const& other) {
  if (this == &other) return;
  m_lines.become(utCopyTag, other.m_lines);
  m_file = other.m_file;
}

int igsStartSection::line(int index, utString& text) const {
  if (index < 0 || index >= m_lines.size()) return 0;
  text = m_lines[index];
  return 1;
}

int igsStartSection::set_line(int index, utString const& text) {
  if (index < 0 || text.is_null() || text.length() > line_width) return 0;
  if (!m_lines.reserve(index + 1)) return 0;
  m_lines[index] = text;
  return 1;
}

int igsStartSection::read(igsInStream& in, int& blank_lines) {
  int count = 0;
  int out_of_sequence = 0;
  // The stream stops at the first line of another section, and for good at a fatal fault.
  while (igs_stream_section(in) == igsSectionStart && !in.frozen()) {
    utString text;
    in.read_string(line_width, text);
    if (in.error_type(igsIOStartLineSequence)) out_of_sequence = 1;
    if (in.error_type(igsIOBlankLine)) blank_lines = 1;
    if (count == 0) m_lines.clear(); // the lines read take the place of the default one
    if (!m_lines.append(text)) break;
    ++count;
  }
  if (out_of_sequence) tag_error(new (std::nothrow) igsStartSectionInvalid);
  return in.reset();
}

int igsStartSection::read(igsInStream& in) {
  int blank_lines = 0;
  return read(in, blank_lines);
}

int igsStartSection::write(igsOutStream& out) {
  out.set_section(igsSectionStart);
  for (utString const& text : m_lines) {
    utString padded = text.is_null() ? utString("") : text;
    while (padded.length() < line_width) padded += ' ';
    out.write_string(line_width, padded);
  }
  return out.reset();
}

int igsStartSection::valid() const {
  for (utString const& text : m_lines)
    if (!text.is_null() && text.length() > line_width) return 0;
  return 1;
}

void igsStartSection::print(utOstream& out) const {
  utOstream nested(utOstreamTabTag, out, 1, 0);
  out << "NoOfLinesInStartSection = " << m_lines.size() << "\n";
  out << "StartSection = {\n";
  for (int i = 0; i < m_lines.size(); ++i) nested << i + 1 << " = \"" << m_lines[i] << "\"\n";
  out << "}\n";
}

void igsStartSection::tag_error(igsStartError* error) const {
  if (error && m_file)
    if (kvnabsOutput* stream = m_file->message_stream()) error->set_message_stream(stream);
}

utOstream& operator<<(utOstream& out, igsStartSection const& section) {
  section.print(out);
  return out;
}
