#pragma once

#include <QByteArrayView>
#include <QString>

/// Text of bytes that are a part of something. The library's own conversion drops a mark at their beginning as a sign
/// of the encoding, but there it is a character that somebody pasted, and equality needs it.
QString fromUtf8(QByteArrayView bytes);
