#include "platform/text/Utf8.h"

QString fromUtf8(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        text.prepend(QChar::ByteOrderMark);
    return text;
}
