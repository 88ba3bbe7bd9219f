// Checking a whole file, and cleaning it: check, repair, and at the caller's wish the removal
// of what stays bad.
#include "core/igsCurrentFileScope.h"
#include "core/igsFile.h"
#include "core/igsObject.h"
#include "core/igsObjectSystem.h"
#include "entities/structure/igs410_0.h"
#include "errors/igsFixer.h"

#include <climits>
#include <new>

namespace {

// Proposes numbers for views whose number is bad: above the largest number in use, one more
// for each number proposed. Past the largest int, the lowest positive number that is neither
// in use nor proposed takes over.
class igsViewNumberProposer {
 public:
  explicit igsViewNumberProposer(int largest) : m_largest(largest) {}
  void in_use(int number) { m_used.add(number); }
  int next() {
    long long above = static_cast<long long>(m_largest) + 1 + m_proposed;
    ++m_proposed;
    int number = above <= INT_MAX ? static_cast<int>(above) : lowest_free();
    m_used.add(number);
    return number;
  }

 private:
  int lowest_free() {
    while (m_used.member(m_lowest_free)) ++m_lowest_free;
    return m_lowest_free;
  }

  int m_largest;
  int m_proposed = 0;
  int m_lowest_free = 1;
  intcoSet m_used;
};

} // namespace

void igsFile::check() const {
  igsCurrentFileScope current(*this);
  global_section().check();
  igsObjectSystem::reentrant_start();
  for (int location = 0; location < m_table.size(); ++location)
    if (igsObject* object = object_at(location)) object->check();
  igsObjectSystem::reentrant_end();
  // After the walk: checking an entity begins by clearing its object errors, which would take
  // the errors about its view number with them.
  check_inter_entity_errors();
}

void igsFile::check_inter_entity_errors() const {
  check_the_410_view_numbers();
}

void igsFile::check_the_410_view_numbers() const {
  auto number_of = [](igsObject const* view) {
    return static_cast<igs410_0 const*>(view)->view_number();
  };
  int largest = 0;
  for (igsFileTypeIT it(this, igs410_0::type()); ++it;)
    if (int number = number_of(it()); number > largest) largest = number;
  igsViewNumberProposer proposer(largest);
  for (igsFileTypeIT it(this, igs410_0::type()); ++it;)
    if (int number = number_of(it()); number >= 0) proposer.in_use(number);

  intcoSet seen;
  for (igsFileTypeIT it(this, igs410_0::type()); ++it;) {
    igsObject* view = it();
    int number = number_of(view);
    igsObjectError* error = nullptr;
    if (igs_unset(number))
      error = new (std::nothrow) igs410_0NoViewNumberDefined(proposer.next());
    else if (number < 0)
      error = new (std::nothrow) igs410_0InvalidViewNumber(proposer.next());
    else if (seen.member(number))
      error = new (std::nothrow) igs410_0RepeatedView(proposer.next());
    else
      seen.add(number);
    view->tag_error(error);
  }
}

void igsFile::clean(int delete_bad) {
  igsCurrentFileScope current(*this);
  check();
  igsErrorLog& log = igsObjectSystem::log();
  igsFixer fixer;
  fixer.fix(log, 1);
  log.print();
  if (!delete_bad) return;
  for (igsFileIT it(this); ++it;)
    if (it()->num_logged_errors() > 0) delete it();
}
