#include "desktop/forms/spin_view.h"

#include "controls/text_field.h"
#include "controls/user.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QStylePainter>
#include <QWheelEvent>

#include <cstdlib>

namespace Tamrivo
{

SpinView::SpinView(SpinButton& spin, QWidget& parent, const Actions& actions)
    : QAbstractSpinBox(&parent), m_spin(spin), m_actions(actions)
{
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
    // A click on an arrow leaves the field that had the focus, whose repair may be due. The wheel
    // takes no focus.
    setFocusPolicy(spin.IsTabStop() ? Qt::StrongFocus : Qt::ClickFocus);
}

void SpinView::Refresh()
{
    ApplyReach(*this, m_spin);
}

void SpinView::stepBy(int steps)
{
    m_actions.Run([&] {
        for (int i = 0; i < std::abs(steps); ++i)
            steps > 0 ? User::Up(m_spin) : User::Down(m_spin);
    });
    if (m_spin.Linked() != nullptr)
        lineEdit()->setText(ToQString(m_spin.Linked()->Text()));
}

void SpinView::wheelEvent(QWheelEvent* event)
{
    // Scrolling the page must not step what the pointer happens to pass.
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void SpinView::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
}

} // namespace Tamrivo
