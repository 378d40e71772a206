#include "platform/print/PrintQueue.h"

#include "platform/base/LongWork.h"
#include "platform/print/CupsLibrary.h"
#include "platform/print/PrinterError.h"
#include "platform/print/RecordedPage.h"

#include <QDeadlineTimer>

#include <span>

namespace {
/// The library itself waits a second for each answer before it asks how to go on.
constexpr double stepSeconds = 0.1;
constexpr int mostSteps = 20;
constexpr int connectMilliseconds = 3000;
/// So long it isn't asked again: what prints often asks more than once.
constexpr int silenceMilliseconds = 1000;

const CupsLibrary &cups()
{
    return CupsLibrary::current();
}

struct Freed
{
    void operator()(http_t *connection) const { cups().httpClose(connection); }
    void operator()(cups_dinfo_t *information) const { cups().cupsFreeDestInfo(information); }
};

/// The print system, and all queues that it has; none where the computer has no print system. The system's library by
/// itself waits for ever for a server that hangs.
class PrintServer
{
public:
    PrintServer()
    {
        if (!cups().isThere())
            return;
        if (!silence.hasExpired())
            giveUp();
        // The library would ask for a password on a terminal, where nobody looks.
        cups().cupsSetPasswordCB2([](auto...) -> const char * { return nullptr; }, nullptr);
        const QDeadlineTimer limit(connectMilliseconds);
        m_http.reset(cups().httpConnect2(cups().cupsServer(), cups().ippPort(), nullptr, AF_UNSPEC,
                                         cups().cupsEncryption(), 1, connectMilliseconds, nullptr));
        if (!m_http && limit.hasExpired())
            giveUp();
        if (!m_http)
            return;
        cups().httpSetTimeout(m_http.get(), stepSeconds, waitOn, this);
        // All of them, even for who wants one: for one that isn't there the library asks elsewhere, without a limit.
        m_queues.count = cups().cupsGetDests2(connection(), &m_queues.first);
        requireAnswers();
    }
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;

    http_t *connection() const { return m_http.get(); }
    std::span<cups_dest_t> queues() const { return {m_queues.first, static_cast<size_t>(m_queues.count)}; }
    /// What was asked since is void when the system didn't answer.
    void requireAnswers() const
    {
        if (m_steps >= mostSteps)
            giveUp();
    }

private:
    [[noreturn]] static void giveUp()
    {
        silence.setRemainingTime(silenceMilliseconds);
        raisePrinterError("no answer");
    }

    static int waitOn(http_t *, void *server)
    {
        LongWork::goOn(LongWork::Life::Waits);
        return ++static_cast<PrintServer *>(server)->m_steps < mostSteps ? 1 : 0;
    }

    struct List
    {
        List() = default;
        ~List()
        {
            if (first)
                cups().cupsFreeDests(count, first);
        }
        Q_DISABLE_COPY_MOVE(List)

        cups_dest_t *first = nullptr;
        int count = 0;
    };

    inline static QDeadlineTimer silence;
    std::unique_ptr<http_t, Freed> m_http;
    List m_queues;
    int m_steps = 0;
};

QString nameOf(const cups_dest_t &queue)
{
    return QString::fromUtf8(queue.name) + (queue.instance ? '/' + QString::fromUtf8(queue.instance) : QString());
}

// The print system counts in hundredths of a millimetre.
constexpr double hundredthsPerTwip = 2540.0 / twipsPerInch;

int hundredthsOf(double twips)
{
    return qRound(twips * hundredthsPerTwip);
}

double twipsOf(int hundredths)
{
    return hundredths / hundredthsPerTwip;
}
} // namespace

QStringList printQueueNames()
{
    QStringList names;
    const PrintServer server;
    for (const cups_dest_t &queue : server.queues())
        names += nameOf(queue);
    return names;
}

QString defaultPrintQueue()
{
    const PrintServer server;
    for (const cups_dest_t &queue : server.queues()) {
        if (queue.is_default)
            return nameOf(queue);
    }
    return {};
}

struct PrintQueue::Parts
{
    PrintServer server;
    cups_dest_t *queue = nullptr;
    std::unique_ptr<cups_dinfo_t, Freed> information;
    cups_size_t sheet{};

    http_t *connection() const { return server.connection(); }
};

PrintQueue::PrintQueue(const QString &name) : m_parts(std::make_unique<Parts>())
{
    for (cups_dest_t &queue : m_parts->server.queues()) {
        if (nameOf(queue) == name)
            m_parts->queue = &queue;
    }
    http_t *connection = m_parts->connection();
    if (m_parts->queue)
        m_parts->information.reset(cups().cupsCopyDestInfo(connection, m_parts->queue));
    m_parts->server.requireAnswers();
    if (!m_parts->information)
        raisePrinterError(name);
}

PrintQueue::~PrintQueue() = default;

PrinterSheet PrintQueue::takeSheet(const QSizeF &twips)
{
    http_t *connection = m_parts->connection();
    cups_size_t &sheet = m_parts->sheet;
    if (!cups().cupsGetDestMediaBySize(connection, m_parts->queue, m_parts->information.get(),
                                       hundredthsOf(twips.width()), hundredthsOf(twips.height()),
                                       CUPS_MEDIA_FLAGS_DEFAULT, &sheet) &&
        !cups().cupsGetDestMediaDefault(connection, m_parts->queue, m_parts->information.get(),
                                        CUPS_MEDIA_FLAGS_DEFAULT, &sheet))
        return {twips, {}};
    return {{twipsOf(sheet.width), twipsOf(sheet.length)},
            {twipsOf(sheet.left), twipsOf(sheet.top), twipsOf(sheet.right), twipsOf(sheet.bottom)}};
}

int PrintQueue::dotsPerInch() const
{
    ipp_attribute_t *resolution = cups().cupsFindDestDefault(m_parts->connection(), m_parts->queue,
                                                             m_parts->information.get(), "printer-resolution");
    int down = 0;
    ipp_res_t units = IPP_RES_PER_INCH;
    const int across = resolution ? cups().ippGetResolution(resolution, 0, &down, &units) : 0;
    return units == IPP_RES_PER_INCH ? across : qRound(across * 2.54);
}

void PrintQueue::print(const QByteArray &pdf, const QString &title)
{
    http_t *connection = m_parts->connection();
    cups_dest_t *queue = m_parts->queue;
    cups_dinfo_t *information = m_parts->information.get();
    // What the user has set for this queue, but with a sheet of the document's size. Of its two names the system
    // prefers the driver's own.
    cups_option_t *options = nullptr;
    int count = 0;
    const bool hasSheet = m_parts->sheet.media[0] != '\0';
    for (const cups_option_t &each : std::span(queue->options, static_cast<size_t>(queue->num_options)))
        if (!hasSheet || qstricmp(each.name, "PageSize") != 0)
            count = cups().cupsAddOption(each.name, each.value, count, &options);
    if (hasSheet)
        count = cups().cupsAddOption(CUPS_MEDIA, m_parts->sheet.media, count, &options);

    int job = 0;
    const QByteArray name = title.toUtf8();
    const bool taken = cups().cupsCreateDestJob(connection, queue, information, &job, name.constData(), count,
                                                options) == IPP_STATUS_OK &&
                       cups().cupsStartDestDocument(connection, queue, information, job, name.constData(),
                                                    CUPS_FORMAT_PDF, 0, nullptr, 1) == HTTP_STATUS_CONTINUE &&
                       cups().cupsWriteRequestData(connection, pdf.constData(), static_cast<size_t>(pdf.size())) ==
                           HTTP_STATUS_CONTINUE &&
                       cups().cupsFinishDestDocument(connection, queue, information) == IPP_STATUS_OK;
    cups().cupsFreeOptions(count, options);
    m_parts->server.requireAnswers();
    if (!taken)
        raisePrinterError(QString::fromUtf8(cups().cupsLastErrorString()));
}
