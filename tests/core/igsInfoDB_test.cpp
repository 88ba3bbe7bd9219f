#include "core/igsInfoDB.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace {

constexpr int none = INT_MIN + 1; // no default form

struct EntityRow {
  int type;
  char const* name;
  int default_form;
};

struct FormRow {
  int min_form;
  int max_form;
  char const* name;
};

// Entity types as IGES numbers them: type, name, default form (none: no default).
constexpr EntityRow entity_rows[] = {{-1, "Unknown Entity", 0},
                                     {0, "Null", 0},
                                     {100, "Circular Arc", 0},
                                     {102, "Composite Curve", 0},
                                     {104, "Conic Arc", 0},
                                     {106, "Copious Data", none},
                                     {108, "Plane", 0},
                                     {110, "Line", 0},
                                     {112, "Parametric Spline Curve", 0},
                                     {114, "Parametric Spline Surface", 0},
                                     {116, "Point", 0},
                                     {118, "Ruled Surface", 0},
                                     {120, "Surface of Revolution", 0},
                                     {122, "Tabulated Cylinder", 0},
                                     {123, "Direction", 0},
                                     {124, "Transformation Matrix", 0},
                                     {125, "Flash", 0},
                                     {126, "Rational B-Spline Curve", 0},
                                     {128, "Rational B-Spline Surface", 0},
                                     {130, "Offset Curve", 0},
                                     {132, "Connect Point", 0},
                                     {134, "Node", 0},
                                     {136, "Finite Element", 0},
                                     {138, "Nodal Displacement & Rotation", 0},
                                     {140, "Offset Surface", 0},
                                     {141, "Boundary", 0},
                                     {142, "Curve on a Parametric Surface", 0},
                                     {143, "Bounded Surface", 0},
                                     {144, "Trimmed (Parametric) Surface", 0},
                                     {146, "Nodal Results", 0},
                                     {148, "Element Results", 0},
                                     {150, "Block", 0},
                                     {152, "Right Angular Wedge", 0},
                                     {154, "Right Circular Cylinder", 0},
                                     {156, "Right Circular Cone Frustum", 0},
                                     {158, "Sphere", 0},
                                     {160, "Torus", 0},
                                     {162, "Solid of Revolution", none},
                                     {164, "Solid of Linear Extrusion", 0},
                                     {168, "Ellipsoid", 0},
                                     {180, "Boolean Tree", 0},
                                     {182, "Selected Component", 0},
                                     {184, "Solid Assembly", 0},
                                     {186, "Manifold Solid B-Rep Object", 0},
                                     {190, "Plane Surface", none},
                                     {192, "Right Circular Cylindrical Surface", none},
                                     {194, "Right Circular Conical Surface", none},
                                     {196, "Spherical Surface", none},
                                     {198, "Toroidal Surface", none},
                                     {202, "Angular Dimension", 0},
                                     {204, "Curve Dimension", 0},
                                     {206, "Diameter Dimension", 0},
                                     {208, "Flag Note", 0},
                                     {210, "General Label", 0},
                                     {212, "General Note", 0},
                                     {213, "New General Note", 0},
                                     {214, "Leader (Arrow)", 4},
                                     {216, "Linear Dimension", 0},
                                     {218, "Ordinate Dimension", 0},
                                     {220, "Point Dimension", 0},
                                     {222, "Radius Dimension", 0},
                                     {228, "General Symbol", 0},
                                     {230, "Sectioned Area", 0},
                                     {302, "Associativity Definition", none},
                                     {304, "Line Font Definition", none},
                                     {306, "MACRO Definition", 0},
                                     {308, "Subfigure Definition", 0},
                                     {310, "Text Font Definition", 0},
                                     {312, "Text Display Template", 0},
                                     {314, "Color Definition", 0},
                                     {316, "Units Data", 0},
                                     {320, "Network Subfigure Definition", 0},
                                     {322, "Attribute Table Definition", 0},
                                     {402, "Associativity Instance", none},
                                     {404, "Drawing", none},
                                     {406, "Property", none},
                                     {408, "Singular Subfigure Instance", 0},
                                     {410, "View", none},
                                     {412, "Rectangular Array Subfigure Instance", 0},
                                     {414, "Circular Array Subfigure Instance", 0},
                                     {416, "External Reference", none},
                                     {418, "Nodal Load/Constraint", 0},
                                     {420, "Network Subfigure Instance", 0},
                                     {422, "Attribute Table Instance", none},
                                     {430, "Solid Instance", 0},
                                     {502, "Vertex", 1},
                                     {504, "Edge", 1},
                                     {508, "Loop", 1},
                                     {510, "Face", 1},
                                     {514, "Shell", 1}};

constexpr FormRow forms_104[] = {
    {0, 0, "Computationally Derived"}, {1, 1, "Ellipse"}, {2, 2, "Hyperbola"}, {3, 3, "Parabola"}};
constexpr FormRow forms_106[] = {{1, 1, "Data Points (2D)"},
                                 {2, 2, "Data Points (3D)"},
                                 {3, 3, "Data Points (Sextuples)"},
                                 {11, 11, "Piecewise Linear Curve (2D)"},
                                 {12, 12, "Piecewise Linear Curve (3D)"},
                                 {13, 13, "Piecewise Linear Curve (Sextuples)"},
                                 {20, 20, "Centerline (through points)"},
                                 {21, 21, "Centerline (through circle centers)"},
                                 {31, 31, "Section (Iron, General Use)"},
                                 {32, 32, "Section (Steel)"},
                                 {33, 33, "Section (Bronze, brass, copper, etc.)"},
                                 {34, 34, "Section (Rubber, plastic, etc.)"},
                                 {35, 35, "Section (Titanium, etc.)"},
                                 {36, 36, "Section (Marble, slate, glass, etc.)"},
                                 {37, 37, "Section (Zinc, lead, etc.)"},
                                 {38, 38, "Section (Magnesium, aluminum, etc.)"},
                                 {40, 40, "Witness Line"},
                                 {63, 63, "Closed Planar Curve"}};
constexpr FormRow forms_108[] = {{-1, -1, "Hole"}, {0, 0, "Unbounded"}, {1, 1, "Bounded"}};
constexpr FormRow forms_118[] = {{0, 0, "Equal Relative Arc Length"},
                                 {1, 1, "Equal Relative Parametric Values"}};
constexpr FormRow forms_124[] = {{0, 0, "Right-handed (default)"},
                                 {1, 1, "Left-handed"},
                                 {10, 10, "Cartesian (FEM)"},
                                 {11, 11, "Cylindrical (FEM)"},
                                 {12, 12, "Spherical (FEM)"}};
constexpr FormRow forms_125[] = {{0, 0, "Defined by Referenced Entity"},
                                 {1, 1, "Circular"},
                                 {2, 2, "Rectangular"},
                                 {3, 3, "Donut"},
                                 {4, 4, "Canoe"}};
constexpr FormRow forms_126[] = {
    {0, 0, "Computationally Derived"}, {1, 1, "Line"},          {2, 2, "Circular Arc"},
    {3, 3, "Elliptical Arc"},          {4, 4, "Parabolic Arc"}, {5, 5, "Hyperbolic Arc"}};
constexpr FormRow forms_128[] = {{0, 0, "Computationally Derived"},
                                 {1, 1, "Plane"},
                                 {2, 2, "Right Circular Cylinder"},
                                 {3, 3, "Cone"},
                                 {4, 4, "Sphere"},
                                 {5, 5, "Torus"},
                                 {6, 6, "Surface of Revolution"},
                                 {7, 7, "Tabulated Cylinder"},
                                 {8, 8, "Ruled Surface"},
                                 {9, 9, "General Quadratic Surface"}};
constexpr FormRow result_forms[] = {{0, 0, "Unknown/Misc"},
                                    {1, 1, "Temperature"},
                                    {2, 2, "Pressure"},
                                    {3, 3, "Total displacement"},
                                    {4, 4, "Total displacement and rotation"},
                                    {5, 5, "Velocity"},
                                    {6, 6, "Velocity Gradient"},
                                    {7, 7, "Acceleration"},
                                    {8, 8, "Flux"},
                                    {9, 9, "Elemental Force"},
                                    {10, 10, "Strain Energy"},
                                    {11, 11, "Strain Energy Density"},
                                    {12, 12, "Reaction Force"},
                                    {13, 13, "Kinetic Energy"},
                                    {14, 14, "Kinetic Energy Density"},
                                    {15, 15, "Hydrostatic Pressure"},
                                    {16, 16, "Coefficient of Pressure"},
                                    {17, 17, "Symmetric 2D Elastic Stress Tensor"},
                                    {18, 18, "Symmetric 2D Total Stress Tensor"},
                                    {19, 19, "Symmetric 2D Elastic Strain Tensor"},
                                    {20, 20, "Symmetric 2D Plastic Strain Tensor"},
                                    {21, 21, "Symmetric 2D Total Strain Tensor"},
                                    {22, 22, "Symmetric 2D Thermal Strain"},
                                    {23, 23, "Symmetric 3D Elastic Stress Tensor"},
                                    {24, 24, "Symmetric 3D Total Stress Tensor"},
                                    {25, 25, "Symmetric 3D Elastic Strain Tensor"},
                                    {26, 26, "Symmetric 3D Plastic Strain Tensor"},
                                    {27, 27, "Symmetric 3D Total Strain Tensor"},
                                    {28, 28, "Symmetric 3D Thermal Strain"},
                                    {29, 29, "General Elastic Stress Tensor"},
                                    {30, 30, "General Total Stress Tensor"},
                                    {31, 31, "General Elastic Strain Tensor"},
                                    {32, 32, "General Plastic Strain Tensor"},
                                    {33, 33, "General Total Strain Tensor"},
                                    {34, 34, "General Thermal Strain"}};
constexpr FormRow forms_162[] = {{0, 0, "Curve Closed on Axis"}, {1, 1, "Curve Closed on Itself"}};
constexpr FormRow surface_forms[] = {{0, 0, "Unparameterized Surface"},
                                     {1, 1, "Parameterized Surface"}};
constexpr FormRow forms_212[] = {{0, 0, "Simple Note (default)"},
                                 {1, 1, "Dual Stack"},
                                 {2, 2, "Embedded Font Change"},
                                 {3, 3, "Superscript"},
                                 {4, 4, "Subscript"},
                                 {5, 5, "Super-/Subscript"},
                                 {6, 6, "Multiple Stack/Left Justify"},
                                 {7, 7, "Multiple Stack/Center Justify"},
                                 {8, 8, "Multiple Stack/Right Justify"},
                                 {100, 100, "Simple Fraction"},
                                 {101, 101, "Dual Stack Fraction"},
                                 {102, 102, "Imbedded Font Change/Double Fraction"},
                                 {105, 105, "Super-/Subscript Fraction"}};
constexpr FormRow forms_214[] = {
    {1, 1, "Wedge"},           {2, 2, "Triangle"},         {3, 3, "Filled Triangle"},
    {4, 4, "No Arrowhead"},    {5, 5, "Circle"},           {6, 6, "Filled Circle"},
    {7, 7, "Rectangle"},       {8, 8, "Filled Rectangle"}, {9, 9, "Slash"},
    {10, 10, "Integral Sign"}, {11, 11, "Open Triangle"},  {12, 12, "Dimension Origin"}};
constexpr FormRow forms_216[] = {
    {0, 0, "Undetermined (default)"}, {1, 1, "Diameter Dimension"}, {2, 2, "Radius Dimension"}};
constexpr FormRow forms_218[] = {{0, 0, "Witness or Leader"}, {1, 1, "Witness and Leader"}};
constexpr FormRow forms_222[] = {{0, 0, "Single Leader Format"}, {1, 1, "Multiple Leader Format"}};
constexpr FormRow forms_228[] = {{0, 0, "General Symbol (default)"},
                                 {1, 1, "Datum Feature Symbol"},
                                 {2, 2, "Datum Target Symbol"},
                                 {3, 3, "Feature Control Frame"},
                                 {5001, 9999, "User Defined General Symbol Definition"}};
constexpr FormRow forms_230[] = {{0, 0, "Default"}, {1, 1, "Inverted Crosshatch"}};
constexpr FormRow forms_302[] = {{5001, 9999, "User Defined Associativity Definition"}};
constexpr FormRow forms_304[] = {{1, 1, "Repeating Template Subfigure"},
                                 {2, 2, "Repeating Visible-blank Pattern"}};
constexpr FormRow forms_312[] = {{0, 0, "Absolute"}, {1, 1, "Incremental"}};
constexpr FormRow forms_322[] = {
    {0, 0, "One-to-many"}, {1, 1, "One-to-one"}, {2, 2, "One-to-one With Text Pointer"}};
constexpr FormRow forms_402[] = {{1, 1, "Unordered Group With Back Pointers"},
                                 {2, 2, "External Logical Reference File Index (obsolete!)"},
                                 {3, 3, "Views Visible"},
                                 {4, 4, "Views Visible, Color, Line Weight"},
                                 {5, 5, "Entity Label Display"},
                                 {6, 6, "View List (obsolete!)"},
                                 {7, 7, "Unordered Group Without Back Pointers"},
                                 {8, 8, "Signal String (obsolete!)"},
                                 {9, 9, "Single Parent"},
                                 {10, 10, "Text Node (obsolete!)"},
                                 {11, 11, "Connect Node (obsolete!)"},
                                 {12, 12, "External Reference File Index"},
                                 {13, 13, "Dimensioned Geometry"},
                                 {14, 14, "Ordered Group With Back Pointers"},
                                 {15, 15, "Ordered Group Without Back Pointers"},
                                 {16, 16, "Planar"},
                                 {18, 18, "Flow"},
                                 {19, 19, "Segmented Views Visible"},
                                 {20, 20, "Piping Flow"},
                                 {21, 21, "Dimensioned Geometry"},
                                 {5001, 9999, "User Defined Associativity Instance"}};
constexpr FormRow forms_404[] = {{0, 0, "Normal Drawing (default)"},
                                 {1, 1, "Drawing with Rotated Views"}};
constexpr FormRow forms_406[] = {{1, 1, "Definition Levels"},
                                 {2, 2, "Region Restriction"},
                                 {3, 3, "Level Function"},
                                 {4, 4, "Region Fill (obsolete!)"},
                                 {5, 5, "Line Widening"},
                                 {6, 6, "Drilled Hole"},
                                 {7, 7, "Reference Designator"},
                                 {8, 8, "Pin Humber"},
                                 {9, 9, "Part Number"},
                                 {10, 10, "Hierarchy"},
                                 {11, 11, "Tabular Data"},
                                 {12, 12, "External Reference File List"},
                                 {13, 13, "Nominal Size"},
                                 {14, 14, "Flow Line Specification"},
                                 {15, 15, "Name"},
                                 {16, 16, "Drawing Size"},
                                 {17, 17, "Drawing Units"},
                                 {18, 18, "Intercharacter Spacing"},
                                 {19, 19, "Line Font"},
                                 {20, 20, "Highlight"},
                                 {21, 21, "Pick"},
                                 {22, 22, "Uniform Rectangular Grid"},
                                 {23, 23, "Associativity Group Type"},
                                 {24, 24, "Level to PWB Layer Map"},
                                 {25, 25, "PWB Artwork Stackup"},
                                 {26, 26, "PWB Drilled Hole"},
                                 {27, 27, "Generic Data"},
                                 {28, 28, "Dimension Units"},
                                 {29, 29, "Dimension Tolerance"},
                                 {30, 30, "Dimension Display Data"},
                                 {31, 31, "Basic Dimension"},
                                 {5001, 9999, "User Defined Property Instance"}};
constexpr FormRow forms_410[] = {{0, 0, "Orthogonal (default)"}, {1, 1, "Perspective"}};
constexpr FormRow forms_416[] = {{0, 0, "Single Entity"},
                                 {1, 1, "Entire File"},
                                 {2, 2, "Logical Reference"},
                                 {3, 3, "Native Part/Figure"},
                                 {4, 4, "Native Part in Library"}};
constexpr FormRow forms_422[] = {{0, 0, "Single Row"}, {1, 1, "Multiple Row"}};
constexpr FormRow forms_502[] = {{1, 1, "Vertex List"}};
constexpr FormRow forms_504[] = {{1, 1, "Edge List"}};
constexpr FormRow forms_508[] = {{1, 1, "MSBO Loop"}};
constexpr FormRow forms_510[] = {{1, 1, "MSBO Face"}};
constexpr FormRow forms_514[] = {{1, 1, "MSBO Shell"}, {2, 2, "Open Shell"}};

// The form lists of the types that have one; Unknown and Null are tested on their own.
std::map<int, std::span<FormRow const>> const form_lists = {
    {104, forms_104},     {106, forms_106},     {108, forms_108},     {118, forms_118},
    {124, forms_124},     {125, forms_125},     {126, forms_126},     {128, forms_128},
    {146, result_forms},  {148, result_forms},  {162, forms_162},     {190, surface_forms},
    {192, surface_forms}, {194, surface_forms}, {196, surface_forms}, {198, surface_forms},
    {212, forms_212},     {214, forms_214},     {216, forms_216},     {218, forms_218},
    {222, forms_222},     {228, forms_228},     {230, forms_230},     {302, forms_302},
    {304, forms_304},     {312, forms_312},     {322, forms_322},     {402, forms_402},
    {404, forms_404},     {406, forms_406},     {410, forms_410},     {416, forms_416},
    {422, forms_422},     {502, forms_502},     {504, forms_504},     {508, forms_508},
    {510, forms_510},     {514, forms_514}};

// The expected row of a type's list that holds a form, or null.
FormRow const* expected_form(int type, int form) {
  auto list = form_lists.find(type);
  if (list == form_lists.end()) return nullptr;
  for (FormRow const& row : list->second)
    if (row.min_form <= form && form <= row.max_form) return &row;
  return nullptr;
}

struct NamedNumber {
  int number;
  char const* name;
};

} // namespace

TEST(igsInfoDB, EntityTypesNamesAndDefaultForms) {
  std::map<int, EntityRow const*> expected;
  for (EntityRow const& row : entity_rows) expected[row.type] = &row;
  ASSERT_EQ(expected.size(), 90u);

  for (int type = -1100; type <= 1100; ++type) {
    SCOPED_TRACE(type);
    auto row = expected.find(type);
    bool known = row != expected.end();
    EXPECT_EQ(igsInfoDB::entity_exists(type), known);
    EXPECT_EQ(igsInfoDB::entity_info(type) != nullptr, known);
    EXPECT_EQ(igsInfoDB::entity_name(type).view(),
              std::string_view(known ? row->second->name : ""));
    EXPECT_EQ(igsInfoDB::entity_name(type).is_null(), !known);

    int form = -5, found = -5;
    igsInfoDB::default_form_number(type, form, found);
    int default_form = known ? row->second->default_form : none;
    EXPECT_EQ(found, default_form != none);
    EXPECT_EQ(form, default_form != none ? default_form : 0);
    // The reader replaces a bad form by the default, which must itself be a form of the type.
    if (found) {
      EXPECT_TRUE(igsInfoDB::form_exists(type, form));
    }
  }
  for (int type : {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX}) {
    SCOPED_TRACE(type);
    EXPECT_FALSE(igsInfoDB::entity_exists(type));
    EXPECT_FALSE(igsInfoDB::form_exists(type, 0));
    EXPECT_TRUE(igsInfoDB::form_name(type, 0).is_null());
  }
}

TEST(igsInfoDB, FormsOfEveryTypeAgreeWithTheLists) {
  // Every listed form number lies among these, with the ends of the user-defined ranges.
  std::vector<int> probes;
  for (int form = -3; form <= 110; ++form) probes.push_back(form);
  for (int form : {4999, 5000, 5001, 5002, 7500, 9998, 9999, 10000, INT_MIN, INT_MAX})
    probes.push_back(form);

  for (EntityRow const& entity : entity_rows) {
    int type = entity.type;
    if (type == -1 || type == 0) continue;
    auto list = form_lists.find(type);
    bool listed = list != form_lists.end();
    ASSERT_NE(igsInfoDB::entity_info(type), nullptr);
    EXPECT_EQ(igsInfoDB::entity_info(type)->num_forms(), listed ? list->second.size() : 0u) << type;
    for (int form : probes) {
      SCOPED_TRACE(testing::Message() << "type " << type << " form " << form);
      FormRow const* row = expected_form(type, form);
      EXPECT_EQ(igsInfoDB::form_exists(type, form), listed ? row != nullptr : form == 0);
      std::string_view form_name = row ? row->name : "Default";
      EXPECT_EQ(igsInfoDB::form_name(type, form).view(), form_name);
      EXPECT_EQ(igsInfoDB::entity_form_name(type, form).view(),
                std::string(entity.name) + "(" + std::string(form_name) + ")");
    }
  }
}

TEST(igsInfoDB, UnknownAndNullTakeEveryFormButTheMostNegative) {
  for (int type : {-1, 0}) {
    SCOPED_TRACE(type);
    for (int form : {INT_MIN + 1, -1, 0, 1, 17, 5500, 12345, INT_MAX}) {
      EXPECT_TRUE(igsInfoDB::form_exists(type, form)) << form;
      EXPECT_EQ(igsInfoDB::form_name(type, form), "Unknown");
    }
    EXPECT_FALSE(igsInfoDB::form_exists(type, INT_MIN));
    EXPECT_EQ(igsInfoDB::form_name(type, INT_MIN), "Default");
  }
  EXPECT_EQ(igsInfoDB::entity_form_name(-1, 12345), "Unknown Entity(Unknown)");
  EXPECT_EQ(igsInfoDB::entity_form_name(0, 99), "Null(Unknown)");
}

TEST(igsInfoDB, LookupsThatReadersAndPrintersRelyOn) {
  EXPECT_TRUE(igsInfoDB::form_exists(110, 0));
  EXPECT_FALSE(igsInfoDB::form_exists(110, 1));
  EXPECT_EQ(igsInfoDB::form_name(110, 0), "Default");
  EXPECT_TRUE(igsInfoDB::form_exists(108, -1));
  EXPECT_FALSE(igsInfoDB::form_exists(402, 17));
  EXPECT_TRUE(igsInfoDB::form_exists(402, 5500));
  EXPECT_TRUE(igsInfoDB::form_exists(-1, 12345));
  EXPECT_EQ(igsInfoDB::entity_form_name(104, 1), "Conic Arc(Ellipse)");

  int form = -5, found = -5;
  igsInfoDB::default_form_number(106, form, found);
  EXPECT_EQ(found, 0);
  EXPECT_EQ(form, 0);
  igsInfoDB::default_form_number(214, form, found);
  EXPECT_EQ(found, 1);
  EXPECT_EQ(form, 4);

  // Forms that have no class of their own are still forms of the table.
  EXPECT_TRUE(igsInfoDB::form_exists(124, 10));
  EXPECT_TRUE(igsInfoDB::form_exists(416, 0));
  EXPECT_TRUE(igsInfoDB::form_exists(514, 2));

  // An unknown type: nothing exists, names are null, and joining them does not fail.
  EXPECT_FALSE(igsInfoDB::form_exists(999, 0));
  EXPECT_TRUE(igsInfoDB::form_name(999, 0).is_null());
  EXPECT_EQ(igsInfoDB::entity_form_name(999, 0), "()");

  // Names are kept, not built: the same object each time.
  EXPECT_EQ(&igsInfoDB::entity_name(100), &igsInfoDB::entity_name(100));
  EXPECT_EQ(&igsInfoDB::form_name(406, 8), &igsInfoDB::form_name(406, 8));
}

TEST(igsInfoDB, UnitsVersionsAndDraftingStandards) {
  NamedNumber const units[] = {{1, "Inches"},       {2, "Millimeters"}, {3, "User Defined"},
                               {4, "Feet"},         {5, "Miles"},       {6, "Meters"},
                               {7, "Kilometers"},   {8, "Mils"},        {9, "Microns"},
                               {10, "Centimeters"}, {11, "Microinches"}};
  NamedNumber const versions[] = {{1, "1.0"},
                                  {2, "ANSI Y14.26M - 1981"},
                                  {3, "2.0"},
                                  {4, "3.0"},
                                  {5, "ASME/ANSI Y14.26M - 1987"},
                                  {6, "4.0"},
                                  {7, "ASME Y14.26 - 1989"},
                                  {8, "5.0"},
                                  {9, "5.1"},
                                  {10, "5.2"},
                                  {11, "5.3"}};
  NamedNumber const drafts[] = {{0, "None - No standard specified"},
                                {1, "ISO - International Organization for Standards"},
                                {2, "AFNOR - French Association for Standardization"},
                                {3, "ANSI - American National Standrds Institute"},
                                {4, "BSI - British Standards Institute"},
                                {5, "CSA - Canadian Standards Association"},
                                {6, "DIN - German Institute for Standardization"},
                                {7, "JIS - Japanese Institute for Standardization"}};
  struct Table {
    char const* what;
    std::span<NamedNumber const> rows;
    int (*exists)(int);
    utString const& (*name)(int);
  };
  Table const tables[] = {
      {"units", units, igsInfoDB::units_exist, igsInfoDB::units_name},
      {"versions", versions, igsInfoDB::version_exists, igsInfoDB::version_name},
      {"drafts", drafts, igsInfoDB::draft_exists, igsInfoDB::draft_name}};
  for (Table const& table : tables) {
    SCOPED_TRACE(table.what);
    for (NamedNumber const& row : table.rows) {
      EXPECT_TRUE(table.exists(row.number)) << row.number;
      EXPECT_EQ(table.name(row.number).view(), std::string_view(row.name));
    }
    int below = table.rows.front().number - 1;
    int above = table.rows.back().number + 1;
    for (int number : {INT_MIN, -1, below, above, 100, INT_MAX}) {
      EXPECT_FALSE(table.exists(number)) << number;
      EXPECT_TRUE(table.name(number).is_null()) << number;
    }
  }
  EXPECT_FALSE(igsInfoDB::version_exists(0));
  EXPECT_TRUE(igsInfoDB::draft_exists(0));
  // The Global section finds the highest version by counting up while versions exist.
  int highest = 0;
  while (igsInfoDB::version_exists(highest + 1)) ++highest;
  EXPECT_EQ(highest, 11);
}

TEST(igsEntityInfo, FormListIsSearchedLatestFirstAndFallsBackToDefault) {
  igsEntityInfo info("Widget", 2);
  EXPECT_EQ(info.entity_name(), "Widget");
  EXPECT_EQ(info.default_form_number(), 2);
  EXPECT_TRUE(info.form_exists(0)); // no list: form 0 alone
  EXPECT_FALSE(info.form_exists(2));
  EXPECT_EQ(info.form_info(0).form_name(), "Default");

  info.add_form(igsFormInfo(1, 10, "Wide"));
  info.add_form(igsFormInfo(5, 5, "Narrow"));
  EXPECT_FALSE(info.form_exists(0)); // a list replaces the lone form 0
  EXPECT_TRUE(info.form_exists(10));
  EXPECT_EQ(info.form_info(5).form_name(), "Narrow");
  EXPECT_EQ(info.form_info(4).form_name(), "Wide");
  EXPECT_EQ(info.form_info(4).min_form_number(), 1);
  EXPECT_EQ(info.form_info(4).max_form_number(), 10);
  EXPECT_EQ(info.form_info(4).min_version(), 0);
  EXPECT_EQ(info.form_info(4).max_version(), 0);

  igsFormInfo const& missing = info.form_info(11);
  EXPECT_EQ(missing.form_name(), "Default");
  EXPECT_EQ(missing.min_form_number(), 0);
  EXPECT_EQ(missing.max_form_number(), 0);
}
