// The parametric spline surface (type 114): a grid of bicubic patches between the breakpoints
// in U and in V. For M by N patches the file holds M + 1 and N + 1 breakpoints and a last row
// and column of patches beyond them; every size the class gives counts those, so the grid is
// M + 1 by N + 1. Sized once, by the file or a host, and never resized.
#pragma once

#include "entities/igsEntity.h"
#include "entities/igsEntityBases.h"
#include "entities/surfaces/igsCubicPatch.h"
#include "support/coDynArr.h"

class igs114 : public igsParameterizedSurface {
  IGS_ENTITY_CLASS(igs114)

  int spline_type() const { return m_spline_type; }
  int patch_type() const { return m_patch_type; }
  // Makes the grid of m + 1 by n + 1 unset patches and unset breakpoints. Refuses (0) a count
  // below 1, a second sizing, and a grid that memory cannot hold.
  int set_number_of_patches(int m, int n);
  // The sizes of the grid, M + 1 and N + 1; 0 while it is not sized.
  int number_of_u_patches() const { return m_u.size(); }
  int number_of_v_patches() const { return m_v.size(); }
  int number_of_u_breakpoints() const { return m_u.size(); }
  int number_of_v_breakpoints() const { return m_v.size(); }
  // 0 for an index outside the grid.
  int u_breakpoint(int index, double& value) const;
  int v_breakpoint(int index, double& value) const;
  int set_u_breakpoint(int index, double value);
  int set_v_breakpoint(int index, double value);
  // 0 unless the count is the number of breakpoints.
  int set_all_u_breakpoints(int count, double const* const values);
  int set_all_v_breakpoints(int count, double const* const values);
  // The patch at U index i and V index j; 0 outside the grid.
  int patch(int i, int j, igsCubicPatch& patch) const;
  // The same with the breakpoints that bound it, so that i and j must lie below the last row
  // and column.
  int patch(int i, int j, double& u0, double& u1, double& v0, double& v1,
            igsCubicPatch& patch) const;
  // Refuses a patch outside the grid or with an unset coefficient.
  int set_patch(int i, int j, igsCubicPatch const& patch);

 protected:
  int read_patches(igsInStream& in);
  void print_patch(utOstream& out, int i, int j) const;

 private:
  int index_in_grid(int i, int j) const {
    return i >= 0 && i < m_u.size() && j >= 0 && j < m_v.size();
  }
  igsCubicPatch const& at(int i, int j) const { return m_patches[i * m_v.size() + j]; }

  int m_spline_type = 3;
  int m_patch_type = 1;
  coDynArr<double> m_u;
  coDynArr<double> m_v;
  // U index outer.
  coDynArr<igsCubicPatch> m_patches;
};
