#pragma once

#include "windows/WindowTexts.h"

inline constexpr WindowTexts codeTexts("frmcodigo_rapido", "MsgBox1_2");
