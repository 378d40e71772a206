#pragma once

#include <QString>

/// Password of every café's data file; whoever has a copy of the program has it.
constexpr auto dataFilePassword = "qzt3172";

/// The password part of what a data file is opened with.
inline QString connectText()
{
    return QString(";PWD=") + dataFilePassword;
}
