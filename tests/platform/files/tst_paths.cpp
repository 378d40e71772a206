#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_paths : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void resolves_data();
    void resolves();
    void prefersTheExactName();
    void tellsAttributes();
    void namesTheFile();
    void deletes();
    void renames();

private:
    QString path(const QString &relative) const { return m_folder->path() + u'/' + relative; }
    void touch(const QString &relative, const QByteArray &content = "x") const;
    static int failure(const std::function<void()> &statement);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_paths::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath("Café/fotos"));
    touch("Café/Config.INI");
    touch("Café/fotos/JOÃO.jpg");
}

void tst_paths::touch(const QString &relative, const QByteArray &content) const
{
    QFile file(path(relative));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// Number of the failure that a statement raises; 0 for none.
int tst_paths::failure(const std::function<void()> &statement)
{
    Err::Clear();
    OnErrorResumeNext(statement);
    return Err::Number();
}

void tst_paths::resolves_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("found");

    QTest::newRow("as written") << "Café/Config.INI"
                                << "Café/Config.INI";
    QTest::newRow("backslashes, doubled") << "Café\\\\Config.INI"
                                          << "Café/Config.INI";
    QTest::newRow("upper case") << "CAFÉ\\FOTOS\\JOÃO.JPG"
                                << "Café/fotos/JOÃO.jpg";
    QTest::newRow("lower case") << "café//config.ini"
                                << "Café/Config.INI";
    QTest::newRow("folder") << "CAFÉ\\"
                            << "Café/";
    QTest::newRow("nowhere stays as written") << "CAFÉ\\Languages\\PT1.lng"
                                              << "Café/Languages/PT1.lng";
    QTest::newRow("up and down") << "CAFÉ\\..\\CAFÉ\\.\\FOTOS"
                                 << "Café/../Café/./fotos";
}

void tst_paths::resolves()
{
    QFETCH(QString, given);
    QFETCH(QString, found);
    QCOMPARE(resolveIgnoringCase(path(given)), path(found));
    QCOMPARE(resolveIgnoringCase(path(given).replace(u'/', u'\\')), path(found));

    const QString before = CurDir();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QCOMPARE(CurDir(), QDir(m_folder->path()).canonicalPath());
    QCOMPARE(resolveIgnoringCase(given), found);
    QVERIFY(QDir::setCurrent(before));
}

void tst_paths::prefersTheExactName()
{
    for (const char *name : {"b.txt", "B.TXT", "B.txt"})
        touch(name);
    QCOMPARE(resolveIgnoringCase(path("b.txt")), path("b.txt"));
    QCOMPARE(resolveIgnoringCase(path("b.TXT")), path("B.TXT"));
    QCOMPARE(resolveIgnoringCase({}), QString());
}

void tst_paths::tellsAttributes()
{
    QCOMPARE(GetAttr(path("café\\config.ini")), 32);
    QCOMPARE(GetAttr(path("CAFÉ\\")), 16);
    QCOMPARE(failure([&] { GetAttr(path("Café/none")); }), ErrorNumber::FileNotFound);
    QCOMPARE(failure([&] { GetAttr(path("Café/Config.INI/")); }), ErrorNumber::FileNotFound);
    QCOMPARE(failure([] { GetAttr({}); }), ErrorNumber::FileNotFound);
}

void tst_paths::namesTheFile()
{
    QCOMPARE(Dir(path("CAFÉ\\CONFIG.ini"), 32), "Config.INI");
    QCOMPARE(Dir(path("Café\\none.ini")), QString());
    QCOMPARE(Dir(path("Café")), QString());
    QCOMPARE(Dir(path("Café\\")), QString());
    QCOMPARE(failure([&] { Dir(path("gone\\Config.INI")); }), ErrorNumber::BadFileName);
}

void tst_paths::deletes()
{
    Kill(path("café\\fotos\\joão.JPG"));
    QVERIFY(!QFile::exists(path("Café/fotos/JOÃO.jpg")));
    QCOMPARE(failure([&] { Kill(path("café\\fotos\\joão.JPG")); }), ErrorNumber::FileNotFound);
    QCOMPARE(failure([&] { Kill(path("café\\fotos")); }), ErrorNumber::FileNotFound);
    // No one may delete a file of the kernel's, root neither.
    QCOMPARE(failure([] { Kill("/proc/self/status"); }), ErrorNumber::PathAccess);
}

void tst_paths::renames()
{
    renameFile(path("café\\FOTOS\\joão.jpg"), path("CAFÉ\\fotos\\João.JPG"));
    QCOMPARE(QDir(path("Café/fotos")).entryList(QDir::Files), {"João.JPG"});
    renameFile(path("Café\\fotos\\JOÃO.jpg"), path("CAFÉ\\Maria.jpg"));
    QVERIFY(QFile::exists(path("Café/Maria.jpg")));

    touch("Café/Ana.jpg", "Ana");
    QCOMPARE(failure([&] { renameFile(path("Café/Maria.jpg"), path("Café/ANA.JPG")); }), ErrorNumber::PathAccess);
    QCOMPARE(failure([&] { renameFile(path("Café/Maria.jpg"), path("gone/Maria.jpg")); }), ErrorNumber::PathAccess);
    QCOMPARE(failure([&] { renameFile(path("Café/none"), path("Café/new")); }), ErrorNumber::FileNotFound);
    QCOMPARE(QDir(path("Café")).entryList(QDir::Files, QDir::Name),
             QStringList({"Ana.jpg", "Config.INI", "Maria.jpg"}));
}

QTEST_APPLESS_MAIN(tst_paths)
#include "tst_paths.moc"
