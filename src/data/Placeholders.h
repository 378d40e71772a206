#pragma once

#include <QString>

/// What the shared tables hold where there is nothing to tell; other programs compare with these very texts.
namespace Placeholder {
inline const QString NoName = "------";
inline const QString NoProductCode = "---";
inline const QString NoBarcode = "-------------";
inline const QString NoState = "--";
inline const QString NoPostalCode = "00.000-000";
// A new customer and an edited one get another text each, and that stays.
inline const QString NoBirthDate = "01/01/1900";
inline const QString NoBirthDateEdited = "00/00/0000";
inline const QString NoPhoto = "-----";
inline const QString NoCategory = "-----";
inline const QString NoMotive = "-----------";
} // namespace Placeholder
