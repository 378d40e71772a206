#include "photo/Conversor_JPG.h"

#include "configuration/Arquivos.h"
#include "photo/cDIBSection.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/files/SafeFile.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"

#include <turbojpeg.h>

#include <memory>

namespace {

/// The encoder can't even begin: there is no file to wait for.
bool ErroJPEG = false;

/// Seconds since midnight.
double Timer()
{
    constexpr double millisecondsPerSecond = 1000;
    return Machine::current().now().time().msecsSinceStartOfDay() / millisecondsPerSecond;
}

} // namespace

void Salvar_JPG(const QPixmap &imagem, const QString &arquivo)
{
    constexpr int quality = 90;
    constexpr int limitSeconds = 25;
    constexpr int turnMilliseconds = 50;
    // The window that asked may be closed while this waits.
    const EventPump pump;
    if (Existe_Arquivo(arquivo))
        OnErrorResumeNext([&] { Kill(arquivo); });
    cDIBSection section;
    section.CreateFromPicture(imagem);
    const double begin = Timer();
    ErroJPEG = false;
    DoEvents();
    Gravar_JPG(section, arquivo, quality);

    const auto waits = [&] {
        // The clock starts anew at midnight, which ends a wait as it always did.
        const double now = Timer();
        return !Existe_Arquivo(arquivo) && !ErroJPEG && now >= begin && now <= static_cast<int>(begin) + limitSeconds;
    };
    while (waits()) {
        Machine::current().sleep(turnMilliseconds);
        DoEvents();
    }
}

bool Gravar_JPG(const cDIBSection &dib, const QString &arquivo, int qualidade)
{
    const std::unique_ptr<void, int (*)(tjhandle)> encoder(tjInitCompress(), tjDestroy);
    if (!encoder) {
        ErroJPEG = true;
        MsgBox("Erro!", vbExclamation);
        return false;
    }
    unsigned char *encoded = nullptr;
    unsigned long size = 0;
    const bool done = tjCompress2(encoder.get(), dib.DIBSectionBitsPtr(), dib.Width(), dib.BytesPerScanLine(),
                                  dib.Height(), TJPF_BGR, &encoded, &size, TJSAMP_444, qualidade, TJFLAG_BOTTOMUP) == 0;
    const std::unique_ptr<unsigned char, void (*)(unsigned char *)> file(encoded, tjFree);
    return done && OnErrorGoToEnd([&] {
               writeWholeFile(
                   arquivo,
                   QByteArray::fromRawData(reinterpret_cast<const char *>(encoded), static_cast<qsizetype>(size)),
                   arquivoModelo(arquivo));
           });
}
