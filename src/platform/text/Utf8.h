#pragma once

#include <QByteArrayView>
#include <QString>

#include <algorithm>

/// Text of bytes that are a part of something. The library's own conversion drops a mark at their beginning as a sign
/// of the encoding, but there it is a character that somebody pasted, and equality needs it.
QString fromUtf8(QByteArrayView bytes);

/// Such bytes mean the same in every encoding that a file of this program may have.
inline bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}
