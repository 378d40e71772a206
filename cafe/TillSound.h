#pragma once

#include <QByteArray>

/// Two short bell tones as a wave file: 16 bit, one channel.
QByteArray tillSound();
