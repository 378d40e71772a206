#pragma once

#include "configuration/WindowTexts.h"

inline constexpr WindowTexts saleTexts("frmvenda", "MsgBox1_6");
