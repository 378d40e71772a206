#pragma once

#include <QPixmap>
#include <QString>

/// A picture file, in no larger size than a screen has use for. Raises InvalidPicture for a file that is none.
QPixmap LoadPicture(const QString &path);

/// One of the program's own pictures, drawn sharp for the screen's scale and in the text colour of the desktop.
QPixmap bundledPicture(const QString &name, QSize size);
