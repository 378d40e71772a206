#pragma once

#include <QTemporaryFile>

/// A screen of a given size for a process that draws on none; it must be in force before the application is made.
class OffscreenScreen
{
public:
    OffscreenScreen(int width, int height);

    /// What QT_QPA_PLATFORM has to say.
    QByteArray platform() const;

private:
    QTemporaryFile m_file;
};
