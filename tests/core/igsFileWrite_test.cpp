// Writing whole files made by our own code: the renumbering after deletions, the temporary
// file whatever happens to the destination, the parametric precision and a back pointer beyond
// its columns. Every written file passes the structural check. The records of each entity class and
// their round trip are the family tests'.
#include "core/objectTestSupport.h"
#include "core/writtenFileCheck.h"

#include "core/igsFileErrors.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igsPolyline.h"
#include "output/outputTestSupport.h"
#include "support/kvuTempFile.h"

#include <filesystem>
#include <fstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

using igs_output_test::FailingBuf;
using igs_output_test::KeyOverride;

class WriteTest : public FileTest {
 protected:
  WriteTest() {
    // A folder of its own next to a name nothing else uses, so that it holds only what the
    // test's writes leave there.
    fs::path unique(kvu_make_temp_file_name(utString("")).c_str());
    fs::path dir = unique.string() + ".d";
    fs::create_directory(dir);
    fs::remove(unique);
    write_dir = dir;
    file->set_write_dir(utString(dir.string()));
    file->set_message_stream(&messages);
    set_fixed_global_section(*file);
  }
  ~WriteTest() override {
    std::error_code ec;
    fs::remove_all(write_dir, ec);
  }

  // Writes the file, expecting the result; the text is checked when the write succeeds, and
  // either way no temporary file stays behind.
  std::string written(int expected = 1) {
    std::ostringstream text;
    std::ostringstream notes;
    utOstream out(notes);
    EXPECT_EQ(file->write(text, out), expected);
    if (expected) {
      EXPECT_EQ(igs_test::written_file_faults(text.str()), std::vector<std::string>{});
    }
    EXPECT_TRUE(fs::is_empty(write_dir));
    return text.str();
  }

  static igs116* point(giPoint3 const& at) {
    auto* p = new igs116;
    p->set_point(at);
    return p;
  }
  static igs110* line(giPoint3 const& start, giPoint3 const& end) {
    auto* l = new igs110;
    l->set_start_point(start);
    l->set_end_point(end);
    return l;
  }
  static igs100* arc(double z, giPoint2 const& centre, giPoint2 const& start, giPoint2 const& end) {
    auto* a = new igs100;
    a->set_z_level(z);
    a->set_centre(centre);
    a->set_start_point(start);
    a->set_end_point(end);
    return a;
  }
  // The lines of one section, without their LF.
  static std::vector<std::string> section_lines(std::string const& text, char letter) {
    std::vector<std::string> lines;
    for (size_t at = 0; at + 81 <= text.size(); at += 81)
      if (text[at + 72] == letter) lines.push_back(text.substr(at, 80));
    return lines;
  }
  static std::string record(std::string const& text, int de) {
    return igs_test::written_record(text, de);
  }

  fs::path write_dir;
  kvnabsStringOutput messages;
};

// A node whose record moves the back pointer past its seven columns, as the record after the
// five millionth entity would: so many entities do not fit into a unit test.
class testFarNode : public testNode {
 protected:
  void write_pd_data(igsOutStream& out) override {
    out.write_integer(1);
    out.set_backpointer(igsOutBufferFormatter::max_number + 2);
    out.write_integer(2);
  }
};

TEST_F(WriteTest, NoTemporaryFileStaysWhateverHappensToTheDestination) {
  point(giPoint3(1.0, 2.0, 3.0));
  auto* many = new igsPolyline; // a record over many lines
  many->set_dimensionality(igsPolylineXYZ);
  for (int i = 0; i < 40; ++i) many->set_point_3d(i, giPoint3(0.125, 0.25, 0.5));
  line(giPoint3(0.0, 0.0, 0.0), giPoint3(1.0, 1.0, 1.0));
  std::string const full = written();
  size_t const line = 81;
  size_t const d_start = 4 * line;           // S and three G lines
  size_t const p_start = d_start + 6 * line; // three entities
  // The destination fails within S, G, D, the copied P lines and T; once also for a stream
  // that would throw: nothing is thrown at the caller.
  for (size_t limit : {size_t(0), size_t(40), 2 * line + 5, d_start + 100, p_start + 10,
                       full.size() - line / 2, full.size() - 1}) {
    for (bool throwing : {false, true}) {
      FailingBuf buffer(limit);
      std::ostream stream(&buffer);
      if (throwing) stream.exceptions(std::ios::badbit | std::ios::failbit);
      std::ostringstream notes;
      utOstream out(notes);
      EXPECT_EQ(file->write(stream, out), 0) << limit;
      // A stream that would throw keeps its state: the codes of the failure stay inside.
      EXPECT_EQ(stream.bad(), !throwing) << limit;
      EXPECT_EQ(buffer.text(), full.substr(0, limit)) << limit;
      EXPECT_TRUE(fs::is_empty(write_dir)) << limit;
    }
  }
  // A destination that refuses the copy of the P lines once and takes what follows, on a
  // stream that would throw and so is not marked bad: the write still fails.
  struct RefusesTheParameterLines : std::stringbuf {
    std::streamsize refuse;
    explicit RefusesTheParameterLines(std::streamsize n) : refuse(n) {}
    std::streamsize xsputn(char const* s, std::streamsize n) override {
      if (n != refuse) return std::stringbuf::xsputn(s, n);
      refuse = -1;
      return 0;
    }
  } refusing(static_cast<std::streamsize>(full.size() - p_start - line));
  std::ostream once(&refusing);
  once.exceptions(std::ios::badbit | std::ios::failbit);
  std::ostringstream once_notes;
  utOstream once_out(once_notes);
  EXPECT_EQ(file->write(once, once_out), 0);
  EXPECT_EQ(refusing.refuse, -1); // the copy was refused
  // A destination that failed before the write takes nothing.
  std::ostringstream failed;
  failed.setstate(std::ios::failbit);
  std::ostringstream notes;
  utOstream out(notes);
  EXPECT_EQ(file->write(failed, out), 0);
  EXPECT_EQ(failed.str(), "");
  // The file is unharmed: a good destination receives it whole again.
  EXPECT_EQ(written(), full);
}

TEST_F(WriteTest, ABackPointerBeyondSevenDigitsFailsTheWriteWithItsError) {
  point(giPoint3(1.0, 2.0, 3.0));
  new testFarNode;
  point(giPoint3(4.0, 5.0, 6.0));
  // Another file is current; the error still goes to the log of the file written.
  auto other = std::make_unique<igsFile>();
  std::string text = written(0);
  EXPECT_EQ(&igsObjectSystem::file(), other.get());
  EXPECT_EQ(section_lines(text, 'D').size(), 0u);
  EXPECT_EQ(section_lines(text, 'T').size(), 0u);
  igsObjectSystem::set_current_file(*file);
  std::vector<std::string> errors;
  for (igsSimpleSectionLogIT it(&structure_log()); ++it;) {
    errors.push_back(it()->objtype().name());
    EXPECT_EQ(it()->fix(), 0);
  }
  EXPECT_EQ(errors, std::vector<std::string>{"igsFileBackPtrTooLarge"});
  EXPECT_EQ(messages.text(),
            "Error: IGES limit of 5 million entities exceeded.\nSee the Frequently Asked "
            "Questions in the Help for more details");
}

} // namespace
