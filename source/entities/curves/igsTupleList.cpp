#include "entities/curves/igsTupleList.h"

#include "entities/curves/igsPointset.h"
#include "entities/curves/igsPolyline.h"
#include "support/utMath.h"

void igs_print_tuple_flags(utOstream& out, char const* word, int count) {
  out << "Flags = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    nested << "InterpretationFlag = " << word << "\n";
  }
  out << "}\n";
  out << "NumberOfTuples = " << count << "\n";
}

template <class B, class T> int igsTupleList<B, T>::set_dimensionality(Dim dim) {
  int value = static_cast<int>(dim);
  if (!igs_unset(m_dimensionality) || value < 1 || value > 3) return 0;
  m_dimensionality = value;
  this->set_directory_entry_type(this->directory_entry().entity_type(), value + T::form_offset);
  return 1;
}

template <class B, class T> int igsTupleList<B, T>::set_size(int n) {
  if (n <= 0) return 0;
  m_points.set_increment(n);
  m_vectors.set_increment(n);
  return 1;
}

template <class B, class T> int igsTupleList<B, T>::z_level(double& z) const {
  if (!flag_is(1)) return 0;
  z = m_z_level;
  return 1;
}

template <class B, class T> int igsTupleList<B, T>::set_z_level(double z) {
  if (!flag_is(1)) return 0;
  m_z_level = z;
  return 1;
}

template <class B, class T> int igsTupleList<B, T>::point_planar(int index, giPoint2& point) const {
  if (!flag_is(1) || !index_in(index, m_points.size())) return 0;
  point = giPoint2(m_points[index].x(), m_points[index].y());
  return 1;
}

template <class B, class T> int igsTupleList<B, T>::point_3d(int index, giPoint3& point) const {
  if (m_dimensionality > 2 || !index_in(index, m_points.size())) return 0;
  point = m_points[index];
  return 1;
}

template <class B, class T>
int igsTupleList<B, T>::point_vector(int index, giPoint3& point, giVector3& vector) const {
  if (!flag_is(3) || !index_in(index, m_points.size()) || !index_in(index, m_vectors.size()))
    return 0;
  point = m_points[index];
  vector = m_vectors[index];
  return 1;
}

template <class B, class T>
int igsTupleList<B, T>::set_point_planar(int index, giPoint2 const& point) {
  if (!flag_is(1) || point.invalid()) return 0;
  return store(index, giPoint3(point.x(), point.y(), m_z_level), nullptr);
}

template <class B, class T> int igsTupleList<B, T>::set_point_3d(int index, giPoint3 const& point) {
  if (!flag_is(2) || point.invalid()) return 0;
  return store(index, point, nullptr);
}

template <class B, class T>
int igsTupleList<B, T>::set_point_vector(int index, giPoint3 const& point,
                                         giVector3 const& vector) {
  if (!flag_is(3) || point.invalid() || vector.invalid()) return 0;
  return store(index, point, &vector);
}

template <class B, class T>
int igsTupleList<B, T>::store(int index, giPoint3 const& point, giVector3 const* vector) {
  if (index < 0 || index == utMath::max_int()) return 0;
  int size = index + 1;
  if (m_points.size() < size && !m_points.expand(size)) return 0;
  if (vector && m_vectors.size() < size && !m_vectors.expand(size)) return 0;
  m_points[index] = point;
  if (vector) m_vectors[index] = *vector;
  return 1;
}

template <class B, class T> giVector3 igsTupleList<B, T>::vector_at(int index) const {
  return index_in(index, m_vectors.size()) ? m_vectors[index] : giVector3();
}

template <class B, class T> int igsTupleList<B, T>::repair_form(int de_number) {
  igsTupleList* entity = igs_error_entity<typename T::Entity>(de_number);
  if (!entity || igs_unset(entity->m_dimensionality)) return 0;
  entity->set_directory_entry_type(entity->directory_entry().entity_type(),
                                   entity->m_dimensionality + T::form_offset);
  return 1;
}

// The common Z comes before the tuples. A record that ends before its count is reached gives
// the tuples it holds, so a damaged count costs neither time nor memory.
template <class B, class T> int igsTupleList<B, T>::read_pd_data(igsInStream& in) {
  int ip = 0;
  in.read_integer(ip);
  if (static_cast<unsigned>(ip) - 1u > 2u) {
    raise<typename T::InvalidIP>(ip);
    return 0;
  }
  m_dimensionality = ip;
  int count = 0;
  in.read_integer(count);
  if (count < 0) {
    raise<typename T::BadNumTuples>(count);
    return 0;
  }
  m_points.clear();
  m_vectors.clear();
  if (!igs_reserve(m_points, count) || (ip == 3 && !igs_reserve(m_vectors, count))) return 0;
  if (ip == 1) {
    double z = 0.0;
    in.read_double(z);
    m_z_level = z;
  }
  for (int i = 0; i < count && !in.frozen(); ++i) {
    giPoint3 point;
    giVector3 vector;
    if (ip == 1) {
      giPoint2 planar;
      igs_read_field(in, planar);
      point = giPoint3(planar.x(), planar.y(), m_z_level);
    } else {
      igs_read_field(in, point);
    }
    if (ip == 3) igs_read_field(in, vector);
    if (!m_points.append(point) || (ip == 3 && !m_vectors.append(vector))) return 0;
  }
  return 1;
}

template <class B, class T> void igsTupleList<B, T>::write_pd_data(igsOutStream& out) {
  int count = m_points.size();
  igs_write_fields(out, m_dimensionality, count);
  if (flag_is(1)) igs_write_field(out, m_z_level);
  for (int i = 0; i < count; ++i) {
    giPoint3 const& point = m_points[i];
    if (flag_is(1)) {
      igs_write_fields(out, point.x(), point.y());
    } else if (flag_is(2)) {
      igs_write_field(out, point);
    } else {
      giVector3 vector = vector_at(i);
      igs_write_fields(out, point, vector.invalid() ? giVector3(0.0, 0.0, 0.0) : vector);
    }
  }
}

template <class B, class T> void igsTupleList<B, T>::print_pd_data(utOstream& out) const {
  char const* word = flag_is(1) ? "XYCommonZ" : flag_is(2) ? "XYZ" : "XYZIJK";
  igs_print_tuple_flags(out, word, m_points.size());
  if (flag_is(1))
    print_2d_tuples(out);
  else if (flag_is(2))
    print_3d_tuples(out);
  else
    print_6d_tuples(out);
}

template <class B, class T> void igsTupleList<B, T>::print_2d_tuples(utOstream& out) const {
  igs_print_planar_tuples(out, m_z_level, m_points.size(),
                          [this](int i) { return giPoint2(m_points[i].x(), m_points[i].y()); });
}

template <class B, class T> void igsTupleList<B, T>::print_3d_tuples(utOstream& out) const {
  igs_print_values(out, "XYZTuples {", m_points);
}

template <class B, class T> void igsTupleList<B, T>::print_6d_tuples(utOstream& out) const {
  igs_print_list(out, "XYZIJKTuples {", m_points.size(),
                 [this](utOstream& o, int i) { o << m_points[i] << "," << vector_at(i); });
}

template <class B, class T> void igsTupleList<B, T>::check_pd() const {
  if (igs_unset(m_dimensionality)) {
    raise<typename T::InvalidDimensionality>();
  } else {
    int form = this->directory_entry().form_number();
    if (form != m_dimensionality + T::form_offset)
      raise<typename T::IPFormMismatch>(m_dimensionality, form);
  }
  if (m_points.empty()) raise<typename T::NoPoints>();
  for (int i = 0; i < m_points.size(); ++i)
    if (m_points[i].invalid()) raise<typename T::InvalidPoint>(i);
  if (flag_is(3)) {
    if (m_points.size() != m_vectors.size())
      raise<typename T::PtVectorMismatch>(m_points.size(), m_vectors.size());
    for (int i = 0; i < m_vectors.size(); ++i)
      if (m_vectors[i].invalid()) raise<typename T::InvalidVector>(i);
  }
  if (flag_is(1)) {
    if (igs_unset(m_z_level)) raise<typename T::InvalidZLevel>();
    // Compared exactly: reading gives every point the common Z.
    for (giPoint3 const& point : m_points)
      if (point.z() != m_z_level) raise<typename T::UnequalZLevels>();
  }
}

template class igsTupleList<igsCurve, igsPolylineTraits>;
template class igsTupleList<igsObject, igsPointsetTraits>;
