#pragma once

#include "drill/Scenes.h"

/// The folder is moved away and comes back.
void playUnreachable(Drill &drill);
/// Another program holds the data file for a minute.
void playHeld(Drill &drill);
/// The folder refuses to be written and takes it again; needs mounts of its own.
void playReadOnly(Drill &drill);
/// The disk is full but for a few kilobytes and has room again; needs mounts of its own.
void playFullDisk(Drill &drill);
