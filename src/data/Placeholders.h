#pragma once

#include <QString>

/// What the shared tables hold where there is nothing to tell; other programs compare with these very texts.
namespace Placeholder {
inline const QString NoName = "------";
inline const QString NoProductCode = "---";
inline const QString NoPhoto = "-----";
inline const QString NoCategory = "-----";
inline const QString NoMotive = "-----------";
} // namespace Placeholder
