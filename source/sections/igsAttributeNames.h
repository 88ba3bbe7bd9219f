// The enumerations of the Directory Entry attributes and their names. Each list holds the
// enumerators in value order from 0, with the name that print and the name functions give.
#pragma once

#include <cstddef>

#define IGS_BLANK_STATUS_LIST(X) X(igsVisible, "Visible") X(igsBlanked, "Blanked")

#define IGS_SUBORDINATE_STATUS_LIST(X)                                                             \
  X(igsIndependent, "Independent")                                                                 \
  X(igsPhysicallyDependent, "Physically Dependent")                                                \
  X(igsLogicallyDependent, "Logically Dependent")                                                  \
  X(igsPhysicallyAndLogicallyDependent, "Physically and Logically Dependent")

#define IGS_ENTITY_USE_LIST(X)                                                                     \
  X(igsUseGeometry, "Geometry")                                                                    \
  X(igsUseAnnotation, "Annotation")                                                                \
  X(igsUseDefinition, "Definition")                                                                \
  X(igsUseOther, "Other")                                                                          \
  X(igsUseLogicalPositional, "Logical/Positional")                                                 \
  X(igsUse2DParametric, "2D Parametric")                                                           \
  X(igsUseConstructional, "Constructional")

#define IGS_HIERARCHY_LIST(X)                                                                      \
  X(igsGlobalTopDown, "Global top down")                                                           \
  X(igsGlobalDefer, "Global defer")                                                                \
  X(igsUseHierarchyProperty, "Use hierarchy property")

#define IGS_PATTERN_LIST(X)                                                                        \
  X(igsNoPattern, "No pattern specified")                                                          \
  X(igsSolid, "Solid")                                                                             \
  X(igsDashed, "Dashed")                                                                           \
  X(igsPhantom, "Phantom")                                                                         \
  X(igsCenterline, "Centerline")                                                                   \
  X(igsDotted, "Dotted")

#define IGS_COLOUR_TYPE_LIST(X)                                                                    \
  X(igsNoColour, "No color assigned")                                                              \
  X(igsBlack, "Black")                                                                             \
  X(igsRed, "Red")                                                                                 \
  X(igsGreen, "Green")                                                                             \
  X(igsBlue, "Blue")                                                                               \
  X(igsYellow, "Yellow")                                                                           \
  X(igsMagenta, "Magenta")                                                                         \
  X(igsCyan, "Cyan")                                                                               \
  X(igsWhite, "White")

#define IGS_ATTRIBUTE_ENUMERATOR_(enumerator, name) enumerator,
#define IGS_ATTRIBUTE_NAME_(enumerator, name) name,

enum igsBlankStatus : int { IGS_BLANK_STATUS_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };
enum igsSubordinateStatus : int { IGS_SUBORDINATE_STATUS_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };
enum igsEntityUse : int { IGS_ENTITY_USE_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };
enum igsHierarchy : int { IGS_HIERARCHY_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };
enum igsPattern : int { IGS_PATTERN_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };
enum igsColourType : int { IGS_COLOUR_TYPE_LIST(IGS_ATTRIBUTE_ENUMERATOR_) };

// The names of one enumeration, indexed by value.
template <size_t N> struct igsAttributeNames {
  char const* names[N];

  // Whether the value, taken as unsigned, names an enumerator.
  constexpr int holds(int value) const { return static_cast<unsigned>(value) < N; }
  // The value itself when it names an enumerator, else the fallback.
  template <class Enum> constexpr Enum type(int value, Enum fallback) const {
    return holds(value) ? static_cast<Enum>(value) : fallback;
  }
  // The name of the value, or `unknown` out of range.
  constexpr char const* name(int value, char const* unknown) const {
    return holds(value) ? names[value] : unknown;
  }
};

template <class... T> igsAttributeNames(T...) -> igsAttributeNames<sizeof...(T)>;

#define IGS_ATTRIBUTE_NAMES(LIST)                                                                  \
  igsAttributeNames {                                                                              \
    LIST(IGS_ATTRIBUTE_NAME_)                                                                      \
  }
