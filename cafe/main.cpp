#include "cafe/Cafe.h"

#include "platform/base/Err.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <exception>

namespace {

enum ExitCode
{
    Ok = 0,
    Failed = 1,
    WrongUsage = 2
};

/// What the caller typed makes no sense; the text says what would.
struct UsageError
{
    QString text;
};

struct Command
{
    QString name;
    QString arguments;
    QString purpose;
    qsizetype argumentCount;
    QList<QCommandLineOption> options;
    int (*run)(const QCommandLineParser &parser, const QStringList &arguments);
};

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

/// What a file holds must not steer the window in which it is shown.
QString withoutControls(const QString &text)
{
    QString shown;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control)
            shown += QString("\\x%1").arg(character.unicode(), 2, 16, QChar('0'));
        else
            shown += character;
    }
    return shown;
}

void complain(const QString &text)
{
    QTextStream(stderr) << "morvelane-cafe: " << withoutControls(QString(text).replace('\n', ' ')) << '\n';
}

int countOf(const QCommandLineParser &parser, const QString &option, int fallback)
{
    if (!parser.isSet(option))
        return fallback;
    if (!parser.isSet("demo"))
        throw UsageError{"--" + option + " needs --demo"};
    bool isNumber = false;
    const int count = parser.value(option).toInt(&isNumber);
    if (!isNumber || count < 0)
        throw UsageError{"--" + option + ": \"" + parser.value(option) + "\" is no count"};
    return count;
}

int runCreate(const QCommandLineParser &parser, const QStringList &arguments)
{
    CafeOptions options;
    options.demo = parser.isSet("demo");
    options.oti = parser.isSet("oti");
    options.customers = countOf(parser, "customers", options.customers);
    options.products = countOf(parser, "products", options.products);
    options.sales = countOf(parser, "sales", options.sales);
    createCafe(arguments[0], options);
    out() << "The café is laid out in " << arguments[0] << ".\n";
    return Ok;
}

int runTill(const QCommandLineParser &, const QStringList &arguments)
{
    const QString &action = arguments[0];
    CashPeriod period;
    if (action == "open")
        period = openTill(arguments[1]);
    else if (action == "close")
        period = closeTill(arguments[1]);
    else if (action == "status")
        period = tillStatus(arguments[1]);
    else
        throw UsageError{"till: say open, close or status"};
    if (period.number == 0)
        out() << "There was no cash period yet.\n";
    else
        out() << "Cash period " << period.number << " is " << (period.open ? "open" : "closed") << ".\n";
    return Ok;
}

int runModule(const QCommandLineParser &, const QStringList &arguments)
{
    if (arguments[0] != "allow" && arguments[0] != "block")
        throw UsageError{"module: say allow or block"};
    const bool allowed = arguments[0] == "allow";
    allowModule(arguments[1], allowed);
    out() << (allowed ? "Terminals may run.\n" : "Terminals are blocked.\n");
    return Ok;
}

int runPoint(const QCommandLineParser &parser, const QStringList &arguments)
{
    const QString file = pointAt(arguments[0], parser.isSet("everyone") ? PointFor::Everyone : PointFor::User);
    out() << "The terminal works on " << arguments[0] << "; " << file << " says so.\n";
    return Ok;
}

QString escaped(QString text)
{
    return withoutControls(text.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r"));
}

int runQuery(const QCommandLineParser &, const QStringList &arguments)
{
    if (!arguments[1].trimmed().startsWith("select", Qt::CaseInsensitive))
        throw UsageError{"query: only statements that read, which begin with SELECT"};
    const DatabaseHandle db = openDataFile(arguments[0]);
    const RecordsetHandle rows = db->OpenRecordset(arguments[1]);
    const auto printLine = [&](auto &&cell) {
        for (int i = 0; i < rows->FieldCount(); ++i)
            out() << (i > 0 ? "\t" : "") << escaped(cell(i));
        out() << '\n';
    };
    printLine([&](int i) { return rows->FieldName(i); });
    for (; !rows->Eof(); rows->MoveNext())
        printLine([&](int i) { return rows->Fields(i).text(); });
    return Ok;
}

int runCheck(const QCommandLineParser &, const QStringList &arguments)
{
    const QStringList faults = checkCafe(arguments[0]);
    for (const QString &fault : faults)
        complain(fault);
    if (!faults.isEmpty())
        return Failed;
    out() << "No fault found.\n";
    return Ok;
}

int runUpgrade(const QCommandLineParser &, const QStringList &arguments)
{
    for (const QString &line : upgradeCafe(arguments[0]))
        out() << line << '\n';
    out() << "The data file is up to date.\n";
    return Ok;
}

int runBackup(const QCommandLineParser &, const QStringList &arguments)
{
    backupCafe(arguments[0], arguments[1]);
    out() << "The data file is copied to " << arguments[1] << ".\n";
    return Ok;
}

const QList<Command> &commands()
{
    static const QList<Command> all{
        {"create",
         "FOLDER",
         "Lays out a new café folder; a folder of that name must be absent or empty.",
         1,
         {{"demo", "Fill the café with customers, a catalogue, discount rules and an open cash period."},
          {"customers", "Customers of the demo café (300).", "N"},
          {"products", "Products and services of the demo café (150).", "N"},
          {"sales", "Lines that the demo café has sold before (0).", "N"},
          {"oti", "Add the table that only some data files hold, Venda_ProdutosOti."}},
         runCreate},
        {"till", "open|close|status FOLDER", "Opens, closes or shows the newest cash period.", 2, {}, runTill},
        {"module", "allow|block FOLDER", "Lets terminals run on this café, or blocks them.", 2, {}, runModule},
        {"point",
         "FOLDER",
         "Leads the terminal on this computer to the café.",
         1,
         {{"everyone", "For all users of the computer; its owner alone may do so."}},
         runPoint},
        {"query",
         "FOLDER \"SELECT ...\"",
         "Prints the answer as lines of tab-separated values under a line of headings; \\t, \\n, \\r and \\\\ stand "
         "for a tab, the two line ends and a backslash inside a value.",
         2,
         {},
         runQuery},
        {"check",
         "FOLDER",
         "Looks for faults in the data file, the configuration and the language files.",
         1,
         {},
         runCheck},
        {"upgrade",
         "FOLDER",
         "Brings the data file of an earlier version up to date; its numbers are read by this computer's regional "
         "settings.",
         1,
         {},
         runUpgrade},
        {"backup",
         "FOLDER FILE",
         "Copies the data file, encrypted as it is, while terminals may be at work.",
         2,
         {},
         runBackup},
    };
    return all;
}

QString usageOf(const Command &command)
{
    return "morvelane-cafe " + command.name + ' ' + command.arguments + (command.options.isEmpty() ? "" : " [options]");
}

QString overview()
{
    QString text = "morvelane-cafe makes and keeps the folder that the terminals of a café share.\n\nUsage:\n";
    for (const Command &command : commands())
        text += "  " + usageOf(command) + '\n';
    return text + "  morvelane-cafe COMMAND --help\n\n"
                  "Exit codes: 0 done, 1 failed or faults found, 2 wrong usage.\n";
}

int run(const Command &command, const QStringList &typed)
{
    QCommandLineParser parser;
    const QCommandLineOption help({"h", "help"}, "Show this help.");
    parser.addOption(help);
    parser.addOptions(command.options);
    parser.setApplicationDescription(command.purpose);
    const bool understood = parser.parse(typed);
    if (understood && parser.isSet(help)) {
        // The parser knows nothing of commands: its first line is replaced.
        out() << "Usage: " << usageOf(command) << parser.helpText().section('\n', 1).prepend('\n');
        return Ok;
    }
    if (!understood)
        throw UsageError{command.name + ": " + parser.errorText()};
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != command.argumentCount)
        throw UsageError{"usage: " + usageOf(command)};
    return command.run(parser, arguments);
}

int runCommandLine(const QStringList &typed)
{
    if (typed.size() < 2) {
        QTextStream(stderr) << overview();
        return WrongUsage;
    }
    if (typed[1] == "--help" || typed[1] == "-h") {
        out() << overview();
        return Ok;
    }
    const auto &all = commands();
    const auto command = std::find_if(all.begin(), all.end(), [&](const Command &c) { return c.name == typed[1]; });
    if (command == all.end())
        throw UsageError{'"' + typed[1] + "\" is no command; see morvelane-cafe --help"};
    QStringList rest = typed;
    rest.removeAt(1);
    return run(*command, rest);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("morvelane-cafe");
    try {
        return runCommandLine(QCoreApplication::arguments());
    } catch (const UsageError &error) {
        complain(error.text);
        return WrongUsage;
    } catch (const RunTimeError &error) {
        complain(error.Description());
    } catch (const std::exception &error) {
        complain(QString::fromLocal8Bit(error.what()));
    }
    return Failed;
}
