#include "entities/surfaces/igs141.h"

#include "entities/curves/igs116.h"
#include "entities/surfaces/igs108.h"
#include "entities/surfaces/igsTrimmedErrors.h"

IGS_ENTITY_DEFINE(igs141, igsObject, 141, 0, IGS_DE_ALL)

// --- The record of one curve -------------------------------------------------------------

int igsModelSpaceCurve::valid() const {
  if ((m_reversal != 1 && m_reversal != 2) || !m_curve) return 0;
  for (igsObjectPtr const& curve : m_parameter_curves)
    if (!curve) return 0;
  return 1;
}

static char const* const reversal_words[] = {"", "(No Reversal)", "(Reversal Required)"};

void igsModelSpaceCurve::print(utOstream& out) const {
  igs_print_reference(out, "BasisCurve", m_curve);
  char const* word = m_reversal == 1 || m_reversal == 2 ? reversal_words[m_reversal] : "(Unknown)";
  out << "ReverseCurve = " << m_reversal << word << "\n";
  out << "NumberOfParameterCurves = " << m_parameter_curves.size() << "\n";
  igs_print_references(out, "ParameterCurve", m_parameter_curves);
}

void igsModelSpaceCurve::unreference_children() {
  m_curve.unreference();
  for (igsObjectPtr& curve : m_parameter_curves) curve.unreference();
}

int igsModelSpaceCurve::read(igsInStream& in, int& count) {
  count = 0;
  igs_read_fields(in, m_curve, m_reversal, count);
  return count >= 0 && igs_read_references(in, count, m_parameter_curves);
}

void igsModelSpaceCurve::write(igsOutStream& out) const {
  igs_write_fields(out, m_curve, m_reversal);
  igs_write_references(out, m_parameter_curves);
}

// --- The boundary ------------------------------------------------------------------------

// A place that set_model_space_curve left empty holds no curve, no sense and no parameter
// curves.
igsModelSpaceCurve const& igs141::record(int position) const {
  static igsModelSpaceCurve const empty;
  igsModelSpaceCurve const* found = m_curves[position].get();
  return found ? *found : empty;
}

int igs141::model_space_curve(int position, igsModelSpaceCurve** curve) const {
  if (position < 0 || position >= m_curves.size()) return 0;
  *curve = m_curves[position].get();
  return 1;
}

int igs141::set_model_space_curve(int position, igsModelSpaceCurve const* curve) {
  if (position < 0 || !curve || !curve->valid()) return 0;
  while (m_curves.size() <= position)
    if (!m_curves.append(coPrg<igsModelSpaceCurve>())) return 0;
  m_curves[position].reset(const_cast<igsModelSpaceCurve*>(curve));
  return 1;
}

void igs141::unreference_children() {
  igsOnSurface::unreference_children();
  for (coPrg<igsModelSpaceCurve>& curve : m_curves)
    if (curve) curve->unreference_children();
}

// Each record joins the list before its data are read, so that a failed read leaves the
// records read so far in place. A record that ends before its count is reached gives the
// curves it holds.
int igs141::read_pd_data(igsInStream& in) {
  int count = 0;
  igs_read_fields(in, m_representation, m_preferred, m_surface, count);
  if (count < 0) return raise_error<igs141BadNumModelSpaceCurves>(count), 0;
  m_curves.clear();
  if (!igs_reserve(m_curves, count)) return 0;
  for (int i = 0; i < count && !in.frozen(); ++i) {
    coPrg<igsModelSpaceCurve> owned(new (std::nothrow) igsModelSpaceCurve);
    igsModelSpaceCurve* curve = owned.get();
    if (!curve || !m_curves.append(std::move(owned))) return 0;
    int parameter_curves = 0;
    if (curve->read(in, parameter_curves)) continue;
    if (parameter_curves < 0) raise_error<igs141BadNumAssocParamCurves>(i, parameter_curves);
    return 0;
  }
  return 1;
}

void igs141::write_pd_data(igsOutStream& out) {
  igs_write_fields(out, m_representation, m_preferred, m_surface, m_curves.size());
  for (int i = 0; i < m_curves.size(); ++i) record(i).write(out);
}

static char const* const representation_words[] = {"(ModelSpaceCurvesOnly)", "(Both)"};
static char const* const preferred_words[] = {"(Unspecified)", "(ModelSpace)", "(ParameterSpace)",
                                              "(Both)"};

void igs141::print_pd_data(utOstream& out) const {
  igs_print_enumerated(out, "BoundedSurfaceRep = ", m_representation, representation_words);
  igs_print_enumerated(out, "PreferredRep = ", m_preferred, preferred_words);
  igs_print_reference(out, "BasisSurface", m_surface);
  out << "NumberOfModelSpaceCurves = " << m_curves.size() << "\n";
  for (int i = 0; i < m_curves.size(); ++i) {
    out << "ModelSpaceCurves(" << i << ") = {\n";
    {
      utOstream nested(utOstreamTabTag, out, 1, 0);
      record(i).print(nested);
    }
    out << "}\n";
  }
}

void igs141::check_pd() const {
  if (!igs_flag_valid(m_representation)) raise_error<igs141InvalidBoundedSurfRep>(m_representation);
  if (!igs_enumerated_valid(m_preferred, 4)) raise_error<igs141InvalidPreferrenceFlag>(m_preferred);
  check_basis_surface<igs141NullSurfacePtr, igs141InvalidSurfaceType, igs141InvalidSurfaceData>();
  if (m_curves.size() <= 0) raise_error<igs141BadNumModelSpaceCurves>(m_curves.size());
  for (int i = 0; i < m_curves.size(); ++i) check_curve(i, record(i));
}

// A point is a boundary curve too.
static int curve_or_point(igsObject const& object) {
  return object.typeof(igsCurve::type()) || object.typeof(igs116::type());
}

// Parameter curves are checked even where the representation says there are none; a curve
// in the parameter space of a plane, which has none, is a fault whatever the curve is.
void igs141::check_curve(int i, igsModelSpaceCurve const& curve) const {
  int reversal = curve.reversal_needed();
  if (reversal != 1 && reversal != 2) raise_error<igs141InvalidReversalFlag>(i, reversal);
  check_reference<igs141NullModelSpaceCurvePtr, igs141InvalidModelSpaceCurveType,
                  igs141InvalidModelSpaceCurveData>(curve.model_space_curve(), curve_or_point, i);
  int count = curve.number_of_parameter_curves();
  if (count >= 1 && m_representation == 0) raise_error<igs141UnexpectedParamCurves>(i);
  bool on_plane = m_surface && m_surface->isa(igs108::type());
  for (int j = 0; j < count; ++j) {
    igsObjectPtr parameter_curve;
    curve.parameter_curve(j, parameter_curve);
    if (!parameter_curve) {
      raise_error<igs141NullParameterCurvePtr>(i, j);
      continue;
    }
    if (on_plane) raise_error<igs141Trim2DNonParametricSurface>();
    check_reference<igs141NullParameterCurvePtr, igs141InvalidParameterCurveType,
                    igs141InvalidParameterCurveData>(parameter_curve, igs_kind_of<igsCurve>, i, j);
  }
}

// --- Repairs -----------------------------------------------------------------------------

IGS_CHILD_REPAIR(igs141InvalidSurfaceData, igs141, igs_child_at<&igs141::basis_surface>)

// The record of the curve that the error names; null when there is none any more.
static igsModelSpaceCurve* named_record(int key, int i) {
  igs141 const* boundary = igs_error_entity<igs141>(key);
  igsModelSpaceCurve* curve = nullptr;
  return boundary && boundary->model_space_curve(i, &curve) ? curve : nullptr; // null if empty
}

static igsObject const* named_curve(igs141 const& boundary,
                                    igs141InvalidModelSpaceCurveData const& e) {
  igsModelSpaceCurve* curve = nullptr;
  return boundary.model_space_curve(e.curve(), &curve) && curve
             ? igs_target(curve->model_space_curve())
             : nullptr;
}
IGS_CHILD_REPAIR(igs141InvalidModelSpaceCurveData, igs141, named_curve)

static igsObject const* named_parameter_curve(igs141 const& boundary,
                                              igs141InvalidParameterCurveData const& e) {
  igsModelSpaceCurve* curve = nullptr;
  igsObjectPtr parameter_curve;
  return boundary.model_space_curve(e.curve(), &curve) && curve &&
                 curve->parameter_curve(e.parameter(), parameter_curve)
             ? igs_target(parameter_curve)
             : nullptr;
}
IGS_CHILD_REPAIR(igs141InvalidParameterCurveData, igs141, named_parameter_curve)

int igs141InvalidPreferrenceFlag::fix() {
  igs141* boundary = igs_error_entity<igs141>(key());
  return boundary && (boundary->set_preferred_representation(igs141PreferUnspecified), 1);
}

int igs141InvalidReversalFlag::fix() {
  igsModelSpaceCurve* record = named_record(key(), curve());
  return record && (record->set_reversal_needed(1), 1);
}

int igs141InvalidModelSpaceCurveType::fix() {
  igsModelSpaceCurve* record = named_record(key(), curve());
  return record &&
         igs_replace_by_curve(record->model_space_curve(), [record](igsObjectPtr const& c) {
           record->set_model_space_curve(c);
         });
}

int igs141InvalidParameterCurveType::fix() {
  igsModelSpaceCurve* record = named_record(key(), curve());
  igsObjectPtr parameter_curve;
  return record && record->parameter_curve(parameter(), parameter_curve) &&
         igs_replace_by_curve(std::move(parameter_curve), [record, this](igsObjectPtr const& c) {
           record->set_parameter_curve(parameter(), c);
         });
}
