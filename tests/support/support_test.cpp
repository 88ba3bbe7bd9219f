// The support layer: strings, indented output, containers, type records, resources, temporary
// files, message sinks and geometry.
#include "support/coNames.h"
#include "support/coResource.h"
#include "support/giGeometry.h"
#include "support/kvnabs.h"
#include "support/kvuTempFile.h"
#include "support/kvuTypeInfo.h"
#include "support/utMath.h"
#include "support/utOstream.h"
#include "support/utString.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cstring>
#include <filesystem>
#include <new>
#include <sstream>

namespace {

TEST(utString, NullEmptySharingDetachAndSubstrings) {
  utString null;
  utString empty("");
  EXPECT_TRUE(null.is_null());
  EXPECT_FALSE(empty.is_null());
  EXPECT_EQ(null.length(), 0);
  EXPECT_STREQ(null.c_str(), "");
  EXPECT_TRUE(null == empty); // same text, though one has none

  utString a("HELLO");
  utString b = a;
  EXPECT_EQ(a.c_str(), b.c_str()); // shared text
  b[0] = 'J';                      // writing detaches
  EXPECT_STREQ(a.c_str(), "HELLO");
  EXPECT_STREQ(b.c_str(), "JELLO");

  // {start, length, text}: a length past the end or below 0 runs to the end.
  struct Case {
    int start, length;
    char const* text;
  } const cases[] = {{1, 3, "ELL"}, {3, 99, "LO"}, {1, -1, "ELLO"}, {5, 1, ""}, {0, 5, "HELLO"}};
  for (Case const& c : cases) {
    utString sub(a, c.start, c.length);
    EXPECT_EQ(std::string(sub.view()), c.text) << c.start << "," << c.length;
    EXPECT_EQ(sub.length(), static_cast<int>(std::strlen(c.text)));
  }
  EXPECT_FALSE(utString(a, 5, 1).is_null()); // the empty end of the text
  EXPECT_TRUE(utString(a, 6, 1).is_null());
  EXPECT_TRUE(utString(a, -1, 1).is_null());

  utString n("N=");
  n << -42;
  EXPECT_STREQ(n.c_str(), "N=-42");
  EXPECT_STREQ((utString("ab") + utString("cd")).c_str(), "abcd");
  EXPECT_EQ(utString("Inch").case_compare(utString("INCH")), 0);
  EXPECT_NE(utString("Inch").compare(utString("INCH")), 0);
  EXPECT_STREQ(utString("ab \t\n").remove_trailing_chars(" \t\n\r\f\v").c_str(), "ab");
  char* claimed = new char[4]{'x', 'y', 'z', '\0'};
  EXPECT_STREQ(utString(utStringClaimTag, claimed, 4).c_str(), "xyz");

  int v = -1, end = -1;
  EXPECT_TRUE(utString("  42 ").parse(v));
  EXPECT_EQ(v, 42);
  EXPECT_FALSE(utString("4x").parse(v));
  EXPECT_FALSE(utString("").parse(v));
  EXPECT_TRUE(utString("12ab").parse(v, end));
  EXPECT_EQ(end, 2);
}

TEST(utOstream, ChildrenIndentAndShareLineStart) {
  std::ostringstream text;
  utOstream out(text);
  out << "A = {" << std::endl;
  {
    utOstream child(utOstreamTabTag, out, 1, 0);
    child << "B = " << 3 << std::endl;
    utOstream grandchild(utOstreamTabTag, child, 1, 0);
    grandchild << "C" << '\n' << "D = " << 0.5 << std::endl;
    child << "P = " << giPoint3(1, -2, 1e20) << std::endl;
  }
  out << "}" << std::endl;
  EXPECT_EQ(text.str(), "A = {\n  B = 3\n    C\n    D = 0.5\n  P = (1, -2, 1e+20)\n}\n");
}

// An element that knows its own address, as references registered with a manager do: a
// bytewise move would leave `self` pointing at the old store.
struct SelfAware {
  SelfAware() : self(this) {}
  SelfAware(SelfAware const& o) : self(this), value(o.value) {}
  SelfAware& operator=(SelfAware const& o) {
    value = o.value;
    return *this;
  }
  SelfAware* self;
  int value = 0;
};

TEST(Containers, ArraysGrowCopyElementsAndSetsCombine) {
  charcoDynArr line(81, 80);
  for (int i = 0; i < 82; ++i) line.append('x');
  EXPECT_EQ(line.capacity(), 161); // past capacity: one step of 80
  intcoDynArr a(2, 3);
  a[6] = 7; // index past the size extends it
  EXPECT_EQ(a.size(), 7);
  EXPECT_EQ(a.capacity(), 8); // 2 + 2 steps of 3
  EXPECT_EQ(a[3], 0);
  a[-1] = 5; // out of reach: written nowhere
  EXPECT_EQ(a.size(), 7);
  a.shrink(3, 1);
  EXPECT_EQ(a.capacity(), 3);
  EXPECT_TRUE(a.expand(4));
  a.remove(1);
  EXPECT_EQ(a.size(), 3);

  coDynArr<SelfAware> items(1, 1);
  for (int i = 0; i < 50; ++i) items.append(SelfAware());
  coDynArr<SelfAware> copy(utCopyTag, items);
  for (int i : {0, 49}) EXPECT_TRUE(items[i].self == &items[i] && copy[i].self == &copy[i]);
  // Appending an element of the array itself while it grows.
  intcoDynArr v{1, 2, 3};
  for (int i = 0; i < 20; ++i) v.append(v[0]);
  EXPECT_EQ(v[22], 1);

  intcoSet s, t, u, w;
  for (int i : {1, 2, 3, 4}) s.add(i);
  for (int i : {3, 4, 5}) t.add(i);
  u.become(s);
  u += t;
  w.become(s);
  w *= t;
  EXPECT_EQ(u.size() * 10 + w.size(), 52);
  EXPECT_TRUE(w <= s);
  EXPECT_FALSE(s <= t);
  s -= t;
  EXPECT_FALSE(s.member(3));
  EXPECT_EQ(s.find(9), nullptr);
  intintcoTable table(4, 50);
  EXPECT_EQ(table.read(7), nullptr);
  table[7] += 2;
  EXPECT_EQ(*table.read(7), 2);
  EXPECT_TRUE(table.remove(7));
  EXPECT_FALSE(table.remove(7));
  intcoStack stack;
  stack.insert_first(1);
  stack.insert_first(2);
  EXPECT_EQ(stack.peek(), 2);
  EXPECT_EQ(stack.pop() * 10 + stack.pop(), 21);
  EXPECT_TRUE(stack.empty());
}

struct Root {
  virtual ~Root() = default;
  virtual kvuTypeInfo const& objtype() const { return id; }
  static kvuTypeInfo const id;
};
struct Left : Root {
  KVU_DECLARE_TYPE()
};
struct Right : Root {
  KVU_DECLARE_TYPE()
};
struct Both : Left, Right {
  KVU_DECLARE_TYPE()
};
KVU_DEFINE_TYPE(Root)
KVU_DEFINE_TYPE(Left, Root)
KVU_DEFINE_TYPE(Right, Root)
KVU_DEFINE_TYPE(Both, Left, Right)

TEST(Platform, TypeRecordsResourcesTemporaryFilesAndSinks) {
  EXPECT_TRUE(Both::id.childof(Root::id));
  EXPECT_TRUE(Both::id.childof(Right::id));
  EXPECT_FALSE(Left::id.childof(Right::id));
  EXPECT_FALSE(Root::id.childof(Left::id));
  EXPECT_STREQ(Both::id.id_string().c_str(), "Both");

  coResourceTable* table = kvn_resource_table_inquire();
  table->set(kvnOptDoubleGeometricPrecision, 9);
  EXPECT_EQ(kvnOptDoubleGeometricPrecision.value(), 9);
  table->reset(kvnOptDoubleGeometricPrecision);
  EXPECT_EQ(*kvnOptDoubleGeometricPrecision.read(table), 15);
  table->set(kvnTolZeroLength, 0.25);
  EXPECT_EQ(*kvnTolZeroLength.read(table), 0.25);
  table->reset(kvnTolZeroLength);
  EXPECT_EQ(kvnTolZeroLength.value(), 1e-9);

  auto dir = std::filesystem::temp_directory_path();
  utString a = kvu_make_temp_file_name(utString(dir.string()));
  utString b = kvu_make_temp_file_name(utString(dir.string()));
  utString c = kvu_make_temp_file_name(utString(""));
  EXPECT_FALSE(a.is_null() || c.is_null() || a == b);
  EXPECT_TRUE(std::filesystem::exists(a.c_str()));
  for (utString const& name : {a, b, c}) std::filesystem::remove(name.c_str());
  EXPECT_TRUE(kvu_make_temp_file_name(utString("/no/such/folder/at/all")).is_null());

  kvnabsStringOutput sink;
  get_igs_stream().set_error_stream(&sink);
  igs_print_error_message("Warning: %d lines\n", 3);
  get_igs_stream().set_error_stream(nullptr);
  sink.message("iges", "DE %d", 7);
  EXPECT_EQ(sink.text(), "Warning: 3 lines\nDE 7");
}

TEST(Geometry, UnsetValuesLengthsMatricesAndTransforms) {
  EXPECT_TRUE(giPoint3().invalid());
  EXPECT_TRUE(giPoint3(0, DBL_MAX, 0).invalid());
  EXPECT_FALSE(giPoint3(0, 0, 0).invalid());
  EXPECT_TRUE(giPoint2().invalid());
  EXPECT_TRUE(giVector3().invalid());
  giLength l = distance(giPoint3(0, 0, 0), giPoint3(3, 4, 0));
  EXPECT_TRUE(l < giLength(5.5));
  EXPECT_DOUBLE_EQ(static_cast<double>(l), 5.0);
  EXPECT_TRUE(giPoint2(1, 1).coincident(giPoint2(1, 1.0000001), 1e-6));
  EXPECT_TRUE(giPoint2(0, 0).coincident(giPoint2(0, 0.5), 0.5)); // at the tolerance itself
  EXPECT_DOUBLE_EQ(utMath::pow(10.0, -3), 0.001);
  EXPECT_DOUBLE_EQ(utMath::pow(2.0, 10), 1024.0);
  giVector3 v(0, 0, 2);
  EXPECT_DOUBLE_EQ(v.orthogonal().dot(v), 0.0);
  // A zero vector is refused and left alone; any other comes out of unit length.
  giVector2 zero2(0, 0), unit2(3, 4);
  giVector3 zero3(0, 0, 0);
  EXPECT_EQ(zero2.unitize() + zero3.unitize(), 0);
  EXPECT_TRUE(zero2.x() == 0.0 && zero3.z() == 0.0);
  EXPECT_EQ(unit2.unitize() + v.unitize(), 2);
  EXPECT_TRUE(unit2.x() == 0.6 && v.z() == 1.0);
  // Vector and length arithmetic, against values worked by hand.
  giVector2 a(3, 4), b(1, 2);
  EXPECT_TRUE(a.cross(b) == 2 && -(a + b - b) / 2 == giVector2(-1.5, -2) && !a.invalid());
  giVector3 c(1, 2, 3);
  EXPECT_EQ(-(c + c - c) / 2, giVector3(-0.5, -1, -1.5));
  EXPECT_EQ(giPoint3(1, 1, 1) + c - c, giPoint3(1, 1, 1));
  giLength ten = l * 1.0;
  ten *= 2;
  EXPECT_TRUE(ten > l && ten >= l && l == giLength(5) && !ten.invalid());

  // A new matrix is the identity and writes nothing beyond its own 16 values.
  alignas(giMatrix4) unsigned char store[sizeof(giMatrix4) + 4 * sizeof(double)];
  std::memset(store, 0x5a, sizeof store);
  giMatrix4& identity = *new (store) giMatrix4;
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) EXPECT_EQ(identity(r, c), r == c ? 1.0 : 0.0);
  for (size_t i = sizeof(giMatrix4); i < sizeof store; ++i) EXPECT_EQ(store[i], 0x5a);
  // Transposed in place and into another, against the values.
  double values[4][4];
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) values[r][c] = 10 * r + c;
  giMatrix4 m;
  m.become(values);
  std::memset(store, 0x5a, sizeof store); // the transpose lands where nothing follows unseen
  giMatrix4& t = *new (store) giMatrix4;
  t.become(giMatrixTransposeTag, m);
  m.transpose();
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) EXPECT_TRUE(m(r, c) == 10 * c + r && t(r, c) == m(r, c));
  for (size_t i = sizeof(giMatrix4); i < sizeof store; ++i) EXPECT_EQ(store[i], 0x5a);

  giXform3 translate(giXformTranslateTag, 1, 2, 3), scale(giXformScaleTag, 2, 2, 2), product;
  EXPECT_TRUE(product.invalid());
  product.become(giXformProductTag, translate, scale); // scale, then translate
  EXPECT_EQ(product.apply(giPoint3(1, 1, 1)), giPoint3(3, 4, 5));
  product.become(giXformProductTag, translate, giXform3());
  EXPECT_TRUE(product.invalid());
}

} // namespace
