#include "entities/curves/igs102.h"

#include "core/igsFile.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igsCurveErrors.h"
#include "operations/igsConvert.h"

IGS_ENTITY_DEFINE(igs102, igsCurve, 102, 0, IGS_DE_ALL)

int igs102::sub_curve(int position, igsObjectPtr& curve) const {
  return igs_member(m_curves, position, curve);
}

int igs102::set_sub_curve(int position, igsObjectPtr const& curve) {
  return curve && igs_set_member(m_curves, position, curve);
}

void igs102::set_size(int size) {
  if (size < 0) return;
  if (size < m_curves.size())
    m_curves.shrink(size);
  else
    m_curves.expand(size);
}

int igs102::get_index(int original) const {
  if (m_index.size()) return m_index.current(original);
  return original >= 0 && original < m_curves.size() ? original : -1;
}

int igs102::remove_sub_curve(int position) {
  if (position < 0 || position >= m_curves.size()) return 0;
  if (!m_index.size()) set_index_list();
  // The members are offered in order, once each: the one at the position is dropped.
  int at = 0;
  igs_drop_members(m_curves, m_index, [&](igsObjectPtr const&) { return at++ != position; });
  return 1;
}

void igs102::unreference_children() {
  igsObject::unreference_children();
  for (igsObjectPtr& curve : m_curves) curve.unreference();
}

// A record that ends before its count is reached gives the members it holds.
int igs102::read_pd_data(igsInStream& in) {
  if (!igs_read_references(in, m_curves,
                           [this](int count) { raise_error<igs102BadNumCurves>(count); }))
    return 0;
  set_index_list();
  return 1;
}

void igs102::write_pd_data(igsOutStream& out) {
  igs_write_references(out, m_curves);
}

void igs102::print_pd_data(utOstream& out) const {
  out << "NumberOfSubCurves = " << m_curves.size() << "\n";
  igs_print_references(out, "SubCurve", m_curves);
}

// Members are curves, or points; two points in a row only make a curve of two members, and a
// lone point none. A null member leaves the mark of a point before it standing.
void igs102::check_pd() const {
  int n = m_curves.size();
  m_index.reset(n);
  if (n == 0) {
    raise_error<igs102NoSubCurves>();
    return;
  }
  bool last_was_point = false;
  for (int i = 0; i < n; ++i) {
    igsObjectPtr const& curve = m_curves[i];
    if (!curve) {
      raise_error<igs102NullSubCurvePtr>(i);
      continue;
    }
    bool point = curve->isa(igs116::type());
    if (!point && !curve->typeof(igsCurve::type()))
      raise_error<igs102InvalidSubCurveType>(i);
    else if (!curve->check())
      raise_error<igs102InvalidSubCurveData>(i);
    if (point) {
      if (n == 1) raise_error<igs102OnlyPoint>();
      if (last_was_point && n != 2) raise_error<igs102AdjacentPoints>(i - 1, i);
    }
    last_was_point = point;
  }
}

// The member that the error names, as it stands now: found through the index list, so that
// members dropped before it do not matter. 0 when it has gone or the number names no composite
// curve any more.
static int named_member(int key, int original, igs102*& composite, int& position,
                        igsObjectPtr& member) {
  composite = igs_error_entity<igs102>(key);
  if (!composite) return 0;
  position = composite->get_index(original);
  return composite->sub_curve(position, member);
}

int igs102InvalidSubCurveData::obj() {
  if (cached_obj()) return cached_obj();
  igs102* composite = nullptr;
  int at = -1;
  igsObjectPtr member;
  if (!named_member(key(), position(), composite, at, member) || !member) return 0;
  set_cached_obj(member->de_number());
  return cached_obj();
}

// Runs after the member's own repairs: a member that they cleared stays, one that still has
// errors is dropped from the list.
int igs102InvalidSubCurveData::fix() {
  igs102* composite = nullptr;
  int at = -1;
  igsObjectPtr member;
  if (!named_member(key(), position(), composite, at, member)) return composite ? 1 : 0;
  if (member && member->num_logged_errors() == 0) return 1;
  int member_de = member ? member->de_number() : cached_obj();
  composite->remove_sub_curve(at);
  message("Warning : sub curve DE %d has been removed from composite curve DE %d\n", member_de,
          key());
  return 1;
}

// A member of another kind that converts to a curve is replaced by the curve: everywhere, when
// the composite curve alone holds it, else only in the list.
int igs102InvalidSubCurveType::fix() {
  igs102* composite = nullptr;
  int at = -1;
  igsObjectPtr member;
  if (!named_member(key(), position(), composite, at, member)) return composite ? 1 : 0;
  if (!member || member->num_logged_errors()) return 0;
  igsObject* curve = igsConvert::to_curve(member());
  if (!curve) return 0;
  // This repair's own reference and the list's.
  if (member->num_references() == 2)
    member->file().replace_entity(member(), curve);
  else
    composite->set_sub_curve(at, igsObjectPtr(curve));
  return 1;
}
