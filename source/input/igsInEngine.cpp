#include "input/igsInEngine.h"

igsInEngine::~igsInEngine() = default;

void igsInEngine::slow_decode(igsDecoder& decoder) {
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
    decoder.accept_character(c, cont, check);
    if (!cont) break;
    ++*this;
  }
  decoder.decode();
}

void igsInEngine::fixed_slow_decode(igsDecoder& decoder, unsigned int width) {
  char const* p = (*this)();
  unsigned int i = 0;
  // Every decoder starts the slow way by passing over blanks, so leading ones (all of a
  // blank field) need not be handed over one by one.
  while (i < width && p[i] == ' ') ++i;
  for (; i < width && p[i]; ++i) {
    int cont = 0;
    int check = 0;
    decoder.accept_character(p[i], cont, check);
  }
  // A field cut short by the end of the line ends with it: the next read starts on the next
  // line, or a reader looping over fields would stand still.
  *this += width;
  decoder.decode();
}

void igsInEngine::collect_errors(igsIOErrorcoDynArr& errors) {
  append_errors(errors);
  stamp_errors(errors);
}

void igsInEngine::append_errors(igsIOErrorcoDynArr& errors) {
  igsInBuffer::collect_errors(errors);
  if (m_decoder) m_decoder->collect_errors(errors);
}

void igsInEngine::stamp_errors(igsIOErrorcoDynArr& errors) const {
  if (errors.empty()) return;
  igsFileSection section = igsSectionNone;
  int line = 0;
  int column = 0;
  position(section, line, column);
  for (igsIOError& e : errors) e.set_location(section, line, column);
}
