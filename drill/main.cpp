#include "drill/Mounts.h"
#include "drill/Scenes.h"
#include "drill/ShareScenes.h"
#include "drill/Terminal.h"
#include "drill/WebcamScene.h"
#include "platform/base/Err.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Application.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

namespace {
void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

void printTable(const Drill &drill)
{
    std::printf("\n%-22s%-10s%8s%8s%8s%8s%8s\n", "scene", "work", "tried", "told", "stored", "half", "lost");
    for (const Drill::Row &row : drill.rows)
        std::printf("%-22s%-10s%8d%8d%8d%8d%8d\n", qPrintable(row.scene), qPrintable(row.work), row.figures.tried,
                    row.figures.told, row.figures.stored, row.figures.half, row.figures.lost);
    print("");
    for (const QString &note : drill.notes)
        print(note);
    for (const QString &scene : drill.notTried)
        print("Not tried: " + scene);
    for (const QString &what : drill.damage)
        print("DAMAGE " + what);
    print(drill.damage.isEmpty() ? QString("No damage.") : QString("%1 damages.").arg(drill.damage.size()));
}

int play(Drill &drill, bool ownMounts)
{
    QElapsedTimer clock;
    clock.start();
    QTemporaryDir folder;
    drill.folder.setPath(folder.path());
    drill.chance.seed(drill.seed);
    print(QString("Seed %1").arg(drill.seed));
    const auto scene = [&](const char *title, void (*act)(Drill &)) {
        if (!QString(title).contains(drill.only))
            return;
        print(QString("%1 s: %2").arg(clock.elapsed() / 1000).arg(title));
        act(drill);
    };
    scene("kills", playKills);
    scene("four terminals", playCrowd);
    scene("the webcam beside sales", playWebcam);
    scene("the folder goes away", playUnreachable);
    scene("another program holds the file", playHeld);
    if (ownMounts) {
        scene("the folder becomes read-only", playReadOnly);
        scene("the disk is full", playFullDisk);
    } else {
        drill.notTried.append("the folder read-only, the disk full: this system grants no mounts");
    }
    drill.notes.append(QString("The drill took %1 s.").arg(clock.elapsed() / 1000));
    printTable(drill);
    folder.setAutoRemove(drill.damage.isEmpty());
    if (!drill.damage.isEmpty())
        print("The cafés were kept in " + folder.path());
    return drill.damage.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
} // namespace

int main(int argc, char **argv)
{
    const bool isTerminal = argc > 1 && qstrcmp(argv[1], "terminal") == 0;
    const bool ownMounts = !isTerminal && enterPrivateMounts();
    const Application application(argc, argv);
    const QStringList arguments = Application::arguments();
    if (isTerminal)
        return runTerminal(arguments.value(2), arguments.value(3).toInt());

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Kills terminals, takes their café away and fills its disk, and tells what was lost.");
    parser.addHelpOption();
    parser.addOptions(
        {{"short", "A quick drill: 12 kills, 10 seconds of four terminals, 20 openings of the webcam window."},
         {"kills", "How many terminals are killed (200).", "count"},
         {"seconds", "How long four terminals work (120).", "count"},
         {"webcams", "How often the webcam window opens and closes (200).", "count"},
         {"only", "Plays the scenes alone whose title, as the drill prints it, holds this.", "words"},
         {"seed", "Plays the same moments again.", "number"},
         {"engine", "Every second of the four terminals takes its libsqlcipher.so.0 from there.", "folder"}});
    parser.process(application);
    Drill drill;
    const auto number = [&](const char *option, int otherwise) {
        return parser.isSet(option) ? parser.value(option).toInt() : otherwise;
    };
    drill.kills = number("kills", parser.isSet("short") ? 12 : 200);
    drill.seconds = number("seconds", parser.isSet("short") ? 10 : 120);
    drill.webcams = number("webcams", parser.isSet("short") ? 20 : 200);
    drill.only = parser.value("only");
    drill.seed = static_cast<unsigned>(number("seed", static_cast<int>(std::random_device()() % 1'000'000)));
    if (parser.isSet("engine"))
        drill.otherEngine = QDir(parser.value("engine")).canonicalPath();
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    try {
        return play(drill, ownMounts);
    } catch (const RunTimeError &error) {
        print("The drill could not be played: " + error.Description());
        return 2;
    }
}
