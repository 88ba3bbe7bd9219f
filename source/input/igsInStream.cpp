#include "input/igsInStream.h"

igsInStream::igsInStream(std::istream& stream) : igsInEngine(stream) {
  configure_for_decode(&m_int);
}

igsInStream::~igsInStream() = default;

// The integer, string, Hollerith and real decoders in turn: codes of the filler and the
// checker come with the first, and a fatal one again with each. All stand where the cursor
// stands, so the list is stamped once. While the filler and the checker hold no code, each
// decoder's codes are taken straight: most records leave a code in one decoder alone (that a
// field held a value).
void igsInStream::collect_errors() {
  m_errors.shrink(0);
  m_collected = 1;
  unsigned buffer_codes = code_bits();
  if (!buffer_codes && !decoder_code_bits()) { // nothing to collect: the common case
    configure_for_decode(&m_real);
    return;
  }
  igsDecoder* decoders[] = {&m_int, &m_string, &m_holerith, &m_real};
  for (igsDecoder* decoder : decoders) {
    if (!buffer_codes) {
      decoder->collect_errors(m_errors);
      continue;
    }
    configure_for_decode(decoder);
    append_errors(m_errors);
  }
  configure_for_decode(&m_real);
  stamp_errors(m_errors);
}

igsIOErrorcoDynArr const& igsInStream::errors() {
  if (!m_collected) collect_errors();
  return m_errors;
}

int igsInStream::error() {
  return !errors().empty();
}

int igsInStream::drop_value_codes() {
  if (m_collected) return 0;
  if ((code_bits() | decoder_code_bits()) & ~igsIOCodeList::bit(igsIOValuePresent)) return 0;
  m_int.drop_codes();
  m_string.drop_codes();
  m_holerith.drop_codes();
  m_real.drop_codes();
  return 1;
}

int igsInStream::error_type(igsIOErrorCode code) {
  return igs_has_io_error(errors(), code);
}
