#include "checkout/SaleSound.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "platform/media/Sound.h"

void Tocar_Som(const QString &path)
{
    if (Ler_INI(caminhoConfig(), "Som", "Ativo") != "0" && Existe_Arquivo(path))
        sndPlaySound(path, SND_ASYNC);
}

void Tocar_Caixa()
{
    if (Ler_INI(caminhoConfig(), "Som", "Caixa Reg") != "0")
        Tocar_Som(Pasta_Do_Arquivo(CaminhoBD) + "\\Caixa.wav");
}
