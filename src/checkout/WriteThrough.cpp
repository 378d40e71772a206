#include "checkout/WriteThrough.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"

#include <QCheckBox>

void writeThrough(QCheckBox *box, const QString &section, const QString &key)
{
    QObject::connect(box, &QCheckBox::clicked, box,
                     [section, key](bool checked) { Gravar_INI(caminhoConfig(), section, key, checked ? "1" : "0"); });
}

void tickAsStored(QCheckBox *box, const QString &section, const QString &key)
{
    if (Ler_INI(caminhoConfig(), section, key) == "1")
        box->setChecked(true);
}
