#include "entities/surfaces/igs114.h"

#include "entities/surfaces/igsSurfaceErrors.h"

#include <climits>

IGS_ENTITY_DEFINE(igs114, igsParameterizedSurface, 114, 0, IGS_DE_ALL)

// The patches of a grid of the sizes; -1 when int cannot count them.
static int grid_size(int u, int v) {
  long long patches = static_cast<long long>(u) * v;
  return patches <= INT_MAX ? static_cast<int>(patches) : -1;
}

int igs114::set_number_of_patches(int m, int n) {
  if (m < 1 || n < 1 || m == INT_MAX || n == INT_MAX || m_u.size()) return 0;
  int patches = grid_size(m + 1, n + 1);
  if (patches < 0 || !m_patches.expand(patches) || !m_u.expand(m + 1) || !m_v.expand(n + 1)) {
    m_patches.clear(1);
    m_u.clear(1);
    m_v.clear(1);
    return 0;
  }
  for (double& value : m_u) value = igs_unset_double;
  for (double& value : m_v) value = igs_unset_double;
  return 1;
}

static int breakpoint_at(coDynArr<double> const& breakpoints, int index, double& value) {
  if (index < 0 || index >= breakpoints.size()) return 0;
  value = breakpoints[index];
  return 1;
}
static int set_breakpoint_at(coDynArr<double>& breakpoints, int index, double value) {
  if (index < 0 || index >= breakpoints.size()) return 0;
  breakpoints[index] = value;
  return 1;
}
static int set_all_breakpoints(coDynArr<double>& breakpoints, int count,
                               double const* const values) {
  if (!breakpoints.size() || count != breakpoints.size()) return 0;
  for (int i = 0; i < count; ++i) breakpoints[i] = values[i];
  return 1;
}

int igs114::u_breakpoint(int index, double& value) const {
  return breakpoint_at(m_u, index, value);
}
int igs114::v_breakpoint(int index, double& value) const {
  return breakpoint_at(m_v, index, value);
}
int igs114::set_u_breakpoint(int index, double value) {
  return set_breakpoint_at(m_u, index, value);
}
int igs114::set_v_breakpoint(int index, double value) {
  return set_breakpoint_at(m_v, index, value);
}
int igs114::set_all_u_breakpoints(int count, double const* const values) {
  return set_all_breakpoints(m_u, count, values);
}
int igs114::set_all_v_breakpoints(int count, double const* const values) {
  return set_all_breakpoints(m_v, count, values);
}

int igs114::patch(int i, int j, igsCubicPatch& patch) const {
  if (!index_in_grid(i, j)) return 0;
  patch = at(i, j);
  return 1;
}

int igs114::patch(int i, int j, double& u0, double& u1, double& v0, double& v1,
                  igsCubicPatch& patch) const {
  if (i < 0 || j < 0 || i >= m_u.size() - 1 || j >= m_v.size() - 1) return 0;
  u0 = m_u[i];
  u1 = m_u[i + 1];
  v0 = m_v[j];
  v1 = m_v[j + 1];
  patch = at(i, j);
  return 1;
}

int igs114::set_patch(int i, int j, igsCubicPatch const& patch) {
  if (!index_in_grid(i, j) || !patch.valid()) return 0;
  m_patches[i * m_v.size() + j] = patch;
  return 1;
}

// --- Reading and writing -------------------------------------------------------------------

// The most patches whose room is made at once: as many values as igs_max_initial_reserve.
static int const max_initial_patches = igs_max_initial_reserve / 48;

// The counts are tested before anything is made. Within the room made at first a record that
// ends early gives 0.0 for the values it lacks, as for any defaulted field; beyond it a value is
// taken only while the record lasts, so that a damaged count costs no more memory than the
// record holds, and a record that ends first has a count it does not hold: the surface then
// has no size again.
int igs114::read_pd_data(igsInStream& in) {
  int m = 0, n = 0;
  igs_read_fields(in, m_spline_type, m_patch_type, m, n);
  if (m < 1 || m == INT_MAX) {
    raise_error<igs114BadNumUPatches>(m);
    return 0;
  }
  if (n < 1 || n == INT_MAX || grid_size(m + 1, n + 1) < 0) {
    raise_error<igs114BadNumVPatches>(n);
    return 0;
  }
  m_u.clear(1);
  m_v.clear(1);
  m_patches.clear(1);
  if (!igs_read_breakpoints(in, m_u, m + 1)) {
    raise_error<igs114BadNumUPatches>(m);
  } else if (!igs_read_breakpoints(in, m_v, n + 1)) {
    raise_error<igs114BadNumVPatches>(n);
  } else if (read_patches(in)) {
    return 1;
  } else {
    raise_error<igs114BadNumUPatches>(m);
  }
  m_u.clear(1);
  m_v.clear(1);
  m_patches.clear(1);
  return 0;
}

int igs114::read_patches(igsInStream& in) {
  return igs_read_counted(in, m_patches, m_u.size() * m_v.size(), max_initial_patches, [&] {
    double x[16], y[16], z[16];
    for (double* block : {x, y, z})
      for (int k = 0; k < 16; ++k) {
        block[k] = 0.0;
        in.read_double(block[k]);
      }
    igsCubicPatch patch;
    patch.set_coefficients(x, y, z);
    return patch;
  });
}

// A surface never sized writes counts of 0, which no reader takes.
void igs114::write_pd_data(igsOutStream& out) {
  int m = m_u.size() ? m_u.size() - 1 : 0, n = m_v.size() ? m_v.size() - 1 : 0;
  igs_write_fields(out, m_spline_type, m_patch_type, m, n);
  {
    igsParametricFormat parametric(out);
    for (double value : m_u) out.write_double(value);
    for (double value : m_v) out.write_double(value);
  }
  for (igsCubicPatch const& patch : m_patches) {
    double x[16], y[16], z[16];
    patch.coefficients(x, y, z);
    for (double const* block : {x, y, z})
      for (int k = 0; k < 16; ++k) out.write_double(block[k]);
  }
}

// --- Printing and checking -----------------------------------------------------------------

void igs114::print_patch(utOstream& out, int i, int j) const {
  out << "Patch (" << i << "," << j << ") = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    at(i, j).print(nested);
  }
  out << "}\n";
}

// The patches go V index outer, the reverse of the file's order.
void igs114::print_pd_data(utOstream& out) const {
  out << "SplineType = " << m_spline_type << igs_spline_type_word(m_spline_type) << "\n";
  out << "PatchType = " << m_patch_type
      << igs_flag_word(m_patch_type, "(Unspecified)", "(Cartesian Product)", "(Unknown)") << "\n";
  out << "NoOfPatchesInU = " << m_u.size() << "\n";
  out << "NoOfPatchesInV = " << m_v.size() << "\n";
  igs_print_breakpoints(out, "UBreakpoints = {", m_u);
  igs_print_breakpoints(out, "VBreakpoints = {", m_v);
  out << "Patches = {\n";
  {
    utOstream nested(utOstreamTabTag, out, 1, 0);
    if (m_patches.size() == m_u.size() * m_v.size())
      for (int j = 0; j < m_v.size(); ++j)
        for (int i = 0; i < m_u.size(); ++i) print_patch(nested, i, j);
  }
  out << "}\n";
}

// Neither the continuity between the patches nor the spline type is tested on the
// coefficients: a linear surface may have cubic terms.
void igs114::check_pd() const {
  int sized = m_u.size() && m_v.size() && m_patches.size() == m_u.size() * m_v.size();
  if (!sized) raise_error<igs114NoConstruct>();
  if (static_cast<unsigned>(m_spline_type) - 1u > 5u)
    raise_error<igs114InvalidSplineType>(m_spline_type);
  if (static_cast<unsigned>(m_patch_type) > 1u) raise_error<igs114InvalidPatchType>(m_patch_type);
  igs_check_breakpoints(
      m_u, [&](int i) { raise_error<igs114UnsetUBreakpoint>(i); },
      [&](int i, double value, double previous) {
        raise_error<igs114UBreakpointOutOfSequence>(i, value, previous);
      });
  igs_check_breakpoints(
      m_v, [&](int i) { raise_error<igs114UnsetVBreakpoint>(i); },
      [&](int i, double value, double previous) {
        raise_error<igs114VBreakpointOutOfSequence>(i, value, previous);
      });
  if (!sized) return;
  for (int i = 0; i < m_u.size(); ++i)
    for (int j = 0; j < m_v.size(); ++j)
      if (!at(i, j).valid()) raise_error<igs114InvalidPatch>(i, j);
}
