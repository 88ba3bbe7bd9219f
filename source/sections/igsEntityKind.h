// Tests of an entity's class by the class's name, for the definition entities that Directory
// Entry attributes point to (line font and colour definitions, views) and that other parts
// name before their classes are built. Every type record carries the name of its class, and a
// class has one name, so testing the records of an entity and of its bases against a name is
// the same test as `isa` or `typeof` against the record. While a class is not built, no
// record carries its name and nothing passes the test; once it is built, the test holds for
// it with no change here.
#pragma once

class igsObject;
class igsObjectPtr;
class kvuTypeInfo;

// The classes that the attribute rules name.
inline constexpr char igs304_1_class[] = "igs304_1"; // line font definitions
inline constexpr char igs304_2_class[] = "igs304_2";
inline constexpr char igs314_class[] = "igs314";     // colour definition
inline constexpr char igs402_3_class[] = "igs402_3"; // views visible list
inline constexpr char igs410_0_class[] = "igs410_0"; // view

// Whether the record is exactly the named class's.
int igs_record_is(kvuTypeInfo const& record, char const* class_name);
// Whether the record is the named class's or descends from it.
int igs_record_kind_of(kvuTypeInfo const& record, char const* class_name);

// `isa` and `typeof` by class name; 0 for a null entity or reference.
int igs_isa_class(igsObject const* object, char const* class_name);
int igs_typeof_class(igsObject const* object, char const* class_name);
int igs_isa_class(igsObjectPtr const& object, char const* class_name);
int igs_typeof_class(igsObjectPtr const& object, char const* class_name);
