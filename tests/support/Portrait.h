#pragma once

#include <QImage>

/// Somebody before a wall, with the shades and the grain of a photo.
QImage portrait(QSize size);
