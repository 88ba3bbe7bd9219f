#include "output/igsOutStream.h"

igsOutStream::~igsOutStream() = default;

igsIOErrorcoDynArr const& igsOutStream::errors() {
  if (!m_collected) {
    m_errors.shrink(0);
    collect_errors(m_errors);
    m_collected = 1;
  }
  return m_errors;
}

int igsOutStream::reset() {
  if (!igsOutEngine::reset()) return 0;
  m_errors.shrink(0);
  m_collected = 0;
  return 1;
}
