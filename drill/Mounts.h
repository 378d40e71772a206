#pragma once

#include <QString>

// Mounts that only this process and its children see. They need a kernel that grants them to the user who drills; where
// it does not, the scenes that need them cannot be played.

/// To be called first of all, before any thread runs. False where such mounts are not granted.
bool enterPrivateMounts();

/// A disk of so many bytes at an empty folder.
bool mountSmallDisk(const QString &folder, qint64 bytes);
/// The same folder once more over itself, without the right to write.
bool mountReadOnly(const QString &folder);
bool unmount(const QString &folder);
