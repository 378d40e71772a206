#pragma once

#include <initializer_list>

class Label;
class WindowTexts;

/// Tells on a label and on its shadow how many rows a list of this room has.
void showTotal(const WindowTexts &texts, int rows, std::initializer_list<Label *> labels);
