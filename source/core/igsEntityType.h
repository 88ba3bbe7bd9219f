// The IGES entity type number as the library passes it around.
#pragma once

// The value is the type number itself, so a number read from a Directory Entry is used as it
// stands; the enumerators name only the two values that stand for no IGES type.
enum igsEntityType : int { igsEntityTypeUnknown = -1, igsEntityTypeNull = 0 };
