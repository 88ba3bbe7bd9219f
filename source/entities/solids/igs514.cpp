#include "entities/solids/igs514.h"

#include "entities/solids/igsSolidErrors.h"

IGS_ENTITY_DEFINE(igs514, igsObject, 514, 1, IGS_DE_ALL & ~IGS_DE_MATRIX)

int igs514::set_size(int size) {
  if (size < 0) return 0;
  m_faces.clear();
  return m_faces.expand(size);
}

int igs514::get_original_index(int current) const {
  for (int position = m_index.size() - 1; position >= 0; --position)
    if (m_index.current(position) == current) return position;
  return -1;
}

int igs514::remove_bad_faces() {
  return igs_drop_members(m_faces, m_index, [](igsOrientedFace const& face) {
    return face.face() && face.face()->typeof(igs510::type()) &&
           face.face()->num_logged_errors() == 0;
  });
}

// A count below 1 reads no faces. The index list is made in every case.
int igs514::read_pd_data(igsInStream& in) {
  int count = 0;
  in.read_integer(count);
  int result = igs_read_members(in, count, m_faces,
                                [&] { return igs_read_oriented<igsOrientedFace>(in); });
  set_index_list();
  return result;
}

void igs514::write_pd_data(igsOutStream& out) {
  igs_write_field(out, m_faces.size());
  for (igsOrientedFace const& face : m_faces) igs_write_oriented(out, face);
}

void igs514::print_pd_data(utOstream& out) const {
  out << "Number of Oriented Faces = " << m_faces.size() << "\n";
  for (int i = 0; i < m_faces.size(); ++i)
    igs_print_numbered(out, "Oriented Face", i, " ",
                       [&](utOstream& o) { m_faces[i].print_pd_data(o); });
}

void igs514::check_pd() const {
  if (m_faces.empty()) raise_error<igs514NoFaces>();
  for (int i = 0; i < m_faces.size(); ++i) {
    check_child<igs514OrientatedFaceNullFace, igs514OrientatedFaceWrongFaceType,
                igs514OrientatedFaceInvalidFace>(m_faces[i].face(), igs_exactly<igs510>, i);
    if (!igs_flag_valid(m_faces[i].orientation()))
      raise_error<igs514OrientatedFaceInvalidOrientation>(i);
  }
}

void igs514::unreference_children() {
  igsObject::unreference_children();
  for (igsOrientedFace& face : m_faces) face.unreference_children();
}

// The face that the error's position as read now names, through the index list; null once it
// has gone.
template <class Error> static igsObject const* face_child(igs514 const& shell, Error const& e) {
  return igs_target(shell.face(shell.get_current_index(e.i())).face());
}

// A bad face, and with it every other bad face of the shell, leaves the shell at the first of
// these errors to be repaired; the others then find nothing left to remove. A face whose own
// repairs cleared it is no longer bad and stays.
static int remove_bad_faces(int key) {
  igs514* shell = igs_error_entity<igs514>(key);
  if (!shell) return 0;
  shell->remove_bad_faces();
  return 1;
}

IGS_CHILD_OBJ(igs514OrientatedFaceWrongFaceType, igs514, face_child)
IGS_CHILD_OBJ(igs514OrientatedFaceInvalidFace, igs514, face_child)

int igs514OrientatedFaceWrongFaceType::fix() {
  return remove_bad_faces(key());
}

int igs514OrientatedFaceInvalidFace::fix() {
  return remove_bad_faces(key());
}

// Also settled when the face has gone.
int igs514OrientatedFaceInvalidOrientation::fix() {
  igs514* shell = igs_error_entity<igs514>(key());
  if (!shell) return 0;
  int current = shell->get_current_index(i());
  if (current < 0) return 1;
  igsOrientedFace face = shell->face(current);
  face.set_orientation(1);
  return shell->set_face(current, std::move(face));
}
