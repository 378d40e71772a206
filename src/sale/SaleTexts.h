#pragma once

#include "windows/WindowTexts.h"

inline constexpr WindowTexts saleTexts("frmvenda", "MsgBox1_6");
