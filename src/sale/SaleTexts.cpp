#include "sale/SaleTexts.h"

#include "configuration/Idiomas.h"
#include "platform/window/Prompts.h"

namespace {
constexpr const char *section = "frmvenda";
}

QString saleText(const QString &key)
{
    return textoIdioma(section, key);
}

QString loadedSaleText(const QString &key)
{
    return textoCarregado(section, key);
}

void saleNotice(const QString &key)
{
    saleNoticeText(saleText(key));
}

void saleNoticeText(const QString &text)
{
    MsgBox(text, vbInformation, saleText("MsgBox1_6"));
}
