#pragma once

#include "windows/WindowTexts.h"

inline constexpr WindowTexts productTexts("frmcadastro_produtos", "MsgBox1_2");
