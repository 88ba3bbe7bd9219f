// The boundary (type 141): the curves in model space that bound a piece of a basis surface,
// each with its sense and the curves in the surface's parameter space that go with it. A
// record of one such curve lives only inside its boundary, which owns it.
#pragma once

#include "entities/surfaces/igsOnSurface.h"

class igsModelSpaceCurve {
 public:
  igsObjectPtr const& model_space_curve() const { return m_curve; }
  // 1 no reversal, 2 reversal required; 0 while unset.
  int reversal_needed() const { return m_reversal; }
  int number_of_parameter_curves() const { return m_parameter_curves.size(); }
  // 1 and the curve for a position in range; else 0.
  int parameter_curve(int position, igsObjectPtr& curve) const {
    return igs_member(m_parameter_curves, position, curve);
  }
  // Store without any test.
  void set_model_space_curve(igsObjectPtr const& curve) { m_curve = curve; }
  void set_reversal_needed(int reversal) { m_reversal = reversal; }
  // Makes room for the count (0 for a negative one); the count itself stays as it is.
  int set_number_of_parameter_curves(int count) {
    return count >= 0 && (count == 0 || m_parameter_curves.reserve(count));
  }
  // Refuses a negative position only; grows the list to hold the position.
  int set_parameter_curve(int position, igsObjectPtr const& curve) {
    return igs_set_member(m_parameter_curves, position, curve);
  }
  // 1 when the sense is set, the curve is there, and so is every parameter curve.
  int valid() const;
  void print(utOstream& out) const;
  void unreference_children();

  // The curve, its sense, the count of parameter curves and their references: the record's
  // part of the boundary's parameters. A negative count goes to `count`, and gives 0.
  int read(igsInStream& in, int& count);
  void write(igsOutStream& out) const;

 private:
  igsObjectPtr m_curve;
  int m_reversal = 0;
  igsObjectPtrcoDynArr m_parameter_curves;
};

using igsModelSpaceCurvecoDynArrPrgcoPrgcoDynArr = coDynArr<coPrg<igsModelSpaceCurve>>;

enum igs141PreferredRep : int {
  igs141PreferUnspecified,
  igs141PreferModelSpace,
  igs141PreferParameterSpace,
  igs141PreferBoth
};

class igs141 : public igsOnSurface<igsObject> {
  IGS_ENTITY_CLASS(igs141)

  // 0 model-space curves only, 1 both; as the file holds it.
  int bounded_surface_representation() const { return m_representation; }
  void set_bounded_surface_representation(int value) { m_representation = value; }
  int preferred_representation() const { return m_preferred; }
  // Stores without any test.
  void set_preferred_representation(igs141PreferredRep preferred) { m_preferred = preferred; }
  int number_of_model_space_curves() const { return m_curves.size(); }
  // The record at a position in range (null where none was set), which the boundary keeps
  // owning, and 1; else 0.
  int model_space_curve(int position, igsModelSpaceCurve** curve) const;
  // Takes a valid record over at a position that is not negative, growing the list to hold
  // it, and gives 1; the record that stood there goes. Else 0, and the caller keeps it.
  int set_model_space_curve(int position, igsModelSpaceCurve const* curve);

 protected:
  void unreference_children() override;

 private:
  // The record at a position in range.
  igsModelSpaceCurve const& record(int position) const;
  void check_curve(int i, igsModelSpaceCurve const& curve) const;

  int m_representation = 0;
  int m_preferred = igs141PreferUnspecified;
  igsModelSpaceCurvecoDynArrPrgcoPrgcoDynArr m_curves;
};
