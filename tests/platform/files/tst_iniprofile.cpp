#include "platform/files/IniProfile.h"
#include "tests/support/Files.h"
#include "tests/support/FullDisk.h"

#include <QDir>
#include <QStringConverter>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

class tst_iniprofile : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void readsAsWindowsDoes()
    {
        const auto check = [&](const char *section, const char *key, const char *value) {
            // The callers join folder and name as Windows does.
            const QString joined = m_folder->path().replace(u'/', u'\\') + "\\\\config.ini";
            QCOMPARE(GetPrivateProfileString(section, key, "fallback", 255, joined), value);
        };
        store("[Moeda]\r\nSimbolo=R$ \r\n;Ativo=comment\r\n  Ativo = 0;kept\r\nAtivo=second\r\nVazio=\r\nno key\r\n"
              "[open\r\n[ Modulo Externo ] ; permission\r\nAtivo=\"1=1\"\r\n[moeda]\r\nOutra=later section\r\n"
              "[Som]\rAtivo=1\n[Som]\nAtivo=a\rb",
              "Config.INI");
        check("Moeda", "Simbolo", "R$ ");
        check("MOEDA", "ativo", " 0;kept");
        check("Moeda", "Vazio", "");
        check("moeda", "Outra", "fallback");
        check("Modulo Externo", "Ativo", "\"1=1\"");
        check("Som", "Ativo", "fallback");

        store("[CONFIGURA\xC7\xC3O]\nDescri\xE7\xE3o=\x80 \x93\xC1gua\x94", "Config.INI");
        check("Configuração", "descriÇÃO", "€ “Água”");
        store("\xEF\xBB\xBF[CONFIGURAÇÃO]\nDescrição=€ Água 😀\nOutra=\xC1gua", "Config.INI");
        check("Configuração", "descriÇÃO", "€ Água 😀");
        check("Configuração", "Outra", "Água");
    }

    void readsEachTimeAndCutsInCharacters()
    {
        // Same size, written at the same moment: only the content tells.
        for (const char *value : {"1", "0", "1"}) {
            store(QByteArray("[a]\nk=") + value);
            QCOMPARE(GetPrivateProfileString("a", "k", {}, 255, path()), value);
        }
        {
            // But in a burst, which its own writes end for what follows.
            const IniBurst burst;
            for (const char *value : {"2", "3"}) {
                store(QByteArray("[a]\nk=") + value);
                QCOMPARE(GetPrivateProfileString("a", "k", {}, 255, path()), "2");
            }
            QVERIFY(WritePrivateProfileString("a", "k", "4", path()));
            QCOMPARE(GetPrivateProfileString("a", "k", {}, 255, path()), "4");
        }
        store(QByteArray("[a]\nk=") + QString(300, u'ç').toUtf8());
        QCOMPARE(GetPrivateProfileString("a", "k", {}, 255, path()), QString(254, u'ç'));
        QCOMPARE(GetPrivateProfileString("a", "k", "fallback", 255, path("gone/config.ini")), "fallback");
    }

    void writes()
    {
        const auto check = [&](const QByteArray &before, const char *value, const QByteArray &after) {
            init();
            if (!before.isNull())
                store(before);
            QVERIFY(WritePrivateProfileString("a", "k", value, path()));
            QCOMPARE(stored(), after);
            QVERIFY(WritePrivateProfileString("a", "k", GetPrivateProfileString("a", "k", {}, 255, path()), path()));
            QCOMPARE(stored(), after);
        };
        check({}, "JOÃO", "[a]\r\nk=JO\xC3O\r\n");
        check({}, "Ω", "[a]\r\nk=Ω\r\n");
        check("[a]\n ;k=1\n K = 2\r\nk=3\n\n[A]\nk=4\n", "new", "[a]\n ;k=1\n K =new\r\nk=3\n\n[A]\nk=4\n");
        check("[a]\r\nj=1\r\n; note\r\n\r\n[b]\r\n", "2", "[a]\r\nj=1\r\nk=2\r\n; note\r\n\r\n[b]\r\n");
        check("[a]\r\nn=\xE7\r\nk=1", "ç Ω", "[a]\r\nn=\xE7\r\nk=\xE7 ?");
        check("[a]\nn=ç\nk=1", "ç Ω", "[a]\nn=ç\nk=ç Ω");
        check(QByteArray("\0\r\xFF\n[a]\r\r\nk=\0\n\r", 15), "1", QByteArray("\0\r\xFF\n[a]\r\r\nk=1\n\r", 15));
    }

    /// As editors of the first platform save it, in both orders of the bytes.
    void keepsUtf16()
    {
        for (const QStringConverter::Encoding encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
            const auto wide = [&](const QString &text) {
                return QByteArray(QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(text));
            };
            const QString lone(QChar(0xD800));
            store(wide("; " + lone + "Ω\r\n[a]\r\nk=1\r\nl=" + QString(300, u'ç')) + "h");
            QCOMPARE(GetPrivateProfileString("a", "L", {}, 255, path()), QString(254, u'ç'));
            QVERIFY(WritePrivateProfileString("a", "k", "JOÃO Ω", path()));
            QVERIFY(WritePrivateProfileString("b", "n", "2", path()));
            QVERIFY(stored().endsWith(
                wide("Ω\r\n[a]\r\nk=JOÃO Ω\r\nl=" + QString(300, u'ç') + "\r\n[b]\r\nn=2\r\n").mid(2) + "h"));
        }
    }

    /// The folder is shared: what stands at a name may be a trap, and what is made must serve the others.
    void mindsWhoElseWritesTheFolder()
    {
        const QString secret = path("elsewhere/secret");
        QVERIFY(QDir().mkpath(path("elsewhere")) && QDir().mkpath(path("cafe")));
        store("[a]\nk=secret\n", "elsewhere/secret");
        const QString file = path("cafe/inf.rcb");
        const auto rewritten = [&] { return WritePrivateProfileString("a", "n", "1", file, path("cafe/data")); };
        QVERIFY(QFile::link(secret, file));
        QCOMPARE(GetPrivateProfileString("a", "k", "none", 255, file), "none");
        QVERIFY(rewritten() && QFileInfo(secret).size() == 13 && !QFileInfo(file).isSymLink());

        QVERIFY(QFile::remove(file) && mkfifo(file.toUtf8().constData(), 0600) == 0);
        QCOMPARE(GetPrivateProfileString("a", "k", "none", 255, file), "none");

        // A new file has the rights of its sibling and the folder's group; a rewritten one keeps its own.
        store("", "cafe/data");
        QVERIFY(chmod(path("cafe/data").toUtf8().constData(), 0660) == 0);
        struct stat status = {};
        const gid_t group = geteuid() == 0 ? 12345 : getegid();
        QVERIFY(chown(path("cafe").toUtf8().constData(), geteuid(), group) == 0);
        for (const mode_t rights : {0660U, 0640U}) {
            QVERIFY(rewritten() && stat(file.toUtf8().constData(), &status) == 0);
            QCOMPARE(status.st_mode & ALLPERMS, rights);
            QCOMPARE(status.st_gid, group);
            QVERIFY(chmod(file.toUtf8().constData(), 0640) == 0);
        }
        QVERIFY(!WritePrivateProfileString("a", "k", "1", "\\config.ini") && !QFile::exists("/config.ini"));
    }

    void losesNothingWhenItCannotWrite()
    {
        const QByteArray before = "[a]\nk=" + QByteArray(5000, 'x') + "\n";
        store(before);
        {
            const FullDisk full;
            QVERIFY(!WritePrivateProfileString("a", "n", "1", path()));
        }
        QCOMPARE(stored(), before);
    }

private:
    QString path(const QString &name = "config.ini") const { return m_folder->filePath(name); }

    void store(const QByteArray &bytes, const QString &name = "config.ini") const { writeFile(path(name), bytes); }

    /// The file's bytes, once it is sure that nothing else lies in its folder.
    QByteArray stored() const
    {
        const bool alone = QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden) == QStringList("config.ini");
        return alone ? readFile(path()) : QByteArray("missing or not alone");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(tst_iniprofile)
#include "tst_iniprofile.moc"
