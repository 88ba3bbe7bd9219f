#include "entities/annotation/igs106Base.h"

#include "entities/annotation/igsAnnotationErrors.h"

KVU_DEFINE_TYPE(igs106Base, igsAnnotation)

int igs106Base::set_size(int n) {
  if (n >= 0) {
    giPoint2coDynArr points;
    if (!points.expand(n)) return 0;
    m_points = std::move(points);
  }
  m_size = n;
  return 1;
}

giPoint2 igs106Base::get_point(int index) const {
  return index >= 0 && index < m_points.size() ? m_points[index] : giPoint2();
}

int igs106Base::set_point(giPoint2 const& point, int index) {
  if (index < 0 || index >= m_points.size()) return 0;
  m_points[index] = point;
  return 1;
}

void igs106Base::store_form(int form, int first, int last) {
  if (first <= form && form <= last) m_form = form;
  set_directory_entry_type(directory_entry().entity_type(), m_form);
}

int igs106Base::read_pd_data(igsInStream& in) {
  int ip = 0, count = 0;
  double z = 0.0;
  igs_read_fields(in, ip, count, z);
  m_ip = ip;
  m_size = count;
  m_z_depth = z;
  if (!igs_read_counted_members(in, count, m_points, [&] { return igs_read_value<giPoint2>(in); }))
    return 0;
  if (count > 0) m_size = m_points.size();
  return 1;
}

void igs106Base::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_ip, m_points.size(), m_z_depth);
  for (giPoint2 const& point : m_points) igs_write_field(out, point);
}

void igs106Base::print_pd_data(utOstream&) const {}

void igs106Base::check_pd() const {
  if (m_ip != 1) raise_error<igs106BaseInvalidIP>(m_ip);
}
