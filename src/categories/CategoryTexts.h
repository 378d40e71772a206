#pragma once

#include "windows/WindowTexts.h"

inline constexpr WindowTexts categoryTexts("frmcadastro_categoria", "MsgBox1_2");
