#pragma once

#include "configuration/WindowTexts.h"

inline constexpr WindowTexts codeTexts("frmcodigo_rapido", "MsgBox1_2");
