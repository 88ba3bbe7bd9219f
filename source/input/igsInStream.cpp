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
  m_collected = 1;
  if (!has_codes() && !m_int.has_codes() && !m_string.has_codes() && !m_holerith.has_codes() &&
      !m_real.has_codes()) {
    configure_for_decode(&m_real); // where the loop below leaves it
    return;                        // the common case: nothing to collect
  }
  igsDecoder* decoders[] = {&m_int, &m_string, &m_holerith, &m_real};
  for (igsDecoder* decoder : decoders) {
    configure_for_decode(decoder);
    append_errors(m_errors);
  }
  stamp_errors(m_errors);
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
