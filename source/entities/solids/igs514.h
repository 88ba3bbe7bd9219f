// The shell (type 514, form 1): a list of faces, each with the flag that says whether it
// agrees with its surface. The one class of the boundary representation whose repairs remove
// members: an index list keeps the position each face had when read, so that an error that
// names a face by that position finds it again after others have gone.
#pragma once

#include "entities/igsIndexList.h"
#include "entities/solids/igs510.h"

// A face of a shell with its orientation: a value.
class igsOrientedFace : public igsOrientedReference<igs510> {
 public:
  igsObjectPtr const& face() const { return target(); }
  void set_face(igsObjectPtr face) { set_target(std::move(face)); }
  void print_pd_data(utOstream& out) const {
    print(out, "Face Ptr ", "First face orientated wrt surface = ");
  }
};
using igsOrientedFacecoDynArr = coDynArr<igsOrientedFace>;

class igs514 : public igsBrepEntity<igsObject> {
  IGS_ENTITY_CLASS(igs514)

  int num_faces() const { return m_faces.size(); }
  // The face at the index; a default-made one outside the list.
  igsOrientedFace const& face(int index) const { return igs_element(m_faces, index); }
  // Copies the record in, growing the list to index + 1; 0 for a negative index or when the
  // list could not grow.
  int set_face(int index, igsOrientedFace face) {
    return igs_store_element(m_faces, index, std::move(face), 1);
  }
  // Empties the list of faces and makes it the size, of default records; nothing for a
  // negative size. The index list stays as it is.
  int set_size(int size);

  // The current position of the face read at `position`; -1 once it has gone, and for a
  // position never read.
  int get_current_index(int position) const { return m_index.current(position); }
  // The last position as read that maps to `current`; -1 if none does.
  int get_original_index(int current) const;
  // Records that the face read at `position` is now at `current`, growing the index list.
  void set_index(int position, int current) { m_index.set(position, current); }

  // Removes the faces that are null, not faces, or have active errors, keeping the others in
  // order and the index list true. Returns the number removed.
  int remove_bad_faces();

 protected:
  // The index list as read: 0, 1, 2, ... one entry a face.
  void set_index_list() { m_index.reset(m_faces.size()); }
  void unreference_children() override;

 private:
  igsOrientedFacecoDynArr m_faces;
  igsIndexList m_index;
};
