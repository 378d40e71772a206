#include "fuzz/Target.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <random>

#include <fcntl.h>
#include <unistd.h>

// Runs a target over its seeds and over mutations of them that are the same in every run.
//   <target> FOLDER [MUTATIONS]   a folder of seeds
//   <target> FILE                 one input, such as a finding

namespace {
constexpr const char *findingFile = "finding";
constexpr char keptMessage[] = "The input was kept as \"finding\".\n";
/// Longer inputs cost time and find no more.
constexpr qsizetype longest = 2048;

/// Never freed: what sanitizers find at the exit is found when all else is gone.
QByteArray &current = *new QByteArray;

/// Keeps the input that broke the target. Memory, locks and streams may be broken too, so only the system is asked.
void keepFinding(int)
{
    const int file = ::open(findingFile, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const auto size = static_cast<std::size_t>(current.size());
    const bool kept = file >= 0 && ::write(file, current.constData(), size) == static_cast<ssize_t>(size);
    ::_exit(kept && ::write(STDERR_FILENO, keptMessage, sizeof keptMessage - 1) > 0 ? EXIT_FAILURE : 2);
}

void run(const QByteArray &input)
{
    current = input;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Cannot read %s", qPrintable(path));
    return file.readAll();
}

class Mutator
{
public:
    explicit Mutator(const QList<QByteArray> &seeds) : m_seeds(seeds) {}

    /// A seed after one to eight changes.
    QByteArray next()
    {
        constexpr qsizetype mostChanges = 8;
        QByteArray input = any();
        for (qsizetype changes = below(mostChanges) + 1; changes > 0; --changes)
            change(input);
        return input.left(longest);
    }

private:
    qsizetype below(qsizetype limit)
    {
        // The standard's distributions differ from library to library; the generator does not.
        return static_cast<qsizetype>(m_chance() % static_cast<std::uint64_t>(limit));
    }
    const QByteArray &any() { return m_seeds[below(m_seeds.size())]; }
    QByteArray pieceOf(const QByteArray &whole)
    {
        constexpr qsizetype longestPiece = 24;
        return whole.mid(below(whole.size() + 1), below(longestPiece) + 1);
    }

    void change(QByteArray &input)
    {
        const qsizetype place = below(input.size() + 1);
        switch (below(6)) {
        case 0:
            input.insert(place, static_cast<char>(below(256)));
            break;
        case 1:
            input.remove(place, pieceOf(input).size());
            break;
        case 2:
            input.insert(place, pieceOf(input));
            break;
        case 3:
            input.insert(place, pieceOf(any()));
            break;
        case 4:
            input.replace(place, 1, QByteArray(1, static_cast<char>(below(256))));
            break;
        default:
            input = input.left(place) + any().mid(place);
        }
    }

    const QList<QByteArray> &m_seeds;
    std::mt19937_64 m_chance{1};
};
} // namespace

int main(int argc, char **argv)
{
    // Sanitizers are told by the test to abort, too.
    std::signal(SIGABRT, keepFinding);
    const QString path = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (!QFileInfo(path).isDir()) {
        run(readFile(path));
        return EXIT_SUCCESS;
    }
    QList<QByteArray> seeds;
    const QDir folder(path);
    for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
        seeds.append(readFile(folder.filePath(name)));
    if (seeds.isEmpty())
        qFatal("There is no seed in %s", qPrintable(path));
    for (const QByteArray &seed : seeds)
        run(seed);
    Mutator mutator(seeds);
    const int mutations = argc > 2 ? std::atoi(argv[2]) : 0;
    for (int i = 0; i < mutations; ++i)
        run(mutator.next());
    std::printf("%d seeds and %d mutations hold.\n", static_cast<int>(seeds.size()), mutations);
    return EXIT_SUCCESS;
}
