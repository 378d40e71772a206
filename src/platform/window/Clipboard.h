#pragma once

#include <QPixmap>

/// Pictures on the desktop's clipboard.
namespace Clipboard {
bool hasPicture();
/// A null picture when there is none.
QPixmap GetData();
void SetData(const QPixmap &picture);
} // namespace Clipboard
