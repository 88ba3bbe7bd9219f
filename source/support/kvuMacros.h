// Preprocessor helpers for declaring families of classes from tables.
#pragma once

// KVU_FOR_EACH(m, a, b, c) expands to m(a) m(b) m(c); up to 256 items.
#define KVU_PARENS ()
#define KVU_EXPAND(...) KVU_EXPAND4(KVU_EXPAND4(KVU_EXPAND4(KVU_EXPAND4(__VA_ARGS__))))
#define KVU_EXPAND4(...) KVU_EXPAND3(KVU_EXPAND3(KVU_EXPAND3(KVU_EXPAND3(__VA_ARGS__))))
#define KVU_EXPAND3(...) KVU_EXPAND2(KVU_EXPAND2(KVU_EXPAND2(KVU_EXPAND2(__VA_ARGS__))))
#define KVU_EXPAND2(...) KVU_EXPAND1(KVU_EXPAND1(KVU_EXPAND1(KVU_EXPAND1(__VA_ARGS__))))
#define KVU_EXPAND1(...) __VA_ARGS__
#define KVU_FOR_EACH(macro, ...) __VA_OPT__(KVU_EXPAND(KVU_FOR_EACH_HELPER(macro, __VA_ARGS__)))
#define KVU_FOR_EACH_HELPER(macro, a1, ...)                                                        \
  macro(a1) __VA_OPT__(KVU_FOR_EACH_AGAIN KVU_PARENS(macro, __VA_ARGS__))
#define KVU_FOR_EACH_AGAIN() KVU_FOR_EACH_HELPER

// Removes one level of parentheses: KVU_UNPAREN((a, b)) gives a, b.
#define KVU_UNPAREN(...) KVU_UNPAREN_ __VA_ARGS__
#define KVU_UNPAREN_(...) __VA_ARGS__
