// The Start section: the free text of the S lines, 72 columns each.
#pragma once

#include "support/coNames.h"

class igsFile;
class igsInStream;
class igsOutStream;
class igsStartError;
class utOstream;

class igsStartSection {
 public:
  // The text columns of a line.
  static constexpr int line_width = 72;

  // A free-standing section, owned by no file. It holds one empty line.
  igsStartSection() : igsStartSection(nullptr) {}
  explicit igsStartSection(igsFile* file);
  igsStartSection(igsStartSection const&) = delete;
  igsStartSection& operator=(igsStartSection const&) = delete;
  // Copies the lines and the owning file.
  void become(igsStartSection const& other);

  int number_of_lines() const { return m_lines.size(); }
  // The line at the 0-based index; 0 if the index is out of range.
  int line(int index, utString& text) const;
  // Refuses a negative index, a null string and a text longer than a line; a line beyond the
  // end adds lines up to it, null ones between.
  int set_line(int index, utString const& text);
  igsFile* file() const { return m_file; }

  // Reads the S lines from where the stream stands, all 72 columns of each, and raises
  // igsStartSectionInvalid if their numbers were out of sequence. A file without S lines
  // leaves the lines as they were. `blank_lines` becomes 1 if blank lines were passed over.
  // Returns the result of the stream's reset.
  int read(igsInStream& in, int& blank_lines);
  int read(igsInStream& in);
  // Writes one S line for each line, blank-padded to 72 columns; returns the result of the
  // stream's reset.
  int write(igsOutStream& out);
  // No line is longer than 72 characters.
  int valid() const;
  void print(utOstream& out) const;

 protected:
  // Gives the error the file's message stream.
  void tag_error(igsStartError* error) const;

 private:
  friend class igsFile;
  void set_file(igsFile* file) { m_file = file; }
  utStringcoDynArr m_lines{1, 1};
  igsFile* m_file;
};

utOstream& operator<<(utOstream& out, igsStartSection const& section);
