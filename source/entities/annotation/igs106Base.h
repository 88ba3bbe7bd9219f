// The annotation forms of the copious data entity (type 106): witness lines (form 40), section
// lines (31 to 38) and centre lines (20, 21), lists of planar points at a common Z that
// dimensions point to. They share the record: the flag IP, which must be 1, the number of
// points, Z, and the X and Y of each point. Each form class tests its size its own way before
// the common test of the flag.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "support/coNames.h"

class igs106Base : public igsAnnotation {
  KVU_DECLARE_TYPE()
 public:
  // The number of points as read or set; a negative one stays for the check to find.
  int size() const { return m_size; }
  // Stores the number; one not below 0 makes that many unset points. 0 when they could not be
  // made, and nothing changed.
  int set_size(int n);
  double z_depth() const { return m_z_depth; }
  void set_z_depth(double z) { m_z_depth = z; }
  // The point at an index; an unset point out of range.
  giPoint2 get_point(int index) const;
  // Stores the point at an index in range and gives 1; 0 elsewhere.
  int set_point(giPoint2 const& point, int index);
  int ip_flag() const { return m_ip; }
  void set_ip_flag(int ip) { m_ip = ip; }
  int form() const { return m_form; }

 protected:
  explicit igs106Base(int form) : m_form(form) {}

  int read_pd_data(igsInStream& in) override;
  void write_pd_data(igsOutStream& out) override;
  void print_pd_data(utOstream& out) const override;
  // The test of the flag, which each form class runs after its own.
  void check_pd() const override;

  giPoint2coDynArr const& points() const { return m_points; }
  // Whether the size is that of pairs of points: even, and at least 2.
  int pairs_of_points() const { return m_size >= 2 && m_size % 2 == 0; }
  // Stores a form in [first, last] and gives it to the Directory Entry; any other leaves the
  // stored form, which the Directory Entry then gets.
  void store_form(int form, int first, int last);

 private:
  int m_size = igs_unset_int;
  double m_z_depth = -2147483647.0;
  giPoint2coDynArr m_points;
  int m_form;
  int m_ip = 0;
};

// The Directory Entry steps of the annotation forms: no line weight, and a solid line font.
inline constexpr unsigned igs_106_annotation_de_steps = IGS_DE_SOLID_LINE_FONT | IGS_DE_LEVEL |
                                                        IGS_DE_MATRIX | IGS_DE_COLOUR |
                                                        IGS_DE_STATUS | IGS_DE_SUBSCRIPT;

// A form class over the forms First to Last, built with the form First. Its reading starts by
// taking the form of the Directory Entry, which brings the stored form into line with the
// file.
template <int First, int Last> class igs106Forms : public igs106Base {
 public:
  void set_form_number(int form) { store_form(form, First, Last); }

 protected:
  igs106Forms() : igs106Base(First) {}
  int read_pd_data(igsInStream& in) override {
    set_form_number(directory_entry().form_number());
    return igs106Base::read_pd_data(in);
  }
};
