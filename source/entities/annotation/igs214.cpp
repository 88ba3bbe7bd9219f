#include "entities/annotation/igs214.h"

#include "entities/annotation/igsAnnotationErrors.h"

IGS_ENTITY_DEFINE(igs214, igsAnnotation, 214, 1, IGS_DE_ALL)

int igs214::set_num_segments(int n) {
  if (n >= 0) {
    giPoint2coDynArr segments;
    if (!segments.expand(n)) return 0;
    m_segments = std::move(segments);
  }
  m_num_segments = n;
  return 1;
}

giPoint2 igs214::segment_endpoint(int index) const {
  return index >= 0 && index < m_segments.size() ? m_segments[index] : giPoint2();
}

int igs214::add_segment(giPoint2 const& point, int index) {
  if (index < 0 || index >= m_segments.size()) return 0;
  m_segments[index] = point;
  return 1;
}

// The arrowhead comes before the segments: its height and width, the common Z and its point.
int igs214::read_pd_data(igsInStream& in) {
  int count = 0;
  double height = 0.0, length = 0.0, z = 0.0;
  giPoint2 arrow;
  igs_read_fields(in, count, height, length, z, arrow);
  m_num_segments = count;
  m_height = height;
  m_length = length;
  m_z_depth = z;
  m_arrow = arrow;
  if (!igs_read_counted_members(in, count, m_segments, [&] { return igs_read_value<giPoint2>(in); }))
    return 0;
  if (count > 0) m_num_segments = m_segments.size();
  return 1;
}

void igs214::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_segments.size(), m_height, m_length, m_z_depth, m_arrow);
  for (giPoint2 const& end : m_segments) igs_write_field(out, end);
}

void igs214::print_pd_data(utOstream&) const {}

// Form 4 has no arrowhead, which may then have no size; each segment must leave the
// point it starts from, the first the arrow's point.
void igs214::check_pd() const {
  if ((m_height <= 0.0 || m_length <= 0.0) && form_number() != 4)
    raise_error<igs214InvalidArrowheadDimension>(m_height, m_length);
  if (m_num_segments < 1) {
    raise_error<igs214InvalidSize>(m_num_segments);
    return;
  }
  giPoint2 before = m_arrow;
  for (int i = 0; i < m_segments.size(); ++i) {
    giPoint2 const& end = m_segments[i];
    if (end.x() == before.x() && end.y() == before.y()) raise_error<igs214InvalidPoint>(i);
    before = end;
  }
}
