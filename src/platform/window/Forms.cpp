#include "platform/window/Forms.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace {

struct Collection
{
    std::vector<std::unique_ptr<Form>> loaded;
    std::vector<std::unique_ptr<Form>> unloaded;
    QPointer<Form> active;
    int pumps = 0;
};

Collection &collection()
{
    static Collection instance;
    return instance;
}

void freeUnloaded()
{
    // What the last pump keeps waiting, the end of that pump frees.
    if (collection().pumps == 0)
        collection().unloaded.clear();
}

/// An unloaded window is freed from the event loop only, when none of its own routines is on the stack any more.
void freeUnloadedSoon()
{
    if (collection().pumps == 0 && !collection().unloaded.empty() && QCoreApplication::instance())
        QTimer::singleShot(0, QCoreApplication::instance(), freeUnloaded);
}

/// Windows can't outlive the application object.
void freeAll()
{
    collection().unloaded.clear();
    collection().loaded.clear();
}

} // namespace

QList<Form *> Forms::loaded()
{
    QList<Form *> forms;
    for (const auto &form : collection().loaded)
        forms.append(form.get());
    return forms;
}

Form &Forms::adopt(std::unique_ptr<Form> form)
{
    static const bool registered = (qAddPostRoutine(freeAll), true);
    Q_UNUSED(registered)

    Form &window = *form;
    collection().loaded.push_back(std::move(form));
    try {
        window.Load();
    } catch (...) {
        window.m_loaded = false;
        retire(&window);
        throw;
    }
    return window;
}

void Forms::retire(Form *form)
{
    auto &[loaded, unloaded, active, pumps] = collection();
    const auto found =
        std::find_if(loaded.begin(), loaded.end(), [form](const auto &each) { return each.get() == form; });
    if (found == loaded.end())
        return;
    unloaded.push_back(std::move(*found));
    loaded.erase(found);
    if (active == form)
        active.clear();
    freeUnloadedSoon();
}

bool Forms::becomesActive(Form *form)
{
    const bool changed = collection().active != form;
    collection().active = form;
    return changed;
}

EventPump::EventPump()
{
    ++collection().pumps;
}

EventPump::~EventPump()
{
    --collection().pumps;
    freeUnloadedSoon();
}

void DoEvents(WaitingInput input)
{
    const EventPump pump;
    QCoreApplication::processEvents(input == WaitingInput::Runs ? QEventLoop::AllEvents
                                                                : QEventLoop::ExcludeUserInputEvents);
}
