#include "shell/frmprincipal.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "customers/frmcadastro_clientes.h"
#include "data/Acesso_BD.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/print/Printer.h"
#include "platform/text/Numbers.h"
#include "platform/window/Forms.h"
#include "platform/window/Pictures.h"
#include "platform/window/Prompts.h"
#include "products/frmcadastro_produtos.h"
#include "sale/frmvenda.h"
#include "shell/Registros.h"
#include "ui_frmprincipal.h"
#include "windows/OpenForms.h"
#include "windows/PageScale.h"

#include <algorithm>
#include <chrono>

namespace {
const QString noLanguage = "Idioma não econtrado no caminho especificado! Execute o Administrador antes de rodar o "
                           "módulo auxiliar! ";
const QString adviceOnRights = "Certifique-se que o caminho indicado está liberado totalmente para leitura e gravação "
                               "de dados!";
const QString badPath = "Caminho do arquivo inválido!";
const QString noFile = "Arquivo não encontrado!";
const QString blocked = "A execução do programa está bloqueada. Solicite permissão ao administrador!";
const QString warning = "Aviso";

constexpr int fullBar = 100;
constexpr int barStep = 10;
constexpr auto barInterval = std::chrono::milliseconds(100);
constexpr int archiveAttribute = 32;
constexpr QSize folderPictureSize(20, 20);
constexpr QSize programPictureSize(56, 56);

QString languageLong()
{
    return noLanguage + adviceOnRights;
}

/// The registry's default printer as the system spells it; empty when the system has none of that name.
QString registeredPrinter()
{
    const QString wanted =
        Ler_Registro(R"(HKEY_CURRENT_CONFIG\System\CurrentControlSet\Control\Print\Printers)", "Default").toUpper();
    if (wanted == "ERROR" || wanted.isEmpty())
        return {};
    const QStringList names = Printers();
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const QString &name) { return name.toUpper() == wanted; });
    return found == names.end() ? QString() : *found;
}

void notice(const QString &text)
{
    MsgBox(text, vbInformation, warning);
}
} // namespace

frmprincipal::frmprincipal() : ui(std::make_unique<Ui::frmprincipal>())
{
    ui->setupUi(this);
    ui->cmdbuscabd->setIcon(bundledPicture("pasta", folderPictureSize));
    ui->Image1->setPixmap(bundledPicture("programa", programPictureSize));
    const RefusalTexts longTexts{languageLong(), badPath + " " + adviceOnRights, noFile + " " + adviceOnRights};
    const RefusalTexts shortTexts{noLanguage, badPath, noFile};
    m_doors = {{ui->cmdclientes, [] { Forms::use<frmcadastro_clientes>().Show(); }, longTexts},
               {ui->cmdprodutos, [] { Forms::use<frmcadastro_produtos>().Show(); }, shortTexts},
               {ui->cmdvendaprod, [] { Forms::use<frmvenda>().Show(); }, shortTexts}};
    for (const Door &door : std::as_const(m_doors))
        connect(door.button, &QPushButton::clicked, this, [this, &door] { press(door); });
    connect(ui->txtbasedados, &TextBox::Change, this, [this] { CaminhoAlterado = true; });
    connect(ui->cmdbuscabd, &QPushButton::clicked, this, &frmprincipal::cmdbuscabd_Click);
    connect(&temp, &QTimer::timeout, this, &frmprincipal::temp_Timer);
    startBar();
}

frmprincipal::~frmprincipal() = default;

void frmprincipal::Form_Load()
{
    Carregado = false;
    ui->barra->setValue(0);
    ArquivoConfigIni = Machine::current().programFolder() + "\\ConfigIni.txt";
    CaminhoBD = Ler_INI(ArquivoConfigIni, "Configuracoes", "BD");
    ui->txtbasedados->setText(CaminhoBD);
    CaminhoAlterado = false;
    Printer::current().setDeviceChooser(registeredPrinter);
    Salvar_Escala_Impressora();
}

void frmprincipal::Form_Activate()
{
    if (!Carregado)
        Carregar();
}

void frmprincipal::readLanguageName()
{
    // Always beside the known data file, never beside the one in the path box: a new path takes effect only when a
    // window is opened.
    NomeIdioma = Ler_INI(caminhoConfig(), "Config_Regional", "Idioma").toUpper();
}

void frmprincipal::Carregar()
{
    if (ui->txtbasedados->text().isEmpty())
        return stopLoading();
    Carregado = true;
    readLanguageName();
    if (NomeIdioma.isEmpty()) {
        MsgBox(languageLong(), vbInformation);
        return stopLoading();
    }
    startBar();
    DoEvents();
    Carregar_Idioma();
    const QString symbol = Ler_INI(caminhoConfig(), "Moeda", "Simbolo");
    SimboloMoeda = symbol.isEmpty() ? Simbolo_Moeda_Regional() : symbol;
    enableDoors(true);
    stopLoading();
}

void frmprincipal::startBar()
{
    ui->barra->setTextVisible(true);
    temp.start(barInterval);
}

void frmprincipal::stopLoading()
{
    temp.stop();
    ui->barra->setValue(fullBar);
    // At rest the full bar would claim that it still loads.
    ui->barra->setTextVisible(false);
}

void frmprincipal::enableDoors(bool enabled)
{
    for (const Door &door : std::as_const(m_doors))
        door.button->setEnabled(enabled);
}

void frmprincipal::temp_Timer()
{
    DoEvents();
    ui->barra->setValue(ui->barra->value() + barStep);
    DoEvents();
    if (ui->barra->value() == fullBar) {
        ui->barra->setInvertedAppearance(!ui->barra->invertedAppearance());
        ui->barra->setValue(0);
        DoEvents();
    }
}

void frmprincipal::cmdbuscabd_Click()
{
    FileDialog dialog;
    dialog.InitDir = Pasta_Do_Arquivo(CaminhoBD);
    dialog.Filter = "Morvelane.mdb (Morvelane.mdb) |Morvelane.mdb|";
    dialog.ShowOpen();
    if (dialog.FileName.isEmpty())
        return;
    if (!Existe_Arquivo(dialog.FileName)) {
        notice(badPath + " " + adviceOnRights);
        return;
    }
    ui->txtbasedados->setText(dialog.FileName);
    enableDoors(false);
    Carregar();
}

void frmprincipal::press(const Door &door)
{
    if (!OnErrorGoToEnd([&] { enter(door); }) && Err::Number() == ErrorNumber::BadFileName)
        notice(door.texts.file);
}

void frmprincipal::enter(const Door &door)
{
    const QString permission = Ler_INI(caminhoConfig(), "Modulo Externo", "Ativo");
    if (permission.isEmpty() || permission == "0")
        return notice(blocked);
    // Read anew at each step: while the texts are loaded events run, and somebody may type.
    const auto path = [this] { return ui->txtbasedados->text(); };
    if (!path().isEmpty()) {
        readLanguageName();
        if (NomeIdioma.isEmpty()) {
            MsgBox(door.texts.language, vbInformation);
            return;
        }
        if (CaminhoAlterado) {
            Carregar();
            CaminhoAlterado = false;
        }
    }
    if (path().isEmpty())
        return notice(door.texts.path);
    if (!Existe_Arquivo(path()) || Dir(path(), archiveAttribute).toUpper() != QString("Morvelane.mdb").toUpper())
        return notice(door.texts.file);

    CaminhoBD = path();
    Gravar_INI(ArquivoConfigIni, "Configuracoes", "BD", CaminhoBD);
    setMousePointer(vbHourglass);
    door.show();
    setMousePointer(vbDefault);
}

void frmprincipal::Form_Unload()
{
    Fechar_Recordsets_Globais();
    Fechar_BD(BancoPrincipal);
    Descarregar_Forms();
    QCoreApplication::quit();
}
