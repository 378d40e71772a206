#pragma once

#include <QString>

/// What a process cannot change once it runs: the size of its screen in pixels, and its scale.
struct Desktop
{
    int width = 0;
    int height = 0;
    int percent = 100;

    QString name() const { return QString("%1x%2-%3").arg(width).arg(height).arg(percent); }
};

/// Saves a picture of each scene, light and dark and in all languages, as this process's desktop shows it. False when a
/// scene went otherwise than expected.
bool drawScenes(const QString &folder, const QString &desktop);

/// Runs this program anew for each desktop, and lays what it drew out as one contact sheet for each window: a row for
/// each language and scheme, a column for each desktop, and below them the window's further states. All pictures are
/// shown at 100 %, whatever they were drawn at.
bool drawContactSheets(const QString &folder);
