#include "desktop/common/actions.h"

#include "controls/user.h"
#include "desktop/common/text.h"

#include <QApplication>
#include <QTimer>
#include <QToolTip>
#include <QWidget>

namespace Tamrivo
{

bool Actions::Run(const std::function<void()>& action) const
{
    try
    {
        action();
        return true;
    }
    catch (const User::Refusal& refusal)
    {
        ShowReason(refusal.what());
    }
    catch (const Cancelled&)
    {
        return false;
    }
    catch (...)
    {
        m_onFailure(CurrentError());
    }
    return false;
}

void ShowReason(const std::string& reason)
{
    // Once the focus has settled: a change of focus would take the tip away.
    QTimer::singleShot(0, qApp, [text = ToQString(reason)] {
        if (QWidget* focus = QApplication::focusWidget())
            QToolTip::showText(focus->mapToGlobal(focus->rect().bottomLeft()), text, focus);
    });
}

} // namespace Tamrivo
