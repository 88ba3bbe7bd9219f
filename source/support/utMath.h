// Static maths helpers.
#pragma once

#include <cfloat>
#include <climits>
#include <cmath>
#include <numbers>

class utMath {
 public:
  template <class T> static T abs(T v) { return v < 0 ? -v : v; }
  template <class T> static T min(T a, T b) { return b < a ? b : a; }
  template <class T> static T max(T a, T b) { return a < b ? b : a; }
  static double sqrt(double v) { return std::sqrt(v); }
  static constexpr double pi() { return std::numbers::pi; }
  static constexpr int max_int() { return INT_MAX; }
  static constexpr int min_int() { return INT_MIN; }
  static constexpr double max_double() { return DBL_MAX; }
  // v to an integral power, by repeated squaring.
  static double pow(double v, int n) {
    if (n < 0) return 1.0 / pow(v, -(n + 1)) / v;
    double result = 1.0;
    while (n) {
      if (n & 1) result *= v;
      v *= v;
      n >>= 1;
    }
    return result;
  }
  // Floating remainder of a / b.
  static double remd(double a, double b) { return std::fmod(a, b); }
};
