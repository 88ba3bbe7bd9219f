// Reference-counted string of char.
#pragma once

#include "support/coCollections.h"
#include "support/utTypes.h"

#include <iosfwd>
#include <string_view>

enum utStringLit { utStringLitTag = 0 };
enum utStringClaim { utStringClaimTag = 0 };

// The shared count behind utString. The destructor and assignment report whether the text
// they let go of is to be freed.
class utRef {
 public:
  static void copy_constructor_imp(int* count) {
    if (count) ++*count;
  }
  static int destructor_imp(int* count) { return count && --*count == 0; }
  // Joins `from`'s text and leaves `to`'s; returns nonzero if the old text is to be freed.
  static int assignment_imp(int* to, int* from) {
    copy_constructor_imp(from);
    return destructor_imp(to);
  }
};

// A string whose text is shared between copies and copied only when one of them is changed.
// A default string is null: it has no text at all, which some setters refuse; its length is 0
// and c_str() gives "". is_null() tells the two empties apart.
class utString {
 public:
  utString() = default;
  utString(char const* text);
  utString(utCopy, char const* text) : utString(text) {}
  utString(utStringLit, char const* text) : utString(text) {}
  // Takes a buffer allocated with new[]; size counts the terminator.
  utString(utStringClaim, char* buffer, int size);
  utString(char const* text, int length);
  utString(std::string_view text);
  utString(utString const& other, int start, int length);
  utString(utString const& other) : m_rep(other.m_rep) { utRef::copy_constructor_imp(count()); }
  utString(utString&& other) noexcept : m_rep(other.m_rep) { other.m_rep = nullptr; }
  utString& operator=(utString const& other);
  utString& operator=(utString&& other) noexcept;
  ~utString() { release(); }

  bool is_null() const { return m_rep == nullptr; }
  int length() const { return m_rep ? m_rep->length : 0; }
  char const* c_str() const { return m_rep ? m_rep->text : ""; }
  operator char const*() const { return c_str(); }
  std::string_view view() const { return {c_str(), static_cast<size_t>(length())}; }

  char operator[](int i) const { return c_str()[i]; }
  // Detaches a shared text before handing out a writable character.
  char& operator[](int i);

  bool operator==(utString const& other) const { return view() == other.view(); }
  bool operator==(char const* other) const {
    return view() == std::string_view(other ? other : "");
  }
  int compare(utString const& other) const { return view().compare(other.view()); }
  int case_compare(utString const& other) const;

  utString operator+(utString const& other) const;
  utString& operator+=(utString const& other);
  utString& operator+=(char c);
  // Appends the number in decimal.
  utString& operator<<(int value);

  // A copy without the trailing characters that appear in `set`.
  utString remove_trailing_chars(char const* set) const;
  // Reads the whole text as one decimal integer (optional sign, surrounding blanks allowed);
  // returns 1 on success, 0 with value 0 otherwise.
  int parse(int& value) const;
  // Reads a decimal integer from the start of the text; `end` is the index behind it.
  // Returns 1 if any digit was read.
  int parse(int& value, int& end) const;

 private:
  struct Rep {
    int count;
    int length;
    char text[1];
  };
  int* count() const { return m_rep ? &m_rep->count : nullptr; }
  static Rep* make(int length);
  void release();
  Rep* m_rep = nullptr;
};

std::ostream& operator<<(std::ostream& os, utString const& s);

template <> struct co_hash<utString> {
  size_t operator()(utString const& s) const { return std::hash<std::string_view>()(s.view()); }
};
