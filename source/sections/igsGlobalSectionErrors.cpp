// The repairs of the Global section's errors. Each works on the section it is keyed by and
// does nothing without one.
#include "sections/igsGlobalSectionErrors.h"

#define IGS_ERROR IGS_ERROR_DEFINE
#include "sections/igsGlobalSectionErrors.def"

int igsGlobalSectionIllegalDefault::fix() {
  message("Warning : Invalid data has been found in the global section of the file.\n");
  char const* name = igsGlobalSection::default_field_name(parameter());
  igsGlobalSection* section = key();
  if (!name || !section || !section->repair_parameter(parameter())) return 0;
  message("Defaulting the data for field %d (\"%s\")\n", static_cast<int>(parameter()), name);
  return 1;
}

// A value out of range gets the parameter's repair value.
#define IGS_GLOBAL_REPAIR(Name, number)                                                            \
  int Name::fix() {                                                                                \
    igsGlobalSection* section = key();                                                             \
    return section && section->repair_parameter(number);                                           \
  }

IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidIntegerSize, igsGPBinaryBitsForInt)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidSinglePrecMagnitude, igsGPSinglePrecisionMagnitude)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidSinglePrecSignificance, igsGPSinglePrecisionSignificance)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidDoublePrecMagnitude, igsGPDoublePrecisionMagnitude)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidDoublePrecSignificance, igsGPDoublePrecisionSignificance)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidModelSpaceScale, igsGPModelSpaceScale)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidMaxLineWeightWidth, igsGPWidthOfMaxLineWeight)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidFileCreationDate, igsGPFileCreationDate)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidMinResolution, igsGPMinimumResolution)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidMaxCoordinate, igsGPMaxCoordinateValue)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidIgesVersion, igsGPIgesVersion)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidDraftingStandard, igsGPDraftingStandard)
IGS_GLOBAL_REPAIR(igsGlobalSectionInvalidFileModificationDate, igsGPFileModificationDate)

// Units. A flag that is out of range or user-defined gives way to a name that a flag stands
// for; without one the units become millimetres.
namespace {

int units_from_name(igsGlobalSection* section) {
  if (!section) return 0;
  igsUnits units = section->units();
  igsUnitType named = igsUnits::type(units.name());
  if (named != igsUnitUnknown)
    units.set_type(named);
  else
    units = igsUnits(igsUnits::name(igsUnitMillimeter), igsUnitMillimeter);
  section->set_units(units);
  return 1;
}

} // namespace

int igsGlobalSectionInvalidUnitsFlag::fix() {
  return units_from_name(key());
}

int igsGlobalSectionUserDefinedUnits::fix() {
  return units_from_name(key());
}

// A name that disagrees with a valid flag gives way to the flag.
int igsGlobalSectionUnitNameTypeMismatch::fix() {
  igsGlobalSection* section = key();
  if (!section) return 0;
  igsUnits units = section->units();
  units.set_name(igsUnits::name(static_cast<igsUnitType>(units.type())));
  section->set_units(units);
  message("Warning : There is a mismatch between the specified unit type and the unit name.\n"
          "Length units are being defaulted to %s.\n",
          units.name().c_str());
  return 1;
}
