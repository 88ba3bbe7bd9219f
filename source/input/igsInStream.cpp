#include "input/igsInStream.h"

igsInStream::igsInStream(std::istream& stream) : igsInEngine(stream) {
  configure_for_decode(&m_int);
}

igsInStream::~igsInStream() = default;

// The integer, string, Hollerith and real decoders in turn: codes of the filler and the
// checker come with the first, and a fatal one again with each. All stand where the cursor
// stands, so the list is stamped once.
void igsInStream::collect_errors() {
  m_errors.shrink(0);
  igsDecoder* decoders[] = {&m_int, &m_string, &m_holerith, &m_real};
  for (igsDecoder* decoder : decoders) {
    configure_for_decode(decoder);
    append_errors(m_errors);
  }
  stamp_errors(m_errors);
  m_collected = 1;
}

igsIOErrorcoDynArr const& igsInStream::errors() {
  if (!m_collected) collect_errors();
  return m_errors;
}

int igsInStream::error() {
  return !errors().empty();
}

int igsInStream::error_type(igsIOErrorCode code) {
  return igs_has_io_error(errors(), code);
}
