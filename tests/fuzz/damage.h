// A fixed set of damages done to the text of a file, as real files come damaged: lines lost,
// swapped, joined or cut, the file cut short, bytes flipped in the D and P lines, tabs and
// NULs, other line ends. The same bytes always give the same damaged copies.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace igs_test {

struct Damaged {
  std::string what;
  std::string bytes;
};

namespace damage_detail {

// The lines of a text without their line ends, and the text made of lines again.
inline std::vector<std::string> lines_of(std::string const& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}
inline std::string joined(std::vector<std::string> const& lines, char const* end = "\n") {
  std::string text;
  for (auto const& line : lines) text += line + end;
  return text;
}
// The index of the first line with the section letter in column 73, or `fallback`.
inline size_t first_of(std::vector<std::string> const& lines, char letter, size_t fallback) {
  for (size_t i = 0; i < lines.size(); ++i)
    if (lines[i].size() > 72 && lines[i][72] == letter) return i;
  return fallback;
}

} // namespace damage_detail

// The damaged copies of `text`.
inline std::vector<Damaged> damaged_copies(std::string const& text) {
  using namespace damage_detail;
  std::vector<Damaged> out;
  std::vector<std::string> const lines = lines_of(text);
  size_t const n = lines.size();
  if (n == 0) return out;
  size_t const d = first_of(lines, 'D', n / 3);
  size_t const p = first_of(lines, 'P', 2 * n / 3);
  auto with_lines = [&](std::string what, auto change) {
    std::vector<std::string> copy = lines;
    change(copy);
    out.push_back({std::move(what), joined(copy)});
  };

  with_lines("first D line dropped", [&](auto& l) { l.erase(l.begin() + static_cast<long>(d)); });
  with_lines("first P line dropped", [&](auto& l) { l.erase(l.begin() + static_cast<long>(p)); });
  with_lines("a D line and a P line swapped", [&](auto& l) { std::swap(l[d], l[p]); });
  with_lines("two D lines swapped", [&](auto& l) { std::swap(l[d], l[d + 1 < n ? d + 1 : d]); });
  with_lines("D line joined to the next", [&](auto& l) {
    if (d + 1 < l.size()) {
      l[d] += l[d + 1];
      l.erase(l.begin() + static_cast<long>(d + 1));
    }
  });
  with_lines("every line cut at column 72", [&](auto& l) {
    for (auto& line : l)
      if (line.size() > 72) line.resize(72);
  });
  with_lines("blanks of the P lines turned to tabs", [&](auto& l) {
    for (size_t i = p; i < l.size(); i += 3)
      for (char& c : l[i])
        if (c == ' ') c = '\t';
  });
  with_lines("NULs in D and P lines", [&](auto& l) {
    for (size_t i = d; i < l.size(); i += 5) l[i].insert(l[i].size() / 2, 1, '\0');
  });

  for (int quarter = 1; quarter <= 3; ++quarter)
    out.push_back({"cut at " + std::to_string(quarter) + "/4 of its bytes",
                   text.substr(0, text.size() * static_cast<size_t>(quarter) / 4 + 7)});
  out.push_back({"CR LF line ends", joined(lines, "\r\n")});
  out.push_back({"no line ends", joined(lines, "")});

  // Bytes flipped at places a fixed seed picks, in the D lines and in the P lines.
  std::mt19937 random(20261123u);
  for (auto [letter, from] : {std::pair{'D', d}, std::pair{'P', p}}) {
    std::vector<std::string> copy = lines;
    for (int flip = 0; flip < 12; ++flip) {
      std::string& line = copy[from + random() % (n - from)];
      if (line.empty()) continue;
      line[random() % line.size()] ^= static_cast<char>(1u << (random() % 7));
    }
    out.push_back({std::string("bytes flipped in the ") + letter + " lines", joined(copy)});
  }
  return out;
}

} // namespace igs_test
