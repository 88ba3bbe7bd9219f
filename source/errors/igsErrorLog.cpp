#include "errors/igsErrorLog.h"

#include "support/utTypes.h"

#include <utility>

// The slot of the array at position, or null when the position lies outside it.
static igsError* slot(igsErrorcoDynArr const& array, int position) {
  return position >= 0 && position < array.size() ? array[position] : nullptr;
}

int igsSimpleSectionLog::receive_error(igsError* e) {
  if (!accepts(e)) return 0;
  int position;
  if (!m_free_slots.empty()) {
    position = m_free_slots.pop();
    m_active[position] = e;
  } else {
    position = m_active.size();
    if (!m_active.append(e)) return 0;
  }
  e->set_log_position(position);
  ++m_count;
  if (!e->log()) e->set_log(this);
  return 1;
}

int igsSimpleSectionLog::take_active(igsError* e) {
  int position = e ? e->log_position() : -1;
  if (!e || slot(m_active, position) != e) return 0;
  m_active[position] = nullptr;
  m_free_slots.insert_first(position);
  --m_count;
  return 1;
}

int igsSimpleSectionLog::mark_as_fixed(igsError* e) {
  if (!accepts(e) || !take_active(e)) return 0;
  e->set_log_position(m_fixed.size());
  m_fixed.append(e);
  return 1;
}

void igsSimpleSectionLog::delete_error(igsError* e) {
  if (!e || take_active(e)) return;
  int position = e->log_position();
  if (slot(m_fixed, position) == e) m_fixed[position] = nullptr;
}

int igsSimpleSectionLog::num_errors() {
  return m_count;
}

void igsSimpleSectionLog::discard(igsError* e) {
  e->set_log(nullptr);
  delete e;
}

void igsSimpleSectionLog::clear() {
  for (igsError*& e : m_active)
    if (igsError* held = e) {
      e = nullptr;
      discard(held);
    }
  m_active.clear();
  m_free_slots.clear();
  m_count = 0;
}

void igsSimpleSectionLog::print() {
  update_log();
}

igsSimpleSectionLog::~igsSimpleSectionLog() {
  igsSimpleSectionLog::clear();
  for (igsError* e : m_fixed)
    if (e) discard(e);
}

// The key of an indexed error; a log made for another kind counts everything as unset.
static int key_of(igsError const* e) {
  return e->typeof(igsIndexedError::id) ? static_cast<igsIndexedError const*>(e)->key()
                                        : igsIndexedError::unset_key;
}

int igsIndexedSectionLog::receive_error(igsError* e) {
  if (!accepts(e)) return 0;
  e->set_log_position(m_pending.size());
  if (!m_pending.append(e)) return 0;
  if (!e->log()) e->set_log(this);
  return 1;
}

void igsIndexedSectionLog::update_log() {
  for (igsError*& pending : m_pending)
    if (igsError* e = pending) {
      pending = nullptr;
      if (igsSimpleSectionLog::receive_error(e)) m_by_key[key_of(e)].append(e);
    }
  m_pending.clear();
}

void igsIndexedSectionLog::uncount(igsError* e) {
  int const key = key_of(e);
  igsErrorcoDynArr* errors = m_by_key.read(key);
  if (!errors) return;
  for (int i = errors->size() - 1; i >= 0; --i)
    if ((*errors)[i] == e) {
      errors->remove(i);
      break;
    }
  if (errors->empty()) m_by_key.remove(key);
}

void igsIndexedSectionLog::delete_error(igsError* e) {
  if (!e) return;
  int position = e->log_position();
  if (slot(m_pending, position) == e) {
    m_pending[position] = nullptr;
  } else if (take_active(e)) {
    uncount(e);
  } else {
    igsSimpleSectionLog::delete_error(e);
  }
}

int igsIndexedSectionLog::mark_as_fixed(igsError* e) {
  update_log();
  if (!igsSimpleSectionLog::mark_as_fixed(e)) return 0;
  uncount(e);
  return 1;
}

int igsIndexedSectionLog::num_errors() {
  update_log();
  return igsSimpleSectionLog::num_errors();
}

int igsIndexedSectionLog::num_errors(int key) {
  update_log();
  igsErrorcoDynArr const* errors = m_by_key.read(key);
  return errors ? errors->size() : 0;
}

void igsIndexedSectionLog::clear() {
  update_log();
  igsSimpleSectionLog::clear();
  m_by_key.clear();
}

void igsIndexedSectionLog::clear(int key) {
  update_log();
  igsErrorcoDynArr* held = m_by_key.read(key);
  if (!held) return; // the common case: an entity with no errors
  igsErrorcoDynArr errors = std::move(*held);
  m_by_key.remove(key);
  for (igsError* e : errors) {
    take_active(e);
    discard(e);
  }
}

void igsIndexedSectionLog::print() {
  update_log();
}

igsIndexedSectionLog::~igsIndexedSectionLog() {
  update_log();
}

igsErrorLog::igsErrorLog()
    : m_object_log(igsObjectError::id), m_structure_log(igsStructureError::id),
      m_global_log(igsGlobalError::id), m_start_log(igsStartError::id),
      m_terminate_log(igsTerminateError::id), m_indexed{&m_object_log, &m_structure_log},
      m_logs{&m_object_log, &m_structure_log, &m_global_log, &m_start_log, &m_terminate_log} {}

void igsErrorLog::receive_error(igsError* e) {
  for (igsSimpleSectionLog* log : m_logs)
    if (log->receive_error(e)) return;
}

void igsErrorLog::mark_as_fixed(igsError* e) {
  for (igsSimpleSectionLog* log : m_logs)
    if (log->mark_as_fixed(e)) return;
}

igsSimpleSectionLog& igsErrorLog::get_section_log(igsLogID id) const {
  UT_ASSERT(id >= igsObjectLog && id <= igsTerminateLog);
  return *m_logs[id >= igsObjectLog && id <= igsTerminateLog ? id : igsObjectLog];
}

igsIndexedSectionLog* igsErrorLog::get_indexed_log(igsLogID id) const {
  return id == igsObjectLog || id == igsStructureLog ? m_indexed[id] : nullptr;
}

void igsErrorLog::print() const {
  for (igsSimpleSectionLog* log : m_logs) log->print();
}

int igsSimpleSectionLogIT::operator++() {
  if (!m_log) return 0;
  m_log->update_log();
  igsErrorcoDynArr const& active = m_log->active();
  while (++m_position < active.size())
    if (active[m_position]) return 1;
  m_position = -1;
  return 0;
}

igsError* igsSimpleSectionLogIT::operator()() const {
  return m_log ? slot(m_log->active(), m_position) : nullptr;
}
