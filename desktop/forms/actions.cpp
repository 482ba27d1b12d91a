#include "desktop/forms/actions.h"

#include "controls/user.h"
#include "desktop/text.h"

#include <QApplication>
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
    catch (...)
    {
        m_onFailure(CurrentError());
    }
    return false;
}

void ShowReason(const std::string& reason)
{
    if (QWidget* focus = QApplication::focusWidget())
        QToolTip::showText(focus->mapToGlobal(QPoint(0, focus->height())), ToQString(reason),
                           focus);
}

} // namespace Tamrivo
