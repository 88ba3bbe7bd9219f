#include "entities/structure/igs410_0ViewNumber.h"

#include "core/igsObjectPtr.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "entities/structure/igs410_0ViewNumberErrors.def"

// Gives the view under the DE number the proposed number. 0 when the DE number no longer
// names a view: nothing was repaired.
static int set_proposed_view_number(int de_number, int proposed_number) {
  igsViewNumbering const* numbering = igsViewNumbering::installed();
  igsObjectPtr view(de_number);
  if (!numbering || !view || !view->isa(numbering->view_type())) return 0;
  return numbering->set_view_number(*view, proposed_number) ? 1 : 0;
}

// Each of the three repairs sets the number it carries.
#define IGS_ERROR(Name, Base, Behaviour, ...)                                                      \
  int Name::fix() {                                                                                \
    return set_proposed_view_number(key(), proposed_number());                                     \
  }
#include "entities/structure/igs410_0ViewNumberErrors.def"
