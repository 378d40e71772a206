#pragma once

#include "configuration/WindowTexts.h"

inline constexpr WindowTexts customerTexts("frmcadastro_clientes", "MsgBox1_2");
