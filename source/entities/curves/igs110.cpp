#include "entities/curves/igs110.h"

#include "core/igsFile.h"
#include "entities/curves/igsCurveErrors.h"
#include "operations/igsConvert.h"

IGS_ENTITY_DEFINE(igs110, igsCurve, 110, 0, IGS_DE_ALL)

int igs110::read_pd_data(igsInStream& in) {
  giPoint3 start, end;
  igs_read_fields(in, start, end);
  m_start = start;
  m_end = end;
  return 1;
}

void igs110::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_start, m_end);
}

void igs110::print_pd_data(utOstream& out) const {
  out << "StartPoint = " << m_start << "\n";
  out << "EndPoint = " << m_end << "\n";
}

// The coincidence test needs two valid ends.
void igs110::check_pd() const {
  if (m_start.invalid()) raise_error<igs110InvalidStartPoint>();
  if (m_end.invalid()) raise_error<igs110InvalidEndPoint>();
  if (m_start.invalid() || m_end.invalid()) return;
  double tolerance = kvnTolZeroLength.value();
  if (coincident_end_points(tolerance)) raise_error<igs110CoincidentPoints>(tolerance);
}

// A line without length becomes a polyline of its two points, which takes the line's place:
// its DE number and every reference to it. Both stand in the current file, where the key was
// resolved.
int igs110CoincidentPoints::fix() {
  igs110* line = igs_error_entity<igs110>(key());
  if (!line) return 0;
  igsObject* polyline = igsConvert::to_polyline(line);
  if (!polyline) return 0;
  line->file().replace_entity(line, polyline);
  return 1;
}
