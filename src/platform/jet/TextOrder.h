#pragma once

#include <string>
#include <string_view>

/// How texts are put in order and compared, the same on every computer.

/// Key whose bytes stand in the order of the language: blanks and punctuation before digits before letters, no case,
/// and an accent counts only between texts that are equal without it.
std::string languageKey(std::string_view utf8);

/// 0 for texts that differ in case alone; accents count. Otherwise below or above 0.
int compareAnyCase(std::string_view left, std::string_view right);
