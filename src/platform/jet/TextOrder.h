#pragma once

#include <string_view>

/// How texts are put in order, the same on every computer. Below, at or above 0 as the first stands before, beside or
/// behind the second.

/// Blanks and punctuation before digits before letters; no case; an accent counts only between texts that are equal
/// without it.
int compareByLanguage(std::string_view left, std::string_view right);

/// 0 for texts that differ in case alone; accents count.
int compareAnyCase(std::string_view left, std::string_view right);
