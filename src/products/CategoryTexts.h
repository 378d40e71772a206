#pragma once

#include "configuration/WindowTexts.h"

inline constexpr WindowTexts categoryTexts("frmcadastro_categoria", "MsgBox1_2");
