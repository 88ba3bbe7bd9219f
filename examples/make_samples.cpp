// Writes the two sample files of examples/, both built through the library's API:
//
// bracket.igs, a small clean file of a flat bracket, 100 x 60 x 5 mm, with an entity of every
// family: points, lines, arcs and polylines of its outline; its top face as a B-spline surface
// trimmed by a boundary curve; the plate as a solid (a box of six faces); a drawing with one
// view and a note; a colour definition; entity labels and subscripts as names.
//
// bracket-damaged.igs, the same part with faults in its entities, each of which a repair
// brings back to the clean value:
//   - a corner arc whose centre moved off the bisector of its ends (radii 5 and 13, not 9);
//   - a trimming curve whose preferred representation flag is 7;
//   - a face of the shell turned by an orientation flag of 2;
//   - a note whose text mirror flag is 3;
//   - a view of scale 0;
//   - a colour definition whose own Directory Entry has no colour number;
// and the text of that file damaged the way real files arrive:
//   - every line ends in CR LF;
//   - a tab stands in a Start line and in a Parameter line;
//   - a blank line stands between two Directory Entries;
//   - a Parameter continuation line lost its leading "0." (the reader restores the point);
//   - the Terminate line counts one Global line too many.
//
// Usage: igs_make_samples OUTPUT_FOLDER
// The test "examples_are_current" runs it and compares with the files in examples/.
#include "core/igsFile.h"
#include "core/igsObjectSystem.h"
#include "entities/annotation/igs212.h"
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igs126.h"
#include "entities/curves/igsPolyline.h"
#include "entities/solids/igs186.h"
#include "entities/solids/igs502.h"
#include "entities/solids/igs504.h"
#include "entities/solids/igs508.h"
#include "entities/solids/igs510.h"
#include "entities/solids/igs514.h"
#include "entities/structure/igs314.h"
#include "entities/structure/igs404.h"
#include "entities/structure/igs410_0.h"
#include "entities/surfaces/igs128.h"
#include "entities/surfaces/igs142.h"
#include "entities/surfaces/igs144.h"
#include "sections/igsDate.h"
#include "sections/igsGlobalSection.h"
#include "sections/igsStartSection.h"
#include "sections/igsUnits.h"
#include "support/utOstream.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> split_lines(std::string const& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// A closed polygon as a B-spline curve of order 2 through the points (the last is the first).
igs126* polygon(std::vector<giPoint3> const& points) {
  auto* curve = new igs126;
  int n = static_cast<int>(points.size());
  curve->set_order_size(2, n);
  // Knots 0, 0, 1, ..., n - 1, n - 1: the curve runs through every point in turn.
  curve->set_knot(0, 0), curve->set_knot(n + 1, n - 1);
  for (int i = 0; i < n; ++i) curve->set_knot(i + 1, i);
  for (int i = 0; i < n; ++i) curve->set_control_point(i, points[i]), curve->set_weight(i, 1);
  curve->set_parametric_limits(0, n - 1);
  curve->set_planar_flag(1), curve->set_closed_flag(1), curve->set_unit_normal({0, 0, 1});
  return curve;
}

// A plane as a bilinear B-spline surface through four corners, counter-clockwise.
igs128* plane(giPoint3 const& a, giPoint3 const& b, giPoint3 const& c, giPoint3 const& d) {
  auto* surface = new igs128;
  surface->set_order_size(2, 2, 2, 2);
  for (int i = 0; i < 4; ++i) surface->set_knot_u(i, i / 2), surface->set_knot_v(i, i / 2);
  giPoint3 const corners[] = {a, b, d, c};
  for (int i = 0; i < 4; ++i)
    surface->set_control_point(i % 2, i / 2, corners[i]), surface->set_weight(i % 2, i / 2, 1);
  surface->set_parametric_limits_u(0, 1), surface->set_parametric_limits_v(0, 1);
  return surface;
}

// The plate as a box of six faces on planes, with its vertices and edges in two lists.
igs186* plate(double x, double y, double z, bool damaged) {
  auto* vertices = new igs502;
  vertices->set_size(8);
  for (int i = 0; i < 8; ++i) // bit 0: x, bit 1: y, bit 2: z
    vertices->set_vertex(i, giPoint3(i & 1 ? x : 0, i & 2 ? y : 0, i & 4 ? z : 0));
  // Each face's corners, counter-clockwise seen from outside.
  int const faces[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                           {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
  auto* edges = new igs504;
  edges->set_size(12);
  std::vector<std::pair<int, int>> ends; // edge i runs from ends[i].first to ends[i].second
  auto* shell = new igs514;
  for (int f = 0; f < 6; ++f) {
    auto* loop = new igs508;
    for (int k = 0; k < 4; ++k) {
      int a = faces[f][k], b = faces[f][(k + 1) % 4];
      size_t e = 0;
      while (e < ends.size() && ends[e] != std::pair{a, b} && ends[e] != std::pair{b, a}) ++e;
      if (e == ends.size()) {
        ends.push_back({a, b});
        auto* line = new igs110;
        line->set_start_point(vertices->vertex(a)), line->set_end_point(vertices->vertex(b));
        igsEdge edge;
        edge.set_curve(line), edge.set_first_vertex(vertices, a);
        edge.set_second_vertex(vertices, b), edges->set_edge(static_cast<int>(e), edge);
      }
      igsOrientedEdge used;
      used.set_edge_type(0), used.set_list(edges), used.set_list_index(static_cast<int>(e));
      used.set_orientation(ends[e].first == a), loop->set_oriented_edge(k, used);
    }
    auto* face = new igs510;
    face->set_basis_surface(plane(vertices->vertex(faces[f][0]), vertices->vertex(faces[f][1]),
                                  vertices->vertex(faces[f][2]), vertices->vertex(faces[f][3])));
    face->set_outer_loop(1), face->set_loop(loop, 0);
    igsOrientedFace oriented;
    oriented.set_target(face), oriented.set_orientation(damaged && f == 1 ? 2 : 1);
    shell->set_face(f, oriented);
  }
  auto* solid = new igs186;
  igsOrientedShell outer;
  outer.set_target(shell), outer.set_orientation(1);
  solid->set_outer_shell(outer);
  return solid;
}

std::string make_part(bool damaged) {
  igsFile file;
  igsObjectSystem::set_current_file(file);

  igsStartSection start;
  char const* text[] = {"igs sample: a flat bracket, 100 x 60 x 5 mm, with two holes. Its outline",
                        "in points, lines, arcs and polylines; its top face trimmed; the plate",
                        "as a solid; a drawing with a view and a note; a colour; named parts."};
  for (int i = 0; i < 3; ++i) start.set_line(i, utString(text[i]));
  file.set_start_section(start);

  igsGlobalSection global;
  global.set_product_id_from_sending_system("bracket");
  global.set_file_name("bracket.igs");
  global.set_system_id("igs");
  global.set_preprocessor_version("igs 0.1.0");
  global.set_binary_bits_for_int(32);
  global.set_sp_max_pow10(38);
  global.set_sp_sig_digs(6);
  global.set_dp_max_pow10(308);
  global.set_dp_sig_digs(15);
  global.set_product_id_for_receiving_system("bracket");
  global.set_units(igsUnits(utString("MM"), 2));
  global.set_width_of_max_line_weight(1.0);
  global.set_minimum_resolution(0.001);
  global.set_max_coord_value(100.0);
  global.set_name_of_author("igs developers");
  global.set_authors_organization("igs");
  global.set_iges_version(11);
  // Fixed dates, so the sample is the same on every run.
  global.set_file_creation_date(igsDate(utString("20261101.120000")));
  global.set_file_modification_date(igsDate(utString("20261101.120000")));
  file.set_global_section(global);

  // The hole centres, named HOLE(1) and HOLE(2).
  int hole = 0;
  for (auto [x, y] : {std::pair{20.0, 30.0}, std::pair{80.0, 30.0}}) {
    auto* p = new igs116;
    p->set_point(giPoint3(x, y, 0.0));
    p->directory_entry().set_entity_label("HOLE");
    p->directory_entry().set_entity_subscript(++hole);
  }
  auto line = [](double x1, double y1, double x2, double y2) {
    auto* l = new igs110;
    l->set_start_point(giPoint3(x1, y1, 0.0));
    l->set_end_point(giPoint3(x2, y2, 0.0));
  };
  line(9, 0, 91, 0);
  line(100, 9, 100, 51);
  line(91, 60, 9, 60);
  line(0, 51, 0, 9);
  // Rounded corners: quarter arcs of radius 9, counter-clockwise from start to end.
  auto arc = [](double cx, double cy, double sx, double sy, double ex, double ey) {
    auto* a = new igs100;
    a->set_z_level(0.0);
    a->set_centre(giPoint2(cx, cy));
    a->set_start_point(giPoint2(sx, sy));
    a->set_end_point(giPoint2(ex, ey));
  };
  if (damaged)
    arc(88, 4, 91, 0, 100, 9);
  else
    arc(91, 9, 91, 0, 100, 9);
  arc(91, 51, 100, 51, 91, 60);
  arc(9, 51, 9, 60, 0, 51);
  arc(9, 9, 0, 9, 9, 0);
  // The slot between the holes, and a sketch line whose points run over several lines.
  auto* slot = new igsPolyline;
  slot->set_dimensionality(igsPolylineXYZ);
  double slot_points[][3] = {{35, 25, 0}, {65, 25, 0}, {65, 35, 0}, {35, 35, 0}, {35, 25, 0}};
  for (int i = 0; i < 5; ++i)
    slot->set_point_3d(i, giPoint3(slot_points[i][0], slot_points[i][1], slot_points[i][2]));
  auto* sketch = new igsPolyline;
  sketch->set_dimensionality(igsPolylineXYCommonZ);
  sketch->set_z_level(5.0);
  for (int i = 0; i < 24; ++i)
    sketch->set_point_planar(i, giPoint2(0.25 + 4.0 * i, 0.5 + (i % 2 ? 0.25 : 0.125)));

  // The top face, trimmed to the area between the holes: the same rectangle in the surface's
  // parameters and in model space.
  igs128* top = plane({0, 0, 5}, {100, 0, 5}, {100, 60, 5}, {0, 60, 5});
  auto* boundary = new igs142;
  boundary->set_basis_surface(top);
  boundary->set_curve_2d(
      polygon({{0.2, 0.25, 0}, {0.8, 0.25, 0}, {0.8, 0.75, 0}, {0.2, 0.75, 0}, {0.2, 0.25, 0}}));
  boundary->set_curve_3d(
      polygon({{20, 15, 5}, {80, 15, 5}, {80, 45, 5}, {20, 45, 5}, {20, 15, 5}}));
  boundary->set_preferred_representation(damaged ? static_cast<igs142PreferredRep>(7)
                                                 : igs142PreferUnspecified);
  auto* face = new igs144;
  face->set_basis_surface(top);
  face->set_outer_boundary_flag(1);
  face->set_outer_boundary(boundary);
  face->directory_entry().set_entity_label("TOPFACE");

  // The plate as a solid, in a colour of its own.
  igs186* solid = plate(100, 60, 5, damaged);
  solid->directory_entry().set_entity_label("PLATE");
  auto* blue = new igs314;
  blue->set_colours(20, 40, 90);
  blue->set_name("STEEL BLUE");
  blue->directory_entry().set_colour(igsColour(damaged ? igsNoColour : igsBlue));
  igsColour colour;
  colour.set_colour_definition(blue);
  solid->directory_entry().set_colour(colour);

  // A drawing of one view, with a note on the sheet.
  auto* view = new igs410_0;
  view->set_view_number(1);
  view->set_scale_factor(damaged ? 0.0 : 1.0);
  auto* note = new igs212;
  igsWord word(utString("BRACKET 100 X 60 X 5"), 5, 100);
  word.set_start_point({0, 70, 0});
  if (damaged) word.set_text_appearance(static_cast<igsMirror_Status>(3), igsAlignmentHorizontal);
  note->set_num_strings(1);
  note->add_string(word, 0);
  auto* drawing = new igs404;
  igsDrawingView placed;
  placed.set_view(view);
  placed.set_origin({0, 0, 0});
  drawing->set_number_of_views(1);
  drawing->set_view(0, placed);
  drawing->set_number_of_entities(1);
  drawing->set_entity(0, note);
  drawing->directory_entry().set_entity_label("SHEET");

  std::ostringstream out;
  std::ostringstream discard;
  utOstream messages(discard);
  if (!file.write(out, messages)) return {};
  return out.str();
}

// Damages the clean text as described at the top; empty if a needed line is missing.
std::string make_damaged(std::string const& clean) {
  std::vector<std::string> lines = split_lines(clean);
  bool tab_in_start = false, tab_in_parameter = false, blank = false, lost_point = false;
  int directory_lines = 0;
  std::string out;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string line = lines[i];
    char section = line.size() > 72 ? line[72] : ' ';
    if (section == 'S' && !tab_in_start) {
      size_t at = line.find(' ');
      if (at != std::string::npos) line[at] = '\t', tab_in_start = true;
    }
    if (section == 'P' && !tab_in_parameter && i + 1 < lines.size()) {
      size_t at = line.find(' ', 1);
      if (at != std::string::npos && at < 60) line[at] = '\t', tab_in_parameter = true;
    }
    // A continuation line that starts with "0." loses those two characters.
    if (section == 'P' && !lost_point && line.rfind("0.", 0) == 0 && i > 0 &&
        lines[i - 1].find(", ") != std::string::npos && lines[i - 1][72] == 'P' &&
        lines[i - 1].find(';') == std::string::npos) {
      line.erase(0, 2);
      lost_point = true;
    }
    if (section == 'T') {
      // The G count is one too many.
      int g = std::atoi(line.substr(9, 7).c_str());
      char count[16];
      std::snprintf(count, sizeof count, "%7d", g + 1);
      line.replace(9, 7, count);
    }
    out += line + "\r\n";
    // Between the second and the third Directory Entry.
    if (section == 'D' && ++directory_lines == 4) {
      out += "\r\n";
      blank = true;
    }
  }
  if (!(tab_in_start && tab_in_parameter && blank && lost_point)) return {};
  return out;
}

bool write_file(std::filesystem::path const& path, std::string const& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
  return static_cast<bool>(out);
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: igs_make_samples OUTPUT_FOLDER\n";
    return 2;
  }
  std::filesystem::path folder(argv[1]);
  std::string clean = make_part(false);
  if (clean.empty()) {
    std::cerr << "igs_make_samples: writing the sample failed\n";
    return 1;
  }
  std::string damaged = make_damaged(make_part(true));
  if (damaged.empty()) {
    std::cerr << "igs_make_samples: the sample has no line for one of the damages\n";
    return 1;
  }
  if (!write_file(folder / "bracket.igs", clean) ||
      !write_file(folder / "bracket-damaged.igs", damaged)) {
    std::cerr << "igs_make_samples: cannot write into " << folder << "\n";
    return 1;
  }
  return 0;
}
