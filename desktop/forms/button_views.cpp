#include "desktop/forms/button_views.h"

#include "controls/user.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

#include <QKeyEvent>
#include <QStyle>

#include <algorithm>
#include <vector>

namespace Tamrivo
{

CheckBoxView::CheckBoxView(CheckBox& box, QWidget& parent, const Actions& actions)
    : QCheckBox(ToQString(box.Caption()), &parent), m_box(box), m_actions(actions)
{}

void CheckBoxView::Refresh()
{
    ApplyReach(*this, m_box);
    setChecked(m_box.Value() != 0);
}

void CheckBoxView::nextCheckState()
{
    m_actions.Run([this] { User::Click(m_box); });
    Refresh();
}

OptionView::OptionView(OptionButton& option, QWidget& parent, const Actions& actions)
    : QRadioButton(ToQString(option.Caption()), &parent), m_option(option), m_actions(actions)
{
    // An exclusive group would make one stop of all its members.
    setAutoExclusive(false);
}

void OptionView::Refresh()
{
    ApplyReach(*this, m_option);
    setChecked(m_option.Value());
}

void OptionView::nextCheckState()
{
    m_actions.Run([this] { User::Click(m_option); });
    Refresh();
}

OptionView* OptionView::Neighbour(int step) const
{
    std::vector<OptionView*> options;
    for (QObject* child : parentWidget()->children())
    {
        if (auto* option = dynamic_cast<OptionView*>(child))
            options.push_back(option);
    }
    const auto place = std::ranges::find(options, this) - options.begin() + step;
    return place >= 0 && place < std::ssize(options) ? options[static_cast<std::size_t>(place)]
                                                     : nullptr;
}

void OptionView::keyPressEvent(QKeyEvent* event)
{
    const bool forward = event->key() == Qt::Key_Down || event->key() == Qt::Key_Right;
    const bool back = event->key() == Qt::Key_Up || event->key() == Qt::Key_Left;
    if (!forward && !back)
        return QRadioButton::keyPressEvent(event);
    if (OptionView* neighbour = Neighbour(forward ? 1 : -1))
    {
        neighbour->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        neighbour->click();
    }
}

ButtonView::ButtonView(CommandButton& button, QWidget& parent, const Actions& actions)
    : QPushButton(ToQString(button.Caption()), &parent), m_button(button)
{
    // Else the first button of a form would be what Return presses in its fields.
    setAutoDefault(false);
    ApplyFont(*this, button.Font());
    setToolTip(ToQString(button.ToolTipText()));
    // A caption of signs alone tells nothing when read aloud.
    setAccessibleName(button.ToolTipText().empty() ? ToQString(button.Caption()).remove('&')
                                                   : toolTip());
    connect(this, &QPushButton::clicked, this, [this, &actions] {
        if (!m_question || m_question())
            actions.Run([this] { User::Click(m_button); });
    });
}

void ButtonView::Refresh()
{
    ApplyReach(*this, m_button);
}

void ButtonView::keyPressEvent(QKeyEvent* event)
{
    // Without this the window would take it for the press of its own default button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

QSize ButtonView::LeastSize() const
{
    const int margin = style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, this) +
                       2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const QSize caption = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {caption.width() + margin, caption.height() + margin};
}

} // namespace Tamrivo
