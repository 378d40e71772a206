#include "configuration/Idiomas.h"

#include "configuration/Arquivos.h"
#include "configuration/Globais.h"
#include "platform/files/IniProfile.h"
#include "platform/window/Forms.h"

namespace {
constexpr int textBufferSize = 500; ///< the last place is the terminating zero's
constexpr int numberedFiles = 5;
constexpr int extensionLength = 4;

/// The texts in constant use, by section. Their numbers have gaps: only these exist.
struct Section
{
    const char *name;
    const char *keys;
};
constexpr Section sectionsInMemory[] = {
    {"frmcadastro_categoria", "String1 String2 String3 String4 String5 String6 String7 String8 String11 String12 "
                              "String12_2 String13 String14"},
    {"frmcadastro_clientes", "String1 String3 String4 String5 String6 String7 String8 String9 String10 String11 "
                             "String12 String13 String14 String14_2 String15 String16 String17 String18"},
    {"frmcadastro_produtos", "String1 String2 String3 String4 String5 String6 String7 String8 String9 String10 "
                             "String11 String11_2 String12 String13 String15"},
    {"frmcodigo_rapido", "String1 String1_2 String2 String3 String3_2 String3_3 String3_4 String4 String6 String7 "
                         "String8 String8_2"},
    {"frmvenda", "String1 String1_2 String2 String3 String4 String5 String5_2 String6 String7 String7_2 String7_3 "
                 "String8 String9 String10"},
};
} // namespace

QString Ler_Idioma(const QString &file, const QString &section, const QString &key)
{
    if (file.size() < extensionLength)
        return {};
    const QString base = file.chopped(extensionLength);
    const QString extension = file.right(extensionLength);

    QString value;
    for (int number = 1; number <= numberedFiles && value.isEmpty(); ++number) {
        const QString numbered = base + QString::number(number) + extension;
        value = GetPrivateProfileString(section, key, {}, textBufferSize, numbered);
    }
    return value.size() > 1 ? value.mid(1, value.size() - 2) : value;
}

QString textoIdioma(const QString &section, const QString &key)
{
    return Ler_Idioma(Pasta_Do_Arquivo(CaminhoBD) + "\\Languages\\" + NomeIdioma, section, key);
}

void Carregar_Idioma()
{
    const IniBurst burst;
    for (const Section &section : sectionsInMemory) {
        for (const QString &key : QString(section.keys).split(' ')) {
            Globais::current().loadedTexts[{section.name, key}] = textoIdioma(section.name, key);
            DoEvents();
        }
    }
}

QString textoCarregado(const QString &section, const QString &key)
{
    return Globais::current().loadedTexts.value({section, key});
}
