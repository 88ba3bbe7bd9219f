#include "sections/igsView.h"

#include "sections/igsEntityKind.h"
#include "support/utOstream.h"

igsView::igsView(int value) {
  if (value < 1) {
    m_number = value;
  } else {
    m_number = 0;
    m_view = igsObjectPtr(value);
  }
}

int igsView::set_view(igsObjectPtr const& view) {
  if (!view) return 0;
  m_view = view;
  m_number = 0;
  return 1;
}

int igsView::valid() const {
  if (!m_view) return m_number == 0;
  return igs_isa_class(m_view, igs410_0_class) || igs_isa_class(m_view, igs402_3_class);
}

void igsView::print(utOstream& out) const {
  if (m_view) {
    out << "single/list of views not supported";
    return;
  }
  out << m_number;
  if (m_number == 0) out << "(All Views)";
}

utOstream& operator<<(utOstream& out, igsView const& view) {
  view.print(out);
  return out;
}
