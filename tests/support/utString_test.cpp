#include "support/utOstream.h"
#include "support/utString.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

TEST(utString, NullEmptySharingAndDetach) {
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

  utString sub(a, 1, 3);
  EXPECT_STREQ(sub.c_str(), "ELL");
  EXPECT_STREQ(utString(a, 3, 99).c_str(), "LO");
  EXPECT_TRUE(utString(a, 9, 1).is_null());

  utString n("N=");
  n << -42;
  EXPECT_STREQ(n.c_str(), "N=-42");
  EXPECT_STREQ((utString("ab") + utString("cd")).c_str(), "abcd");
  EXPECT_EQ(utString("Inch").case_compare(utString("INCH")), 0);
  EXPECT_NE(utString("Inch").compare(utString("INCH")), 0);
  EXPECT_STREQ(utString("ab \t\n").remove_trailing_chars(" \t\n\r\f\v").c_str(), "ab");

  char* claimed = new char[4]{'x', 'y', 'z', '\0'};
  EXPECT_STREQ(utString(utStringClaimTag, claimed, 4).c_str(), "xyz");
}

TEST(utString, Parse) {
  int v = -1, end = -1;
  EXPECT_TRUE(utString("  42 ").parse(v));
  EXPECT_EQ(v, 42);
  EXPECT_FALSE(utString("4x").parse(v));
  EXPECT_EQ(v, 0);
  EXPECT_FALSE(utString("").parse(v));
  EXPECT_TRUE(utString("12ab").parse(v, end));
  EXPECT_EQ(v, 12);
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

} // namespace
