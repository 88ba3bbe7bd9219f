// Writes the two sample files of examples/: bracket.igs, a small clean file built through the
// library's API (points, lines, arcs and polylines of a flat bracket outline), and
// bracket-damaged.igs, the same bytes damaged the way real files arrive:
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
#include "entities/curves/igs100.h"
#include "entities/curves/igs110.h"
#include "entities/curves/igs116.h"
#include "entities/curves/igsPolyline.h"
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

std::string make_clean() {
  igsFile file;
  igsObjectSystem::set_current_file(file);

  igsStartSection start;
  char const* text[] = {"igs sample: outline of a flat bracket, 100 x 60 mm, with two holes.",
                        "Points mark the hole centres; lines and arcs form the outline; the",
                        "polylines are the slot and a planar sketch line at Z = 5."};
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

  for (auto [x, y] : {std::pair{20.0, 30.0}, std::pair{80.0, 30.0}}) {
    auto* p = new igs116;
    p->set_point(giPoint3(x, y, 0.0));
  }
  auto line = [](double x1, double y1, double x2, double y2) {
    auto* l = new igs110;
    l->set_start_point(giPoint3(x1, y1, 0.0));
    l->set_end_point(giPoint3(x2, y2, 0.0));
  };
  line(10, 0, 90, 0);
  line(100, 10, 100, 50);
  line(90, 60, 10, 60);
  line(0, 50, 0, 10);
  // Rounded corners: quarter arcs, counter-clockwise from start to end.
  auto arc = [](double cx, double cy, double sx, double sy, double ex, double ey) {
    auto* a = new igs100;
    a->set_z_level(0.0);
    a->set_centre(giPoint2(cx, cy));
    a->set_start_point(giPoint2(sx, sy));
    a->set_end_point(giPoint2(ex, ey));
  };
  arc(90, 10, 90, 0, 100, 10);
  arc(90, 50, 100, 50, 90, 60);
  arc(10, 50, 10, 60, 0, 50);
  arc(10, 10, 0, 10, 10, 0);
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
  std::string clean = make_clean();
  if (clean.empty()) {
    std::cerr << "igs_make_samples: writing the sample failed\n";
    return 1;
  }
  std::string damaged = make_damaged(clean);
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
