// A small strict JSON reader for the tests: says whether a text is one valid JSON document.
#pragma once

#include <string>

bool json_valid(std::string const& text);
