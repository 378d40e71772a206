#include "customers/CustomerSearch.h"

#include "customers/CustomerColumns.h"
#include "platform/base/Err.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Forms.h"
#include "platform/window/Pictures.h"

#include <QAbstractButton>

namespace {
constexpr QSize pictureSize(20, 20);
}

bool selectCustomer(FlexGrid &list, const QString &term, int row, int column, const std::function<void()> &picked)
{
    const int found = list.findPrefix(term, row, {CustomerColumn::Name, CustomerColumn::Nick});
    if (found == 0)
        return false;
    DoEvents();
    // The list may have changed while the events ran.
    OnErrorResumeNext<ErrorNumber::SubscriptOutOfRange>([&] { list.goToRow(found, column); });
    DoEvents();
    picked();
    return true;
}

NextMatchButton::NextMatchButton(QAbstractButton &button) : m_button(button)
{
    m_button.setIconSize(pictureSize);
    setGoesOn(false);
}

void NextMatchButton::setGoesOn(bool goesOn)
{
    if (goesOn == m_goesOn && !m_button.icon().isNull())
        return;
    m_goesOn = goesOn;
    m_button.setIcon(bundledPicture(goesOn ? "imgnova_procura" : "imgprocura", pictureSize));
}
