#include "entities/structure/igs402_1.h"

IGS_ENTITY_DEFINE(igs402_1, igsGroup, 402, 1, igs_de_without_matrix)
