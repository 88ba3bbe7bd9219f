#include "jsonCheck.h"

#include <cctype>

namespace {

struct Reader {
  std::string const& s;
  size_t i = 0;
  int depth = 0;

  void space() {
    while (i < s.size() && (s[i] == ' ' || s[i] == '\n' || s[i] == '\r' || s[i] == '\t')) ++i;
  }
  bool literal(char const* word) {
    for (size_t k = 0; word[k]; ++k)
      if (i + k >= s.size() || s[i + k] != word[k]) return false;
    while (*word++) ++i;
    return true;
  }
  bool string() {
    if (i >= s.size() || s[i] != '"') return false;
    for (++i; i < s.size(); ++i) {
      unsigned char c = static_cast<unsigned char>(s[i]);
      if (c == '"') {
        ++i;
        return true;
      }
      if (c < 0x20) return false;
      if (c == '\\') {
        if (++i >= s.size()) return false;
        char e = s[i];
        if (e == 'u') {
          for (int k = 0; k < 4; ++k)
            if (++i >= s.size() || !std::isxdigit(static_cast<unsigned char>(s[i]))) return false;
        } else if (std::string("\"\\/bfnrt").find(e) == std::string::npos) {
          return false;
        }
      }
    }
    return false;
  }
  bool number() {
    size_t start = i;
    if (i < s.size() && s[i] == '-') ++i;
    if (i >= s.size() || !std::isdigit(static_cast<unsigned char>(s[i]))) return false;
    if (s[i] == '0')
      ++i;
    else
      while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i;
    if (i < s.size() && s[i] == '.') {
      if (++i >= s.size() || !std::isdigit(static_cast<unsigned char>(s[i]))) return false;
      while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i;
    }
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
      ++i;
      if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
      if (i >= s.size() || !std::isdigit(static_cast<unsigned char>(s[i]))) return false;
      while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) ++i;
    }
    return i > start;
  }
  bool value() {
    space();
    if (i >= s.size() || ++depth > 64) return false;
    bool ok;
    char c = s[i];
    if (c == '{' || c == '[') {
      char close = c == '{' ? '}' : ']';
      ++i;
      space();
      if (i < s.size() && s[i] == close) {
        ++i;
        ok = true;
      } else {
        ok = false;
        while (true) {
          if (c == '{') {
            space();
            if (!string()) break;
            space();
            if (i >= s.size() || s[i++] != ':') break;
          }
          if (!value()) break;
          space();
          if (i < s.size() && s[i] == ',') {
            ++i;
            continue;
          }
          ok = i < s.size() && s[i++] == close;
          break;
        }
      }
    } else if (c == '"') {
      ok = string();
    } else if (c == 't' || c == 'f' || c == 'n') {
      ok = literal("true") || literal("false") || literal("null");
    } else {
      ok = number();
    }
    --depth;
    return ok;
  }
};

} // namespace

bool json_valid(std::string const& text) {
  Reader r{text};
  if (!r.value()) return false;
  r.space();
  return r.i == text.size();
}
