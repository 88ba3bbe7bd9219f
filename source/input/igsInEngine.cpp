#include "input/igsInEngine.h"

namespace {
constexpr char data_end_mark = '\n';
}

igsInEngine::~igsInEngine() = default;

void igsInEngine::decode() {
  if (!m_decoder) return;
  m_decoder->reset_fast_decode();
  pre_decode();
  if (fast_decode()) return;
  m_decoder->reset_slow_decode();
  slow_decode();
}

// Brings the cursor to the first character of the field, across blank and short lines.
void igsInEngine::pre_decode() {
  for (;;) {
    char const* p = (*this)();
    unsigned int blanks = 0;
    while (p[blanks] == ' ') ++blanks;
    if (p[blanks] != data_end_mark || frozen()) {
      *this += blanks;
      return;
    }
    *this += blanks + 1;
  }
}

int igsInEngine::fast_decode() {
  if (!m_decoder->fast_decode_avail()) return 0;
  char const* p = (*this)();
  int used = m_decoder->decode_fast(p);
  int is_record = 0;
  if (!delimiter(p[used], is_record)) return 0;
  *this += static_cast<unsigned int>(used) + 1;
  halt_buffer(is_record);
  return 1;
}

void igsInEngine::slow_decode() {
  int check = 1;
  for (;;) {
    char c = **this;
    if (c == '\0') break;
    int is_record = 0;
    if (delimiter_check(check, c, is_record)) {
      ++*this;
      halt_buffer(is_record);
      break;
    }
    int cont = 0;
    m_decoder->accept_character(c, cont, check);
    if (!cont) break;
    ++*this;
  }
  m_decoder->decode();
}

void igsInEngine::fixed_decode(unsigned int width) {
  if (!m_decoder) return;
  m_decoder->reset_fast_decode();
  if (fixed_fast_decode(width)) return;
  m_decoder->reset_slow_decode();
  fixed_slow_decode(width);
}

// The field is cut out by a NUL planted behind it; behind the end of the line the NUL that
// ends it does the same.
int igsInEngine::fixed_fast_decode(unsigned int width) {
  if (!m_decoder->fast_decode_avail()) return 0;
  char* p = cursor();
  bool planted = static_cast<long>(width) <= room();
  char saved = planted ? p[width] : '\0';
  if (planted) p[width] = '\0';
  int used = m_decoder->decode_fast(p);
  if (planted) p[width] = saved;
  if (static_cast<unsigned int>(used) != width) return 0;
  *this += width;
  return 1;
}

void igsInEngine::fixed_slow_decode(unsigned int width) {
  char const* p = (*this)();
  unsigned int i = 0;
  for (; i < width && p[i]; ++i) {
    int cont = 0;
    int check = 0;
    m_decoder->accept_character(p[i], cont, check);
  }
  if (i == width) *this += width;
  m_decoder->decode();
}

void igsInEngine::collect_errors(igsIOErrorcoDynArr& errors) {
  igsInBuffer::collect_errors(errors);
  if (m_decoder) m_decoder->collect_errors(errors);
  igsFileSection section = igsSectionNone;
  int line = 0;
  int column = 0;
  position(section, line, column);
  for (igsIOError& e : errors) e.set_location(section, line, column);
}
