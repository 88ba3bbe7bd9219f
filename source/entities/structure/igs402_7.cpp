#include "entities/structure/igs402_7.h"

IGS_ENTITY_DEFINE(igs402_7, igsGroup, 402, 7, igs_de_without_matrix)
