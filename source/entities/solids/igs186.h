// The manifold solid boundary representation (type 186, form 0): an outer shell and any number
// of void shells, each with the flag that says whether it agrees with its faces.
#pragma once

#include "entities/igsEntityBases.h"
#include "entities/solids/igs514.h"

// A shell of a solid with its orientation: a value.
class igsOrientedShell : public igsOrientedReference<igs514> {
 public:
  igsObjectPtr const& shell() const { return target(); }
  int set_shell(igsObjectPtr shell) {
    set_target(std::move(shell));
    return 1;
  }
  void print_pd_data(utOstream& out) const {
    print(out, "Shell Ptr ", "Shell orientation wrt faces = ");
  }
};
using igsOrientedShellcoDynArr = coDynArr<igsOrientedShell>;

// `class igsSolid`: the plain name is also the solid line font pattern, which hides the class.
class igs186 : public igsBrepEntity<class igsSolid> {
  IGS_ENTITY_CLASS(igs186)

  igsOrientedShell const& outer_shell() const { return m_outer; }
  int num_void_shells() const { return m_voids.size(); }
  // The void shell at the index; a default-made one outside the list.
  igsOrientedShell const& void_shell(int index) const { return igs_element(m_voids, index); }
  int set_outer_shell(igsOrientedShell shell) {
    m_outer = std::move(shell);
    return 1;
  }
  // Copies the record in, growing the list to index + 1; 0 for a negative index or when the
  // list could not grow.
  int set_void_shell(int index, igsOrientedShell shell) {
    return igs_store_element(m_voids, index, std::move(shell), 1);
  }

 protected:
  void unreference_children() override;

 private:
  igsOrientedShell m_outer;
  igsOrientedShellcoDynArr m_voids;
};
