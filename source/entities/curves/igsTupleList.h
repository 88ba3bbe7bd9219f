// Lists of coordinate tuples of the copious data entity (type 106): what the point set and the
// polyline share. They differ only in their base, their error classes and the form that goes
// with each interpretation flag, which a traits class gives:
//
//   Entity       the concrete class
//   Dim          its enumeration of the interpretation flag (1, 2, 3)
//   form_offset  form number = flag + form_offset
//   the error classes, named by IGS_TUPLE_LIST_ERROR_NAMES
#pragma once

#include "entities/igsEntity.h"
#include "support/coNames.h"

// The error classes of a traits class, from the prefix of their names.
#define IGS_TUPLE_LIST_ERROR_NAMES(Prefix)                                                         \
  using InvalidIP = Prefix##InvalidIP;                                                             \
  using BadNumTuples = Prefix##BadNumTuples;                                                       \
  using InvalidDimensionality = Prefix##InvalidDimensionality;                                     \
  using IPFormMismatch = Prefix##IPFormMismatch;                                                   \
  using NoPoints = Prefix##NoPoints;                                                               \
  using InvalidPoint = Prefix##InvalidPoint;                                                       \
  using PtVectorMismatch = Prefix##PtVectorMismatch;                                               \
  using InvalidVector = Prefix##InvalidVector;                                                     \
  using InvalidZLevel = Prefix##InvalidZLevel;                                                     \
  using UnequalZLevels = Prefix##UnequalZLevels;

// Declares a concrete class of the family: its enumeration of the flag (Class##XYCommonZ = 1,
// Class##XYZ = 2, Class##XYZIJK = 3), its traits and the class itself.
#define IGS_TUPLE_LIST_CLASS(Class, Base, offset)                                                  \
  enum Class##Dim : int{Class##XYCommonZ = 1, Class##XYZ = 2, Class##XYZIJK = 3};                  \
  class Class;                                                                                     \
  struct Class##Traits {                                                                           \
    using Entity = Class;                                                                          \
    using Dim = Class##Dim;                                                                        \
    static constexpr int form_offset = offset;                                                     \
    IGS_TUPLE_LIST_ERROR_NAMES(Class)                                                              \
  };                                                                                               \
  extern template class igsTupleList<Base, Class##Traits>;                                         \
  class Class : public igsTupleList<Base, Class##Traits> {                                         \
    IGS_ENTITY_IDENTITY(Class)                                                                     \
  };

// The printing shared with the closed planar curve: the flag block with the count, and the
// planar tuples with their common Z.
void igs_print_tuple_flags(utOstream& out, char const* word, int count);
template <class PointAt>
void igs_print_planar_tuples(utOstream& out, double z_level, int count, PointAt const& point_at) {
  out << "Common-Z-Level =" << z_level << "\n";
  igs_print_list(out, "XYTuples {", count, [&](utOstream& o, int i) { o << point_at(i); });
}

// The points are kept as 3D points whatever the flag: with flag 1 each holds the common Z.
template <class Base, class Traits> class igsTupleList : public Base {
 public:
  using Dim = typename Traits::Dim;

  // 0 while the flag is unset.
  int dimensionality(Dim& dim) const {
    if (igs_unset(m_dimensionality)) return 0;
    dim = static_cast<Dim>(m_dimensionality);
    return 1;
  }
  // Stores a flag of 1, 2 or 3 while none is set, with the form that goes with it; 0 otherwise.
  int set_dimensionality(Dim dim);
  int number_of_items() const { return m_points.size(); }
  // A growth hint for both arrays, not a count: 1 for n > 0, else 0. No item comes or goes.
  int set_size(int n);
  // The common Z; with flag 1 only.
  int z_level(double& z) const;
  int set_z_level(double z);

  // Read one item: 0 unless the flag suits and the index is in range.
  int point_planar(int index, giPoint2& point) const;
  int point_3d(int index, giPoint3& point) const;
  int point_vector(int index, giPoint3& point, giVector3& vector) const;
  // Set one item, growing the lists to hold the index: 0 unless the flag suits, the values are
  // valid and the index is 0 or more. A planar point takes the current common Z.
  int set_point_planar(int index, giPoint2 const& point);
  int set_point_3d(int index, giPoint3 const& point);
  int set_point_vector(int index, giPoint3 const& point, giVector3 const& vector);

  // Gives the entity under the DE number the form that its flag calls for; 0 if there is no
  // such entity or its flag is unset.
  static int repair_form(int de_number);

 protected:
  igsTupleList() = default;

  int read_pd_data(igsInStream& in) override;
  void write_pd_data(igsOutStream& out) override;
  void print_pd_data(utOstream& out) const override;
  void check_pd() const override;

  void print_2d_tuples(utOstream& out) const;
  void print_3d_tuples(utOstream& out) const;
  void print_6d_tuples(utOstream& out) const;

 private:
  int flag_is(int value) const { return m_dimensionality == value; }
  int index_in(int index, int size) const { return index >= 0 && index < size; }
  // Stores the point (and with flag 3 the vector) at the index, growing the lists.
  int store(int index, giPoint3 const& point, giVector3 const* vector);
  // The vector of an item; unset where the list of vectors is shorter.
  giVector3 vector_at(int index) const;
  template <class E, class... A> void raise(A... arguments) const {
    this->template raise_error<E>(arguments...);
  }

  int m_dimensionality = igs_unset_int;
  double m_z_level = igs_unset_double;
  giPoint3coDynArr m_points;
  giVector3coDynArr m_vectors;
};
