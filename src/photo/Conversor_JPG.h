#pragma once

#include <QPixmap>
#include <QString>

class cDIBSection;

/// Writes a picture as a JPEG file in the place of what is there, and waits until the file can be seen, for 25 seconds
/// at most; events run meanwhile. A failure leaves no file and says nothing.
void Salvar_JPG(const QPixmap &imagem, const QString &arquivo);

/// Writes a section as a JPEG file, whole or not at all. True on success.
bool Gravar_JPG(const cDIBSection &dib, const QString &arquivo, int qualidade);
