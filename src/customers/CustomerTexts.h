#pragma once

#include "windows/WindowTexts.h"

inline constexpr WindowTexts customerTexts("frmcadastro_clientes", "MsgBox1_2");
