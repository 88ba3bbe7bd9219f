#include "sections/igsTerminateSection.h"

#include "core/igsFile.h"
#include "input/igsInStream.h"
#include "output/igsOutStream.h"
#include "sections/igsStartTerminateErrors.h"
#include "support/utOstream.h"

#include <new>

namespace {

// The groups of the T line in order, each a letter and a count of seven columns.
constexpr igsFileSection counted_sections[] = {igsSectionStart, igsSectionGlobal,
                                               igsSectionDirectory, igsSectionParameter};
constexpr int count_width = 7;

char const* const count_labels[] = {
    "NoOfLinesInStartSection = ", "NoOfLinesInGlobalSection = ", "NoOfLinesInDirectorySection = ",
    "NoOfLinesInParameterSection = "};

int counted(igsFileSection section) {
  return section >= igsSectionStart && section < igsSectionTerminate;
}

utString letter_of(igsFileSection section) {
  char letter = igs_section_letter(section);
  return utString(&letter, 1);
}

} // namespace

igsTerminateSection::igsTerminateSection(igsFile* file) : m_file(file) {}

void igsTerminateSection::become(igsTerminateSection const& other) {
  for (igsFileSection section : counted_sections) m_counts[section] = other.m_counts[section];
  m_file = other.m_file;
}

int igsTerminateSection::lines(igsFileSection section) const {
  return counted(section) ? m_counts[section] : igs_unset_int;
}

int igsTerminateSection::set_lines(igsFileSection section, int count) {
  if (!counted(section) || count < 1 || count > max_lines) return 0;
  if (section == igsSectionDirectory && count % 2 != 0) return 0;
  m_counts[section] = count;
  return 1;
}

int igsTerminateSection::read(igsInStream& in, int& blank_lines) {
  for (igsFileSection section : counted_sections) {
    utString letter;
    in.read_string(1, letter);
    if (!(letter == letter_of(section)))
      tag_error(new (std::nothrow) igsTerminateSectionBadName(section, letter));
    int count = 0;
    in.read_integer(count_width, count);
    if (in.error_type(igsIOBlankLine)) blank_lines = 1;
    m_counts[section] = count;
    int lines_counted = in.num_lines(section);
    if (count != lines_counted)
      tag_error(new (std::nothrow) igsTerminateSectionBadCount(section, count, lines_counted));
  }
  return in.reset();
}

int igsTerminateSection::read(igsInStream& in) {
  int blank_lines = 0;
  return read(in, blank_lines);
}

int igsTerminateSection::write(igsOutStream& out) {
  out.set_section(igsSectionTerminate);
  for (igsFileSection section : counted_sections) m_counts[section] = out.num_lines(section);
  for (igsFileSection section : counted_sections) {
    out.write_string(1, letter_of(section));
    out.write_integer(count_width, m_counts[section]);
  }
  // Finishes the T line here, so that the result says whether it reached the destination.
  out.set_section(igsSectionNone);
  return out.reset();
}

void igsTerminateSection::print(utOstream& out) const {
  utOstream nested(utOstreamTabTag, out, 1, 0);
  out << "TerminateSection = {\n";
  for (igsFileSection section : counted_sections)
    nested << count_labels[section] << m_counts[section] << "\n";
  out << "}\n";
}

void igsTerminateSection::tag_error(igsTerminateError* error) const {
  if (!error) return;
  // The repair changes the section through the key; sections are never made const.
  error->set_key(const_cast<igsTerminateSection*>(this));
  if (m_file)
    if (kvnabsOutput* stream = m_file->message_stream()) error->set_message_stream(stream);
}

utOstream& operator<<(utOstream& out, igsTerminateSection const& section) {
  section.print(out);
  return out;
}
