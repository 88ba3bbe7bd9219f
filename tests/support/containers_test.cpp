#include "support/coNames.h"

#include <gtest/gtest.h>

namespace {

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

TEST(coDynArr, GrowsByIncrementAndIndexingExtends) {
  charcoDynArr line(81, 80);
  EXPECT_EQ(line.capacity(), 81);
  for (int i = 0; i < 81; ++i) line.append('x');
  EXPECT_EQ(line.capacity(), 81);
  line.append('y'); // past capacity: one step of 80
  EXPECT_EQ(line.capacity(), 161);
  EXPECT_EQ(line.size(), 82);

  intcoDynArr a(2, 3);
  a[6] = 7; // index past the size extends it
  EXPECT_EQ(a.size(), 7);
  EXPECT_EQ(a.capacity(), 8); // 2 + 2 steps of 3
  EXPECT_EQ(a[6], 7);
  EXPECT_EQ(a[3], 0);
  a[-1] = 5; // out of reach: written nowhere
  EXPECT_EQ(a.size(), 7);

  a.shrink(3, 1);
  EXPECT_EQ(a.size(), 3);
  EXPECT_EQ(a.capacity(), 3);
  a.shrink(0, 1);
  EXPECT_EQ(a.capacity(), 0);
  EXPECT_TRUE(a.expand(4));
  EXPECT_EQ(a.size(), 4);
  a.remove(1);
  EXPECT_EQ(a.size(), 3);
}

TEST(coDynArr, CopiesElementsOneByOne) {
  coDynArr<SelfAware> items(1, 1);
  for (int i = 0; i < 50; ++i) {
    SelfAware s;
    s.value = i;
    items.append(s);
  }
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(items[i].self, &items[i]);
    EXPECT_EQ(items[i].value, i);
  }
  coDynArr<SelfAware> copy(utCopyTag, items);
  ASSERT_EQ(copy.size(), 50);
  EXPECT_EQ(copy[49].self, &copy[49]);
  // Appending an element of the array itself while it grows.
  intcoDynArr v{1, 2, 3};
  for (int i = 0; i < 20; ++i) v.append(v[0]);
  EXPECT_EQ(v.size(), 23);
  EXPECT_EQ(v[22], 1);
}

TEST(coPageArr, PagesAreMadeOnUseAndStayInPlace) {
  coPageArr<int*> table(2); // pages of 4
  EXPECT_EQ(table.find(0), nullptr);
  int dummy = 0;
  table[0] = &dummy;
  int** first = &table[0];
  for (int i = 1; i < 100; ++i) table[i] = &dummy;
  EXPECT_EQ(first, &table[0]);
  EXPECT_EQ(table.size(), 100);
  table.shrink(5);
  EXPECT_EQ(table.size(), 5);
  EXPECT_EQ(*table.find(4), &dummy);
  EXPECT_EQ(table.find(50), nullptr);
}

TEST(coSetTable, SetAlgebraAndTableLookup) {
  intcoSet a, b;
  for (int i : {1, 2, 3, 4}) a.add(i);
  for (int i : {3, 4, 5}) b.add(i);
  intcoSet u;
  u.become(a);
  u += b;
  EXPECT_EQ(u.size(), 5);
  intcoSet i;
  i.become(a);
  i *= b;
  EXPECT_EQ(i.size(), 2);
  EXPECT_TRUE(i <= a);
  EXPECT_FALSE(a <= b);
  a -= b;
  EXPECT_FALSE(a.member(3));
  EXPECT_EQ(a.find(9), nullptr);

  intintcoTable t(4, 50);
  EXPECT_EQ(t.read(7), nullptr);
  t[7] += 2;
  EXPECT_EQ(*t.read(7), 2);
  EXPECT_TRUE(t.remove(7));
  EXPECT_FALSE(t.remove(7));

  intcoStack s;
  s.insert_first(1);
  s.insert_first(2);
  EXPECT_EQ(s.peek(), 2);
  EXPECT_EQ(s.pop(), 2);
  EXPECT_EQ(s.pop(), 1);
  EXPECT_TRUE(s.empty());
}

} // namespace
