#pragma once

#include "configuration/WindowTexts.h"

inline constexpr WindowTexts productTexts("frmcadastro_produtos", "MsgBox1_2");
