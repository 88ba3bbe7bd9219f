#include "core/objectTestSupport.h"

#include "core/igsFileErrors.h"

#include <functional>
#include <vector>

namespace {

// Writes the arguments of an error as "name=value" pairs.
class ArgumentText : public igsErrorArgumentVisitor {
 public:
  void argument(char const* name, int value) override { add(name, std::to_string(value)); }
  void argument(char const* name, double value) override { add(name, std::to_string(value)); }
  void argument(char const* name, char value) override { add(name, std::string(1, value)); }
  void argument(char const* name, utString const& value) override {
    add(name, std::string(value.view()));
  }
  std::string text;

 private:
  void add(char const* name, std::string const& value) {
    text += (text.empty() ? "" : " ") + std::string(name) + "=" + value;
  }
};

struct FileErrorCase {
  char const* name;
  std::function<igsError*()> make;
  igsLogID section;
  int key;
  char const* arguments;
  int fixed;
  char const* message;
};

int const unset = igsIndexedError::unset_key;
char const* const too_many_lines =
    "Error: IGES limit of 10 million lines per section exceeded.\nSee the Frequently Asked "
    "Questions in the Help for more details";
char const* const too_many_entities =
    "Error: IGES limit of 5 million entities exceeded.\nSee the Frequently Asked Questions in the "
    "Help for more details";

std::vector<FileErrorCase> const file_error_cases = {
    {"igsFileDEEntityTypeMismatch", [] { return new igsFileDEEntityTypeMismatch(41, 110, 112); },
     igsStructureLog, 41, "line=41 first_type=110 second_type=112", 0, ""},
    {"igsFileInvalidIGESEntity", [] { return new igsFileInvalidIGESEntity(43, 999); },
     igsStructureLog, 43, "line=43 entity_type=999", 0, ""},
    {"igsFileDefaultedForm", [] { return new igsFileDefaultedForm(45, 110, 7); }, igsStructureLog,
     45, "line=45 entity_type=110 form=7", 1, ""},
    {"igsFileUnknownForm", [] { return new igsFileUnknownForm(47, 106, 99); }, igsStructureLog, 47,
     "line=47 entity_type=106 form=99", 0, ""},
    {"igsFileDENullCharacters", [] { return new igsFileDENullCharacters(49); }, igsStructureLog, 49,
     "line=49", 1,
     "Warning : There were null characters found in line 49 of the Directory Entry "
     "section.\nThese have been replaced with spaces.\n"},
    {"igsFileIncorrectStartOfPD", [] { return new igsFileIncorrectStartOfPD(3, 12, 10); },
     igsStructureLog, 3, "de_number=3 line_found=12 line_in_de=10", 1, ""},
    {"igsFileIncorrectPDLineCount", [] { return new igsFileIncorrectPDLineCount(5, 4, 2); },
     igsStructureLog, 5, "de_number=5 lines_found=4 count_in_de=2", 1, ""},
    {"igsFileNoPDData", [] { return new igsFileNoPDData(7); }, igsStructureLog, 7, "de_number=7", 1,
     "Warning : There is no Parameter Data associated with object DE 7.\n"},
    {"igsFilePDEntityTypeMismatch", [] { return new igsFilePDEntityTypeMismatch(9, 100); },
     igsStructureLog, 9, "de_number=9 type_read=100", 0, ""},
    {"igsFileCorruptObjectData", [] { return new igsFileCorruptObjectData(11); }, igsStructureLog,
     11, "de_number=11", 0, ""},
    {"igsFilePDNullCharacters", [] { return new igsFilePDNullCharacters(13); }, igsStructureLog, 13,
     "de_number=13", 1,
     "Warning : There were null characters found in the Parameter Data for DE 13.\nThese have "
     "been replaced with spaces.\n"},
    {"igsFileDeletedNullEntity", [] { return new igsFileDeletedNullEntity(15); }, igsStructureLog,
     15, "de_number=15", 0, ""},
    {"igsFileDeletedUnknownEntity", [] { return new igsFileDeletedUnknownEntity(17); },
     igsStructureLog, 17, "de_number=17", 0, ""},
    {"igsFilePrematureObjectEnd", [] { return new igsFilePrematureObjectEnd(19); }, igsStructureLog,
     19, "de_number=19", 1, ""},
    {"igsFileObjectExtraData", [] { return new igsFileObjectExtraData(21); }, igsStructureLog, 21,
     "de_number=21", 1, ""},
    {"igsFileInvalidLineNumbers", [] { return new igsFileInvalidLineNumbers; }, igsTerminateLog,
     unset, "", 1,
     "Warning : There were out of sequence line numbers found in this file.\nThis may cause some "
     "data to be processed incorrectly.\n"},
    {"igsFileBlankLine", [] { return new igsFileBlankLine; }, igsTerminateLog, unset, "", 1,
     "Warning : There are blank line(s) in this file.\n"},
    {"igsFileLineNumberTooLarge", [] { return new igsFileLineNumberTooLarge; }, igsStructureLog,
     unset, "", 0, too_many_lines},
    {"igsFileBackPtrTooLarge", [] { return new igsFileBackPtrTooLarge; }, igsStructureLog, unset,
     "", 0, too_many_entities},
};

using FileErrorTest = FileTest;

TEST_F(FileErrorTest, EachFileErrorHasItsLogKeyArgumentsRepairAndMessage) {
  kvnabsStringOutput sink;
  file->set_message_stream(&sink);
  for (FileErrorCase const& c : file_error_cases) {
    SCOPED_TRACE(c.name);
    igsError* e = c.make();
    file->tag_error(e);
    EXPECT_STREQ(e->objtype().name(), c.name);
    EXPECT_EQ(e->objtype().id_string(), c.name);
    EXPECT_EQ(e->log(), &log().get_section_log(c.section));
    if (c.section == igsStructureLog) {
      EXPECT_TRUE(e->typeof(igsStructureError::type()));
      EXPECT_EQ(static_cast<igsIndexedError*>(e)->key(), c.key);
      if (c.key != unset) {
        EXPECT_EQ(structure_log().num_errors(c.key), 1);
      }
    } else {
      EXPECT_TRUE(e->typeof(igsTerminateError::type()));
    }
    ArgumentText arguments;
    e->visit_arguments(arguments);
    EXPECT_EQ(arguments.text, c.arguments);

    sink.clear();
    EXPECT_EQ(e->fix(), c.fixed);
    EXPECT_EQ(sink.text(), c.message);

    // Untagged: the same answer, in silence.
    igsError* silent = c.make();
    sink.clear();
    EXPECT_EQ(silent->fix(), c.fixed);
    EXPECT_EQ(sink.text(), "");
  }
  EXPECT_EQ(structure_log().num_errors(), 2 * 17);
  EXPECT_EQ(log().get_section_log(igsTerminateLog).num_errors(), 2 * 2);
}

TEST_F(FileErrorTest, AnEntityTagsStructureErrorsWithItsFilesStreamOnly) {
  kvnabsStringOutput sink;
  auto* node = new testNode(1);
  node->raise_structure_error(); // before the stream is set: silent
  file->set_message_stream(&sink);
  node->raise_structure_error();
  std::vector<kvnabsOutput*> streams;
  for (igsSimpleSectionLogIT it(&structure_log()); ++it;) {
    streams.push_back(it()->message_stream());
    EXPECT_EQ(static_cast<igsIndexedError*>(it())->key(), node->de_number());
  }
  EXPECT_EQ(streams, (std::vector<kvnabsOutput*>{nullptr, &sink}));
  EXPECT_EQ(node->num_logged_errors(), 2);
}

} // namespace
