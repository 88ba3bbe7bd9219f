#include "support/utString.h"

#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>
#include <ostream>

utString::Rep* utString::make(int length) {
  if (length < 0) length = 0;
  void* mem = ::operator new(sizeof(Rep) + static_cast<size_t>(length), std::nothrow);
  if (!mem) return nullptr;
  Rep* rep = static_cast<Rep*>(mem);
  rep->count = 1;
  rep->length = length;
  rep->text[length] = '\0';
  return rep;
}

void utString::release() {
  if (utRef::destructor_imp(count())) ::operator delete(m_rep);
  m_rep = nullptr;
}

utString::utString(char const* text) {
  if (!text) return;
  *this = utString(text, static_cast<int>(std::strlen(text)));
}

utString::utString(char const* text, int length) {
  if (!text || length < 0) return;
  m_rep = make(length);
  if (m_rep && length) std::memcpy(m_rep->text, text, static_cast<size_t>(length));
}

utString::utString(std::string_view text) : utString(text.data(), static_cast<int>(text.size())) {}

utString::utString(utStringClaim, char* buffer, int size) {
  if (!buffer) return;
  int length = size > 0 ? static_cast<int>(strnlen(buffer, static_cast<size_t>(size))) : 0;
  *this = utString(buffer, length);
  delete[] buffer;
}

utString::utString(utString const& other, int start, int length) {
  int total = other.length();
  if (other.is_null() || start < 0 || start > total) return;
  if (length < 0 || start + length > total) length = total - start;
  *this = utString(other.c_str() + start, length);
}

utString& utString::operator=(utString const& other) {
  if (m_rep != other.m_rep) {
    if (utRef::assignment_imp(count(), other.count())) ::operator delete(m_rep);
    m_rep = other.m_rep;
  }
  return *this;
}

utString& utString::operator=(utString&& other) noexcept {
  if (this != &other) {
    release();
    m_rep = other.m_rep;
    other.m_rep = nullptr;
  }
  return *this;
}

char& utString::operator[](int i) {
  if (m_rep && m_rep->count > 1) *this = utString(c_str(), length());
  if (!m_rep) {
    static char scratch;
    scratch = '\0';
    return scratch;
  }
  return m_rep->text[i];
}

int utString::case_compare(utString const& other) const {
  int n = length() < other.length() ? length() : other.length();
  for (int i = 0; i < n; ++i) {
    int a = std::toupper(static_cast<unsigned char>(c_str()[i]));
    int b = std::toupper(static_cast<unsigned char>(other.c_str()[i]));
    if (a != b) return a < b ? -1 : 1;
  }
  return length() == other.length() ? 0 : (length() < other.length() ? -1 : 1);
}

utString utString::operator+(utString const& other) const {
  utString result(*this);
  result += other;
  return result;
}

utString& utString::operator+=(utString const& other) {
  if (other.is_null()) return *this;
  Rep* rep = make(length() + other.length());
  if (!rep) return *this;
  std::memcpy(rep->text, c_str(), static_cast<size_t>(length()));
  std::memcpy(rep->text + length(), other.c_str(), static_cast<size_t>(other.length()));
  release();
  m_rep = rep;
  return *this;
}

utString& utString::operator+=(char c) {
  return *this += utString(&c, 1);
}

utString& utString::operator<<(int value) {
  char digits[16];
  auto result = std::to_chars(digits, digits + sizeof digits, value);
  return *this += utString(digits, static_cast<int>(result.ptr - digits));
}

utString utString::remove_trailing_chars(char const* set) const {
  if (is_null()) return *this;
  int n = length();
  while (n > 0 && std::strchr(set, c_str()[n - 1]) && c_str()[n - 1] != '\0') --n;
  return n == length() ? *this : utString(c_str(), n);
}

int utString::parse(int& value, int& end) const {
  value = 0;
  end = 0;
  char const* text = c_str();
  char* stop = nullptr;
  long v = std::strtol(text, &stop, 10);
  if (stop == text) return 0;
  value = static_cast<int>(v);
  end = static_cast<int>(stop - text);
  return 1;
}

int utString::parse(int& value) const {
  int end = 0;
  if (!parse(value, end)) return 0;
  while (end < length() && std::isspace(static_cast<unsigned char>(c_str()[end]))) ++end;
  if (end != length()) {
    value = 0;
    return 0;
  }
  return 1;
}

std::ostream& operator<<(std::ostream& os, utString const& s) {
  return os << s.view();
}
