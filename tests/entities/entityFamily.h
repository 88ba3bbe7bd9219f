// The table-driven tests of an entity family. A family brings three tables and no test code:
//
//   - corpus rows: for each class, the values that its accessors give, in the order of the
//     parameters of its P lines (CorpusRows, in a <family>_corpus_test.cpp). The corpus test
//     reads every real file and holds each entity to an independent parse of its P lines.
//   - a family file: one entity or more of every class, as records (Family). It must read to
//     the classes of the entity table, check clean, print as its golden print
//     (tests/entities/<family>/<family>.print), make the round trip, and stand as a fuzz seed
//     (fuzz/seeds/<family>.igs).
//   - damage rows: a small file of records, the errors that its check raises, what a repair
//     prints, and the errors that stay (Damage). Each row is read, checked, cleaned, checked
//     again and taken through the round trip; clean(1) must then leave a file that checks
//     clean.
//
// IGS_DAMAGE_FILES=DIR in the environment writes the file of each damage row to DIR (for an
// independent reader to load what igs repair makes of it).
// IGS_UPDATE_FIXTURES=1 in the environment writes the seeds and the golden prints anew
// instead of comparing them.
#pragma once

#include "core/igsFile.h"
#include "core/igsObjectSystem.h"
#include "core/readTestSupport.h"
#include "core/roundTripCheck.h"
#include "entities/entityTestSupport.h"
#include "errors/igsErrorLog.h"
#include "support/giGeometry.h"
#include "support/testSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace igs_family_test {

// One parameter as an entity's accessors give it.
struct Value {
  enum Kind { Number, Pointer, Text } kind = Number;
  double number = 0.0;
  std::string text;
};

// The parameters of an entity in the order of its P lines.
class Values {
 public:
  Values& operator<<(double v) { return add({Value::Number, v, {}}); }
  Values& operator<<(int v) { return add({Value::Number, static_cast<double>(v), {}}); }
  Values& operator<<(giPoint2 const& p) { return *this << p.x() << p.y(); }
  Values& operator<<(giPoint3 const& p) { return *this << p.x() << p.y() << p.z(); }
  Values& operator<<(giVector3 const& v) { return *this << v.x() << v.y() << v.z(); }
  // A reference as the DE number it names, 0 for none.
  Values& operator<<(igsObjectPtr const& r) {
    return add({Value::Pointer, r ? static_cast<double>(r->de_number()) : 0.0, {}});
  }
  Values& text(std::string const& s) { return add({Value::Text, 0.0, s}); }
  std::vector<Value> const& items() const { return m_items; }

 private:
  Values& add(Value v) {
    m_items.push_back(std::move(v));
    return *this;
  }
  std::vector<Value> m_items;
};

// The values of the entities of one class.
struct CorpusRow {
  kvuTypeInfo const* type;
  std::function<void(igsObject const&, Values&)> values;
};

template <class T, class F> CorpusRow row(F values) {
  return {&T::type(),
          [values](igsObject const& e, Values& v) { values(static_cast<T const&>(e), v); }};
}

// Every row of every family, gathered as the corpus test binary starts.
inline std::vector<CorpusRow>& corpus_rows() {
  static std::vector<CorpusRow> rows;
  return rows;
}
struct CorpusRows {
  CorpusRows(std::initializer_list<CorpusRow> rows) {
    corpus_rows().insert(corpus_rows().end(), rows.begin(), rows.end());
  }
};

// Compares the text with the fixture file, or writes the file under IGS_UPDATE_FIXTURES.
void expect_fixture(std::filesystem::path const& path, std::string const& text);

// Checks the file, current while it is checked, and gives its active errors, sorted.
std::vector<std::string> checked(igsFile const& file);

// The class that the entity table registers for a type and form; empty while none is.
std::string registered_class(int type, int form);

// The row of the class; null if it has none.
inline CorpusRow const* corpus_row(kvuTypeInfo const& type) {
  for (CorpusRow const& r : corpus_rows())
    if (r.type == &type) return &r;
  return nullptr;
}

// One entity of a test file: type, form and the whole parameter record, which the file cuts
// into P lines behind its delimiters, the DE number of its transformation matrix, its colour
// number, its status number (eight digits) and its line font number (given by name:
// {.type = ..., .line_font = 1}).
struct Record {
  int type;
  int form;
  std::string data;
  int matrix = 0;
  int colour = 0;
  std::string status = "00000000";
  int line_font = 0;
};
using Records = std::vector<Record>;

// The text of a file of the records, in order: DE numbers 1, 3, 5, ...
std::string file_text(Records const& records);

// A family: its name (of the seed and the golden print) and its file.
struct Family {
  char const* name;
  char const* folder; // under tests/entities
  Records records;
  // What check finds in the file: nothing, unless a class of the family needs a class that
  // is still to come (a face needs a surface).
  std::vector<std::string> raised = {};
};

// Reads the family file and holds it to every promise above.
void expect_family(Family const& family);

// A damaged file and what must come of it. Errors are written "@DE Class(arguments)" for
// object and structure errors, "Class(arguments)" for the others, sorted. A null entity that a
// repair put in an entity's place is written, and reading drops it as it drops every null
// entity: the round trip after clean(0) then holds the file to the entities that reading keeps.
struct Damage {
  char const* what;
  Records records;
  std::vector<std::string> raised; // what check finds
  std::vector<std::string> left;   // what check finds after clean(0)
  std::string message = {};        // what the repairs of clean(0) print, exactly
  std::string repaired = {};       // if given: the record of DE 1 as written after clean(0)
  // What check finds in the text that clean(1) left: nothing, unless a repair that kept an
  // entity made it lean on one that clean(1) then deleted, or made an entity of its own that
  // its next check finds fault with, or only let the log forget an error.
  std::vector<std::string> after_delete = {};
};

// The parameter record of the entity as the file writes it, from its type to the record
// delimiter, cut from the P lines of the written text.
std::string written_record(igsFile& file, int de_number);

void expect_damage(Damage const& damage);

} // namespace igs_family_test
