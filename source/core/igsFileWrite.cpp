// Writing a whole file. The Directory section stands before the Parameter section but holds
// each entity's parameter pointer and line count, so the parameter data go first to a
// temporary file, whose finished lines are then copied behind the D lines.
#include "core/igsCurrentFileScope.h"
#include "core/igsFile.h"
#include "core/igsFileErrors.h"
#include "core/igsObject.h"
#include "output/igsOutStream.h"
#include "sections/igsDirectoryEntry.h"
#include "support/coResource.h"
#include "support/kvuTempFile.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>

namespace {

// The chunk in which the temporary file is written and read: large, so that the lines pass
// through few system calls.
constexpr std::streamsize chunk_size = 1 << 16;

// The temporary file of the parameter data. It is made empty under a name that nothing else
// uses and removed with this object, whichever way the writing ends.
class igsParameterFile {
 public:
  explicit igsParameterFile(utString const& directory)
      : m_name(kvu_make_temp_file_name(directory)), m_buffer(new (std::nothrow) char[chunk_size]) {
    if (m_name.is_null()) return;
    // Without a buffer of its own the stream keeps its default one.
    if (m_buffer) m_stream.rdbuf()->pubsetbuf(m_buffer.get(), chunk_size);
    m_stream.open(m_name.c_str(), std::ios::out | std::ios::binary | std::ios::trunc);
  }
  ~igsParameterFile() {
    m_stream.close();
    if (!m_name.is_null()) std::remove(m_name.c_str());
  }
  igsParameterFile(igsParameterFile const&) = delete;
  igsParameterFile& operator=(igsParameterFile const&) = delete;

  int is_open() const { return m_stream.is_open(); }
  std::ostream& stream() { return m_stream; }
  char const* name() const { return m_name.c_str(); }
  // Closes the stream; 1 if everything written reached the file.
  int close() {
    m_stream.close();
    return !m_stream.fail();
  }

 private:
  utString m_name;
  std::unique_ptr<char[]> m_buffer;
  std::ofstream m_stream; // goes before its buffer
};

// Marks the stream bad, unless it was told to throw for that: nothing leaves the library.
void mark_bad(std::ostream& stream) {
  if (((stream.rdstate() | std::ios::badbit) & stream.exceptions()) == 0)
    stream.setstate(std::ios::badbit);
}

} // namespace

int igsFile::write(std::ostream& stream, utOstream& messages) {
  igsCurrentFileScope current(*this);
  compress();
  igsOutStream out(&stream);
  if (!m_start_section.write(out)) return 0;
  if (!m_global_section.write(out, messages)) return 0;
  if (!write_data_section(stream, out)) return 0;
  return m_terminate_section.write(out);
}

int igsFile::write_data_section(std::ostream& stream, igsOutStream& out) {
  int const width = kvnOptDoubleFieldWidth.value();
  int const parametric_precision = kvnOptDoubleParametricPrecision.value();
  igsParameterFile parameters(m_write_dir);
  if (!parameters.is_open()) return 0;

  // Leaving the Global section ends it on the real stream; the P lines go to the file.
  out.set_section(igsSectionParameter);
  out.set_destination(&parameters.stream());
  int last = out.num_lines(igsSectionParameter);
  int written = 1;
  for (igsFileIT it(this); written && ++it;) {
    igsObject* object = it();
    igsDirectoryEntry& de = object->directory_entry();
    // Parameter space values have their own precision.
    int parametric = de.status_flags().entity_use_value() == igsUse2DParametric;
    if (parametric) out.push_double_format(width, parametric_precision);
    object->write(out);
    if (parametric) out.pop_double_format();
    // Ends the record; the next one points to the next entity, as compress numbered them.
    out.set_backpointer(object->de_number() + 2);
    int lines = out.num_lines(igsSectionParameter);
    de.set_start_of_parameter_data(last + 1);
    de.set_parameter_line_count(lines - last);
    last = lines;
    written = out.reset();
  }
  if (out.error_type(igsIOLineNumberTooLarge))
    tag_error(new (std::nothrow) igsFileLineNumberTooLarge());
  if (out.error_type(igsIOBackpointerTooLarge))
    tag_error(new (std::nothrow) igsFileBackPtrTooLarge());

  out.set_destination(&stream);
  out.set_section(igsSectionDirectory);
  // Collecting the codes above may have ended a freeze; a walk that stopped still fails.
  if (!out.reset() || !written || !parameters.close()) return 0;
  if (!write_directory_entries(out)) return 0;
  return write_parameter_data_section(stream, parameters.name());
}

int igsFile::write_directory_entries(igsOutStream& out) {
  int written = 1;
  for (igsFileIT it(this); written && ++it;) {
    it()->directory_entry().write(out);
    written = out.reset();
  }
  if (out.error_type(igsIOLineNumberTooLarge))
    tag_error(new (std::nothrow) igsFileLineNumberTooLarge());
  return out.reset() && written;
}

int igsFile::write_parameter_data_section(std::ostream& stream, char const* temp_name) {
  std::error_code error;
  std::uintmax_t const size = std::filesystem::file_size(temp_name, error);
  std::ifstream parameters(temp_name, std::ios::in | std::ios::binary);
  if (error || !parameters.is_open() || stream.fail()) return 0;
  // A large chunk if it can be had; a small one does the same.
  std::unique_ptr<char[]> large(new (std::nothrow) char[chunk_size]);
  char small[1024];
  char* chunk = large ? large.get() : small;
  std::streamsize const chunk_length = large ? chunk_size : std::streamsize(sizeof small);
  // The lines are finished: they go over as they are, straight from one stream buffer to the
  // other. A read that ends early fails the copy, as a write that does.
  std::streambuf* source = parameters.rdbuf();
  std::streambuf* target = stream.rdbuf();
  std::uintmax_t copied = 0;
  for (std::streamsize n; (n = source->sgetn(chunk, chunk_length)) > 0; copied += std::uintmax_t(n))
    if (!target || target->sputn(chunk, n) != n) {
      mark_bad(stream);
      return 0;
    }
  return copied == size && !stream.fail();
}
