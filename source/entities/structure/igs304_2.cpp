#include "entities/structure/igs304_2.h"

#include "entities/structure/igsAttributeErrors.h"

#include <cctype>

IGS_ENTITY_DEFINE_OWN_DE(igs304_2, igsStructure, 304, 2)

void igs304_2::set_size(int count) {
  m_count = count;
  if (count < 0) return;
  m_lengths.clear();
  m_lengths.expand(count);
}

void igs304_2::set_length(double length, int index) {
  if (0 <= index && index < m_lengths.size()) m_lengths[index] = length;
}

double igs304_2::length(int index) const {
  return 0 <= index && index < m_lengths.size() ? m_lengths[index] : 0.0;
}

// The lengths are read as the record holds them, up to the count, without sizing the array
// for a count that the record may not hold.
int igs304_2::read_pd_data(igsInStream& in) {
  int count = 0;
  igs_read_field(in, count);
  m_count = count;
  if (!igs_read_members(in, count, m_lengths, [&in] {
        double length = 0.0;
        igs_read_field(in, length);
        return length;
      }))
    return 0;
  utString pattern;
  igs_read_field(in, pattern);
  m_pattern = pattern;
  return 1;
}

void igs304_2::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_lengths.size());
  for (double length : m_lengths) igs_write_field(out, length);
  igs_write_field(out, m_pattern);
}

void igs304_2::print_pd_data(utOstream&) const {}

void igs304_2::check_pd() const {
  for (char c : m_pattern.view())
    if (!std::isxdigit(static_cast<unsigned char>(c))) {
      raise_error<igs304_2InvalidString>();
      break;
    }
  if (m_count < 1) raise_error<igs304_2InvalidSize>();
  for (double length : m_lengths)
    if (length < 0.0) {
      raise_error<igs304_2InvalidSegmentLength>();
      break;
    }
}

void igs304_2::check_de() const {
  if (!directory_entry().line_font().names_pattern())
    raise_error<igs304_2InvalidDELineFontPattern>();
  check_directory_entry(IGS_DE_ALL & ~IGS_DE_LINE_FONT);
}
