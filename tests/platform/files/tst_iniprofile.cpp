#include "platform/files/IniProfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

class tst_iniprofile : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void reads_data();
    void reads();
    void cutsInCharacters();
    void writes_data();
    void writes();
    void readsWhatAnotherComputerWrote();
    void survivesNoise_data();
    void survivesNoise();
    void keepsLinkAndPermissions();
    void losesNothingWhenItCannotWrite();

private:
    QString path(const QString &name = "config.ini") const { return m_folder->filePath(name); }
    void store(const QByteArray &bytes, const QString &name = "config.ini") const;
    QByteArray stored(const QString &name = "config.ini") const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_iniprofile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_iniprofile::store(const QByteArray &bytes, const QString &name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray tst_iniprofile::stored(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void tst_iniprofile::reads_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    const QByteArray usual = "stray=0\r\n"
                             "[Moeda]\r\n"
                             "Simbolo=R$ \r\n"
                             "; Ativo=comment\r\n"
                             "  Ativo = 0;kept\r\n"
                             "Ativo=second\r\n"
                             "Vazio=\r\n"
                             "no key\r\n"
                             "[ Modulo Externo ] ; permission\r\n"
                             "Ativo=\"1=1\"\r\n"
                             "[moeda]\r\n"
                             "Outra=later section";
    const auto row = [&](const char *name, const QByteArray &file, const QString &section, const QString &key,
                         const QString &value) { QTest::newRow(name) << file << section << key << value; };
    row("blanks of the value stay", usual, "Moeda", "Simbolo", "R$ ");
    row("any case, blanks around the key, first key", usual, "MOEDA", "ativo", " 0;kept");
    row("empty value is no fallback", usual, "Moeda", "Vazio", "");
    row("blanks in the brackets, quotes, a second equals", usual, "Modulo Externo", "Ativo", "\"1=1\"");
    row("only the first section of a name", usual, "moeda", "Outra", "fallback");
    row("nothing before a section", usual, "", "stray", "fallback");
    row("a comment is no key", usual, "Moeda", "; Ativo", "fallback");
    row("no such section", usual, "Som", "Ativo", "fallback");
    row("empty file", "", "Som", "Ativo", "fallback");
    row("Windows-1252", "[CONFIGURA\xC7\xC3O]\nDescri\xE7\xE3o=\x80 \x93\xC1gua\x94", "Configuração", "descriÇÃO",
        "€ “Água”");
    row("UTF-8", "[CONFIGURAÇÃO]\nDescrição=€ Água 😀", "Configuração", "descriÇÃO", "€ Água 😀");
    row("byte order mark", "\xEF\xBB\xBF[Som]\nAtivo=não", "Som", "Ativo", "não");
    row("lone carriage return", "[Som]\rAtivo=1\n[Som]\nAtivo=a\rb\r\n", "Som", "Ativo", "fallback");
    row("an open bracket is no section", "[Som]\n[Caixa\nAtivo=1", "Som", "Ativo", "1");
}

void tst_iniprofile::reads()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, value);
    store(file, "Config.INI");
    // The callers join folder and name as Windows does.
    const QString joined = m_folder->path().replace(u'/', u'\\') + "\\\\config.ini";
    QCOMPARE(GetPrivateProfileString(section, key, "fallback", 255, joined), value);
}

void tst_iniprofile::cutsInCharacters()
{
    store(QByteArray("[a]\nk=") + QString(300, u'ç').toUtf8());
    QCOMPARE(GetPrivateProfileString("a", "k", {}, 255, path()), QString(254, u'ç'));
    QCOMPARE(GetPrivateProfileString("a", "none", QString(300, u'x'), 255, path()).size(), 254);
    QCOMPARE(GetPrivateProfileString("a", "k", "fallback", 255, m_folder->filePath("gone/config.ini")), "fallback");
    QCOMPARE(GetPrivateProfileString("a", "k", "fallback", 255, m_folder->path()), "fallback");
}

void tst_iniprofile::writes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("after");

    const auto row = [](const char *name, const QByteArray &before, const QString &section, const QString &key,
                        const QString &value,
                        const QByteArray &after) { QTest::newRow(name) << before << section << key << value << after; };
    row("new file", "", "Recibo", "Via", "2", "[Recibo]\r\nVia=2\r\n");
    row("new file with an accent", "", "Grupo", "Padrao", "JOÃO", "[Grupo]\r\nPadrao=JO\xC3O\r\n");
    row("beyond the code page", "", "Grupo", "Padrao", "Ω", "[Grupo]\r\nPadrao=Ω\r\n");
    row("bytes that would read as UTF-8", "", "Grupo", "Padrao", "Ã©", "[Grupo]\r\nPadrao=Ã©\r\n");
    row("replaces the first key only", "[a]\n ;k=1\n K = 2\r\nk=3\n\n[A]\nk=4\n", "A", "k", "new",
        "[a]\n ;k=1\n K =new\r\nk=3\n\n[A]\nk=4\n");
    row("behind the last key", "[a]\r\nk=1\r\n; note\r\n\r\n[b]\r\n", "a", "n", "2",
        "[a]\r\nk=1\r\nn=2\r\n; note\r\n\r\n[b]\r\n");
    row("section without keys", "[a]\n\n[b]\nk=1\n", "a", "k", "2", "[a]\nk=2\n\n[b]\nk=1\n");
    row("no final line end", "[a]\nk=1", "a", "n", "2", "[a]\nk=1\nn=2\n");
    row("new section, no final line end", "[a]", "b", "k", "2", "[a]\r\n[b]\r\nk=2\r\n");
    row("value without final line end", "[a]\nk=1", "a", "k", "longer", "[a]\nk=longer");
    row("stays Windows-1252", "[a]\r\nn=\xE7\r\nk=1", "a", "k", "ç Ω", "[a]\r\nn=\xE7\r\nk=\xE7 ?");
    row("stays UTF-8", "[a]\nn=ç\nk=1", "a", "k", "ç Ω", "[a]\nn=ç\nk=ç Ω");
    row("keeps its mark", "\xEF\xBB\xBF", "a", "k", "ç", "\xEF\xBB\xBF[a]\r\nk=ç\r\n");
    row("other bytes stay", QByteArray("\0\r\xFF\n[a]\r\r\nk=\0\n\r", 15), "a", "k", "1",
        QByteArray("\0\r\xFF\n[a]\r\r\nk=1\n\r", 15));
}

void tst_iniprofile::writes()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QByteArray, after);
    if (!before.isEmpty())
        store(before);
    QVERIFY(WritePrivateProfileString(section, key, value, path()));
    QCOMPARE(stored(), after);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), {"config.ini"});
    // A second time changes nothing, though the file is written all the same.
    const QString readBack = GetPrivateProfileString(section, key, "fallback", 255, path());
    QVERIFY(WritePrivateProfileString(section, key, readBack, path()));
    QCOMPARE(stored(), after);
}

void tst_iniprofile::readsWhatAnotherComputerWrote()
{
    // Same size, written at the same moment: only the content tells.
    for (const char *value : {"1", "0", "1"}) {
        store(QByteArray("[Modulo Externo]\nAtivo=") + value);
        QCOMPARE(GetPrivateProfileString("Modulo Externo", "Ativo", {}, 255, path()), value);
    }
}

void tst_iniprofile::survivesNoise_data()
{
    QTest::addColumn<QByteArray>("noise");
    QByteArray noise;
    for (quint32 state = 1; noise.size() < 1'000'000; state = state * 1664525 + 1013904223)
        noise.append(static_cast<char>(state >> 24));
    QTest::newRow("a megabyte of noise") << noise;
    QTest::newRow("a megabyte of one line") << QByteArray(1'000'000, '[');
    QTest::newRow("a megabyte of NUL") << QByteArray(1'000'000, '\0');
    QTest::newRow("a megabyte of line ends") << QByteArray(1'000'000, '\n');
}

void tst_iniprofile::survivesNoise()
{
    QFETCH(QByteArray, noise);
    store(noise);
    QCOMPARE(GetPrivateProfileString("Som", "Ativo", "fallback", 255, path()), "fallback");
    QVERIFY(WritePrivateProfileString("Som", "Ativo", "0", path()));
    QVERIFY(stored().startsWith(noise));
    QCOMPARE(GetPrivateProfileString("Som", "Ativo", "fallback", 255, path()), "0");
}

void tst_iniprofile::keepsLinkAndPermissions()
{
    store("[a]\n");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    QVERIFY(QFile::setPermissions(path(), permissions));
    QVERIFY(QFile::link("config.ini", path("link.ini")));
    QVERIFY(WritePrivateProfileString("a", "k", "1", path("link.ini")));
    QVERIFY(QFileInfo(path("link.ini")).isSymLink());
    QCOMPARE(stored(), "[a]\nk=1\n");
    QCOMPARE(QFile::permissions(path()) & ~(QFile::ReadUser | QFile::WriteUser), permissions);
}

void tst_iniprofile::losesNothingWhenItCannotWrite()
{
    const QByteArray before = "[a]\nk=" + QByteArray(5000, 'x') + "\n";
    store(before);
    // A limit on file sizes stands for a full disk: root meets it, too.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit tight{4096, usual.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const bool written = WritePrivateProfileString("a", "n", "1", path());
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
    QVERIFY(!written);
    QCOMPARE(stored(), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), {"config.ini"});

    QVERIFY(!WritePrivateProfileString("a", "n", "1", path("gone/config.ini")));
    QVERIFY(!WritePrivateProfileString("a", "n", "1", m_folder->path()));
}

QTEST_APPLESS_MAIN(tst_iniprofile)
#include "tst_iniprofile.moc"
