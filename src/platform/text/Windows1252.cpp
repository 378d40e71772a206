#include "platform/text/Windows1252.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace {
constexpr const char *codePage = "windows-1252";
/// What the library's converter writes for a character that the code page lacks.
constexpr char substitute = '\x1A';
} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QStringDecoder decoder(codePage);
    return decoder.decode(bytes);
}

QByteArray toWindows1252(QStringView text)
{
    QStringEncoder encoder(codePage);
    QByteArray bytes = encoder.encode(text);
    bytes.replace(substitute, '?');
    return bytes;
}
