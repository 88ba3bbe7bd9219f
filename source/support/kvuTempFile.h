// Names for temporary files.
#pragma once

#include "support/utString.h"

// The path of a new, empty temporary file in `directory` (the system's temporary folder when
// the directory is empty). The file is created exclusively, so the name is used by nothing
// else; the caller removes it. A null string when no file could be made there.
utString kvu_make_temp_file_name(utString const& directory);
