// The parametric spline curve (type 112): N cubic segments between N + 1 breakpoints, each
// given by its polynomials in X, Y and Z, and the derivatives of the curve at its end. Sized
// once, by the file or a host, and never resized.
#pragma once

#include "entities/curves/igsCubicCoefficients.h"
#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"

enum igsSplineType : int {
  igsSplineLinear = 1,
  igsSplineQuadratic = 2,
  igsSplineCubic = 3,
  igsSplineWilsonFowler = 4,
  igsSplineModifiedWilsonFowler = 5,
  igsSplineBSpline = 6
};
enum igsSplineDimensionality : int { igsSplinePlanar = 2, igsSplineNonPlanar = 3 };

class igs112 : public igsCurve {
  IGS_ENTITY_CLASS(igs112)

  // Makes n segments of unset coefficients and n + 1 unset breakpoints. Refuses (0) a count
  // below 1, a second sizing, and a curve that memory cannot hold.
  int set_number_of_segments(int n);
  // 0 while unsized.
  int number_of_segments() const { return m_segments.size(); }
  int number_of_breakpoints() const { return m_breakpoints.size(); }
  // 0 for an index outside the breakpoints.
  int breakpoint(int index, double& value) const;
  int set_breakpoint(int index, double value);
  // 0 unless the count is the number of breakpoints.
  int set_all_breakpoints(int count, double const* const values);
  // The coefficients of segment i and the breakpoints that bound it; 0 outside the segments.
  int segment(int i, igsCubicCoefficients& x, igsCubicCoefficients& y, igsCubicCoefficients& z,
              double& t0, double& t1) const;
  int x_coefficients(int i, igsCubicCoefficients& x) const;
  int y_coefficients(int i, igsCubicCoefficients& y) const;
  int z_coefficients(int i, igsCubicCoefficients& z) const;
  // Refuses a segment outside the curve or a set with an unset coefficient.
  int set_xyz_coefficients(int i, igsCubicCoefficients const& x, igsCubicCoefficients const& y,
                           igsCubicCoefficients const& z);
  void xyz_derivatives(igsCubicDerivatives& x, igsCubicDerivatives& y,
                       igsCubicDerivatives& z) const;
  // Refuses derivatives with an unset value.
  int set_xyz_derivatives(igsCubicDerivatives const& x, igsCubicDerivatives const& y,
                          igsCubicDerivatives const& z);

  igsSplineType spline_type() const { return m_spline_type; }
  void set_spline_type(igsSplineType type) { m_spline_type = type; }
  // H, the degree of continuity: 0 to 3 are stored (3 only for the check to refuse).
  int continuity() const { return m_continuity; }
  int set_continuity(int continuity);
  igsSplineDimensionality dimensionality() const { return m_dimensionality; }
  void set_dimensionality(igsSplineDimensionality d) { m_dimensionality = d; }

 protected:
  int read_segments(igsInStream& in);
  int read_derivatives(igsInStream& in);
  void print_segment(utOstream& out, int i) const;

 private:
  struct Segment {
    igsCubicCoefficients x, y, z;
  };
  int segment_in_range(int i) const { return i >= 0 && i < m_segments.size(); }

  igsSplineType m_spline_type = igsSplineCubic;
  int m_continuity = igs_unset_int;
  igsSplineDimensionality m_dimensionality = igsSplineNonPlanar;
  coDynArr<double> m_breakpoints;
  coDynArr<Segment> m_segments;
  igsCubicDerivatives m_derivatives[3];
};
