#include "drill/ShareScenes.h"

#include "drill/Mounts.h"
#include "drill/TerminalProcess.h"
#include "tests/support/FileHolder.h"

#include <QFile>

#include <filesystem>
#include <functional>

namespace {
const QString allWorks = "sale,code,ini 0";
constexpr int patience = 120; // seconds that one press after the other may take to fail
constexpr int longestFreeze = 20'000;

/// One terminal that works before, while and after its café is broken.
class Witness
{
public:
    Witness(Drill &drill, const QString &scene, const QString &cafe)
        : m_drill(drill)
        , m_scene(scene)
        , m_cafe(cafe)
        , m_program(drill.folder.filePath(scene + "-program"))
        , m_ledger(cafe)
        , m_terminal(cafe, m_program, drill.nextSerials())
    {
        if (!m_terminal.becomesReady())
            damage("the terminal does not start");
        workSoundly("before");
    }

    ~Witness()
    {
        if (!m_terminal.ends())
            damage("the terminal does not end");
        m_drill.notes.append(QString("%1: %2 changes of stock without their line, or lines without their change.")
                                 .arg(m_scene)
                                 .arg(m_ledger.oneOfTwo()));
        m_drill.damage += m_ledger.damage();
    }
    Q_DISABLE_COPY_MOVE(Witness)

    using Act = std::function<bool()>;

    void suffer(const Act &breakIt, const Act &mendIt)
    {
        if (!breakIt())
            damage("the café could not be broken");
        work(allWorks + " broken");
        TerminalProcess newcomer(m_cafe, m_program, m_drill.nextSerials());
        if (!newcomer.settles())
            damage("a start meanwhile hangs");
        newcomer.kill();
        if (!mendIt())
            damage("the café could not be mended");
        settle(m_scene, Ledger::Loss::IsCounted);
        workSoundly("after");
    }

    void meetAnother(int milliseconds)
    {
        m_terminal.order("held 0 broken");
        if (!m_terminal.asks())
            damage("the terminal does not ask whether to sell");
        {
            const FileHolder other(m_cafe + "/Morvelane.mdb", milliseconds);
            m_terminal.order("yes");
            if (!m_terminal.becomesIdle(patience))
                damage("the terminal hangs or has ended");
        }
        const QStringList journal = m_terminal.takeJournal();
        m_ledger.take(journal);
        tellFreezes(journal);
        settle(m_scene, Ledger::Loss::IsCounted);
        workSoundly("after");
    }

private:
    void tellFreezes(const QStringList &journal)
    {
        QStringList presses;
        int longest = 0;
        for (const QString &line : journal) {
            const QStringList words = line.split('\t');
            if (words.first() != "press")
                continue;
            presses += words[1] + ' ' + words[2] + " ms";
            longest = std::max(longest, words[2].toInt());
        }
        m_drill.notes.append(QString("%1: the longest freeze of one press was %2 ms (%3).")
                                 .arg(m_scene, QString::number(longest), presses.join(", ")));
        if (presses.isEmpty() || longest > longestFreeze)
            damage("a press freezes the terminal for too long");
    }

    void damage(const QString &what) { m_drill.damage.append(m_scene + ": " + what); }

    void work(const QString &order)
    {
        m_terminal.order(order);
        if (!m_terminal.becomesIdle(patience))
            damage("the terminal hangs or has ended");
        m_ledger.take(m_terminal.takeJournal());
    }

    void workSoundly(const QString &time)
    {
        work(allWorks);
        settle(m_scene + ", " + time, Ledger::Loss::IsDamage);
    }

    void settle(const QString &scene, Ledger::Loss loss)
    {
        m_drill.check(m_cafe, scene);
        m_drill.addRows(scene, m_ledger.compare(loss));
    }

    Drill &m_drill;
    QString m_scene;
    QString m_cafe;
    QString m_program;
    Ledger m_ledger;
    TerminalProcess m_terminal;
};

/// Takes the whole room of a disk but for so many bytes.
bool fill(const QString &filler, qint64 left)
{
    QFile file(filler);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const QByteArray block(4096, 'x');
    qint64 size = 0;
    while (file.write(block) == block.size())
        size += block.size();
    return file.resize(std::max<qint64>(size - left, 0));
}
} // namespace

void playUnreachable(Drill &drill)
{
    const QString cafe = layOutCafe(drill, "unreachable");
    const QString elsewhere = cafe + "-moved";
    Witness witness(drill, "unreachable", cafe);
    for (int time = 0; time < 3; ++time)
        witness.suffer([&] { return QDir().rename(cafe, elsewhere); }, [&] { return QDir().rename(elsewhere, cafe); });
}

void playHeld(Drill &drill)
{
    constexpr int minute = 60'000;
    const QString cafe = layOutCafe(drill, "held");
    Witness(drill, "file held", cafe).meetAnother(minute);
}

void playReadOnly(Drill &drill)
{
    const QString cafe = layOutCafe(drill, "read-only");
    Witness witness(drill, "read-only", cafe);
    for (int time = 0; time < 3; ++time)
        witness.suffer([&] { return mountReadOnly(cafe); }, [&] { return unmount(cafe); });
}

void playFullDisk(Drill &drill)
{
    constexpr qint64 diskSize = 8 << 20;
    const QString disk = drill.folder.filePath("disk");
    if (!QDir().mkpath(disk) || !mountSmallDisk(disk, diskSize)) {
        drill.notTried.append("the disk full: no small disk can be mounted");
        return;
    }
    const QString cafe = disk + "/cafe";
    std::filesystem::copy(layOutCafe(drill, "full").toStdString(), cafe.toStdString(),
                          std::filesystem::copy_options::recursive);
    {
        Witness witness(drill, "disk full", cafe);
        for (const qint64 kilobytes : {0, 4, 8, 16, 32, 64})
            witness.suffer([&] { return fill(disk + "/filler", kilobytes << 10); },
                           [&] { return QFile::remove(disk + "/filler"); });
    }
    unmount(disk);
}
