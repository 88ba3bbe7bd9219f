// The Terminate section: the line counts of the S, G, D and P sections that the T line holds.
#pragma once

#include "input/igsIOError.h"
#include "core/igsUnset.h"

class igsFile;
class igsInStream;
class igsOutStream;
class igsTerminateError;
class utOstream;

class igsTerminateSection {
 public:
  // The largest count that the seven columns hold.
  static constexpr int max_lines = 9999999;

  // A free-standing section, owned by no file; every count unset.
  igsTerminateSection() : igsTerminateSection(nullptr) {}
  explicit igsTerminateSection(igsFile* file);
  igsTerminateSection(igsTerminateSection const&) = delete;
  igsTerminateSection& operator=(igsTerminateSection const&) = delete;
  // Copies the counts and the owning file.
  void become(igsTerminateSection const& other);

  int start_lines() const { return m_counts[igsSectionStart]; }
  int global_lines() const { return m_counts[igsSectionGlobal]; }
  int directory_lines() const { return m_counts[igsSectionDirectory]; }
  int parameter_lines() const { return m_counts[igsSectionParameter]; }
  // The count of S, G, D or P; the unset int for any other section.
  int lines(igsFileSection section) const;
  igsFile* file() const { return m_file; }

  // Setters store counts from 1 to max_lines and return 1, or refuse and return 0. The
  // Directory section has two lines to an entity, so its count must be even.
  int set_start_lines(int count) { return set_lines(igsSectionStart, count); }
  int set_global_lines(int count) { return set_lines(igsSectionGlobal, count); }
  int set_directory_lines(int count) { return set_lines(igsSectionDirectory, count); }
  int set_parameter_lines(int count) { return set_lines(igsSectionParameter, count); }
  // The setter of the section's count; 0 for a section other than S, G, D and P.
  int set_lines(igsFileSection section, int count);

  // Reads the T line and keeps the counts as the file holds them; a letter or a count that
  // disagrees with the lines the stream counted raises an error. `blank_lines` becomes 1 if
  // blank lines were passed over. Returns the result of the stream's reset.
  int read(igsInStream& in, int& blank_lines);
  int read(igsInStream& in);
  // Takes the counts of the lines the stream has written and writes the T line; returns the
  // result of the stream's reset.
  int write(igsOutStream& out);
  // Nothing to check: the counts are compared while reading.
  void check() const {}
  void print(utOstream& out) const;

 protected:
  // Keys the error to this section and gives it the file's message stream.
  void tag_error(igsTerminateError* error) const;

 private:
  friend class igsFile;
  void set_file(igsFile* file) { m_file = file; }
  static constexpr int num_counted = igsSectionTerminate; // S, G, D and P

  int m_counts[num_counted] = {igs_unset_int, igs_unset_int, igs_unset_int, igs_unset_int};
  igsFile* m_file;
};

utOstream& operator<<(utOstream& out, igsTerminateSection const& section);
