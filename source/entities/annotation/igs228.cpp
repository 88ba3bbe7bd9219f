#include "entities/annotation/igs228.h"

#include "entities/annotation/igsAnnotationErrors.h"

#include <algorithm>

IGS_ENTITY_DEFINE(igs228, igsDimension, 228, 1, IGS_DE_ALL)

int igs228::set_num_objects(int n) {
  if (n >= 0) {
    igsObjectPtrcoDynArr geometry;
    if (!geometry.expand(n)) return 0;
    m_geometry = std::move(geometry);
  }
  m_num_objects = n;
  return 1;
}

int igs228::add_geometry(igsObjectPtr const& geometry, int index) {
  if (index < 0 || index >= m_geometry.size()) return 0;
  m_geometry[index] = geometry;
  return 1;
}

igsObjectPtr const& igs228::get_geometry(int index) const {
  static igsObjectPtr const none;
  return index >= 0 && index < m_geometry.size() ? m_geometry[index] : none;
}

void igs228::set_index_list() const {
  igsDimension::set_index_list();
  m_geometry_index.reset(m_geometry.size());
}

int igs228::drop_bad_geometry() {
  igs_drop_members(m_geometry, m_geometry_index,
                   [](igsObjectPtr const& g) { return !g || !g->num_logged_errors(); });
  m_num_objects = m_geometry.size();
  return m_geometry.size();
}

void igs228::unreference_children() {
  igsDimension::unreference_children();
  for (igsObjectPtr& geometry : m_geometry) geometry.unreference();
}

// A geometry pointer of 0 ends the record there: the symbol is not read.
int igs228::read_pd_data(igsInStream& in) {
  set_note(igs_read_value<igsObjectPtr>(in));
  int count = 0;
  in.read_integer(count);
  m_num_objects = count;
  m_geometry.clear();
  if (count > 0 && !igs_reserve(m_geometry, count)) return 0;
  for (int i = 0; i < count; ++i) {
    int de_number = 0;
    in.read_integer(de_number);
    if (!de_number) return 0;
    if (!m_geometry.append(igsObjectPtr(de_number))) return 0;
  }
  if (!read_leader_list(in)) return 0;
  set_index_list();
  return 1;
}

// A null geometry reference (one whose entity was never read or has gone) is left out: a 0
// would end the record there for any reader, and the symbol would be lost.
void igs228::write_pd_data(igsOutStream& out) {
  int const written = static_cast<int>(std::count_if(m_geometry.begin(), m_geometry.end(),
                                                     [](igsObjectPtr const& g) { return !!g; }));
  igs_write_fields(out, general_note(), written);
  for (igsObjectPtr const& geometry : m_geometry)
    if (geometry) igs_write_field(out, geometry);
  igs_write_field(out, number_of_leaders());
  write_leaders_pd(out, number_of_leaders());
}

void igs228::print_pd_data(utOstream&) const {}

// The note is optional in form 0 only; the leaders are checked as a general label's, each
// geometry entity by its own check.
void igs228::check_pd() const {
  set_index_list();
  if (!general_note() && form_number() != 0) raise_error<igs228InvalidDEFormNumber>(form_number());
  if (leader_count() < 0) raise_error<igs228InvalidNumberOfLeaders>();
  check_leaders<igs228NullLeaderPointer, igs228InvalidLeader>();
  if (m_num_objects <= 0) {
    raise_error<igs228InvalidNumberOfGeometryPointers>();
    return;
  }
  for (int i = 0; i < m_geometry.size(); ++i)
    if (!m_geometry[i])
      raise_error<igs228NullGeometryPointer>(i);
    else if (!m_geometry[i]->check())
      raise_error<igs228BadGeometryPointer>(i);
}

int igs228InvalidDEFormNumber::fix() {
  igs228* symbol = igs_error_entity<igs228>(key());
  return symbol && symbol->directory_entry().set_form_number(form() == 1 ? 0 : 1);
}

IGS_DIMENSION_DROP_REPAIR(igs228InvalidLeader, igs228, igs_named_leader, leaders,
                          igsDrop::bad_if_any, 1)

IGS_CHILD_OBJ(igs228BadGeometryPointer, igs228,
              [](igs228 const& s, igs228BadGeometryPointer const& e) {
                return igs_target(s.get_geometry(s.get_geom_index(e.index())));
              })
int igs228BadGeometryPointer::fix() {
  igs228* symbol = igs_error_entity<igs228>(key());
  return symbol && symbol->drop_bad_geometry() >= 1;
}
