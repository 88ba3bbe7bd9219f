#include "entities/structure/igsCharacter.h"

#include "entities/igsEntity.h"

igsCharacter::igsCharacter(int scale, int next_x, int motions, int ascii_code)
    : m_motions(motions), m_ascii_code(ascii_code), m_scale(scale), m_next_x(next_x),
      m_start(0.0, 0.0), m_next_start(next_x, 0.0) {
  set_size(motions);
  m_points.enter(0, m_start);
}

void igsCharacter::draw_line(int motion, giPoint2 const&, giPoint2 const& end, int pen) {
  if (motion < 0) return;
  if (motion == 0) m_points.enter(0, m_start);
  add_point(end, motion);
  add_pen_status(pen, motion);
}

// A count from a file sizes the arrays no further than a first reservation; drawing grows
// them while the motions last.
void igsCharacter::set_size(int motions) {
  if (motions < 1) return;
  m_motions = motions;
  int sized = motions < igs_max_initial_reserve ? motions : igs_max_initial_reserve;
  m_pen.clear();
  m_pen.expand(sized);
  m_points.clear();
  m_points.expand(sized + 1);
}

giPoint2 const& igsCharacter::read_end_point(int index) const {
  static giPoint2 const unset;
  return 0 <= index && index < m_points.size() ? m_points[index] : unset;
}

int igsCharacter::read_pen_status(int motion) const {
  return 0 <= motion && motion < m_pen.size() ? m_pen[motion] : 0;
}

int igsCharacter::invalid() const {
  return m_pen.size() == 0 || m_points.size() == 0 || m_start.invalid() || m_next_start.invalid() ||
         m_motions <= 0 || m_scale <= 0 || m_next_x <= 0 || m_ascii_code < 0;
}

void igsCharacter::add_point(giPoint2 const& point, int motion) {
  m_points.enter(motion + 1, point);
}

void igsCharacter::add_pen_status(int pen, int motion) {
  m_pen.enter(motion, pen);
}
