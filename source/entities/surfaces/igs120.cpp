#include "entities/surfaces/igs120.h"

#include "entities/curves/igs110.h"
#include "entities/surfaces/igsSurfaceErrors.h"

IGS_ENTITY_DEFINE(igs120, igsParameterizedSurface, 120, 0, IGS_DE_ALL)

static double const full_turn = 6.283185307179586;

int igs120::set_axis(igsObjectPtr const& axis) {
  return igs_set_reference(m_axis, axis);
}
int igs120::set_generatrix(igsObjectPtr const& generatrix) {
  return igs_set_reference(m_generatrix, generatrix);
}

int igs120::set_start_end_angle(double start, double end) {
  double sweep = end - start;
  if (!(sweep > 0.0 && sweep <= full_turn)) return 0;
  m_start = start;
  m_end = end;
  return 1;
}

// The axis comes first in the file.
int igs120::read_pd_data(igsInStream& in) {
  igs_read_fields(in, m_axis, m_generatrix, m_start, m_end);
  return 1;
}

void igs120::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_axis, m_generatrix);
  igsParametricFormat parametric(out);
  igs_write_fields(out, m_start, m_end);
}

void igs120::print_pd_data(utOstream& out) const {
  igs_print_reference(out, "AxisOfRevolution", m_axis);
  igs_print_reference(out, "Generatrix", m_generatrix);
  out << "StartAngle = " << m_start << "\n";
  out << "EndAngle = " << m_end << "\n";
}

// The axis must be a line of some length; a line without length is not checked further. The
// angles have no unset test: a surface made without them has no sweep. The tolerance widens
// the upper limit only, so that a full turn with a little rounding passes.
void igs120::check_pd() const {
  if (!m_axis) {
    raise_error<igs120NullAxisPtr>();
  } else if (!m_axis->isa(igs110::type())) {
    raise_error<igs120InvalidAxisType>();
  } else {
    auto const& line = static_cast<igs110 const&>(*m_axis);
    giPoint3 start = line.start_point(), end = line.end_point();
    if (!start.invalid() && !end.invalid() && start.coincident(end, kvnTolZeroLength.value()))
      raise_error<igs120ZeroLengthAxis>();
    else if (!line.check())
      raise_error<igs120InvalidAxisData>();
  }
  check_reference<igs120NullGeneratrixPtr, igs120InvalidGeneratrixType,
                  igs120InvalidGeneratrixData>(m_generatrix, igs_kind_of<igsCurve>);
  double sweep = m_end - m_start;
  if (sweep > kvnTolCoincAngles.value() + full_turn || sweep < 0.0)
    raise_error<igs120InvalidSweepAngle>(sweep);
  if (m_start == m_end) raise_error<igs120ZeroSweepAngle>(m_end);
}

void igs120::unreference_children() {
  igsObject::unreference_children();
  m_generatrix.unreference();
  m_axis.unreference();
}

IGS_CHILD_REPAIR(igs120InvalidAxisData, igs120, igs_child_at<&igs120::axis>)
IGS_CHILD_REPAIR(igs120InvalidGeneratrixData, igs120, igs_child_at<&igs120::generatrix>)

int igs120InvalidGeneratrixType::fix() {
  return igs_replace_child_by_curve(key(), &igs120::generatrix, &igs120::set_generatrix);
}

// An inverted sweep of no more than a full turn is turned round; a sweep of more than a full
// turn stays an error.
int igs120InvalidSweepAngle::fix() {
  igs120* surface = igs_error_entity<igs120>(key());
  if (!surface) return 0;
  double start = surface->start_angle(), end = surface->end_angle();
  if (!(start > end && start - end <= full_turn)) return 0;
  return surface->set_start_end_angle(end, start);
}

// A sweep of nothing becomes a full turn from the same start. Rounding may make the setter
// refuse the turn: the error is settled all the same, and the next check finds the angles.
int igs120ZeroSweepAngle::fix() {
  igs120* surface = igs_error_entity<igs120>(key());
  if (!surface) return 0;
  double start = surface->start_angle();
  surface->set_start_end_angle(start, start + full_turn);
  return 1;
}
