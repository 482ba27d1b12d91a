#include "desktop/forms/spin_view.h"

#include "controls/text_field.h"
#include "controls/user.h"
#include "desktop/forms/actions.h"
#include "desktop/forms/appearance.h"
#include "desktop/text.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

#include <cstdlib>

namespace Tamrivo
{

SpinView::SpinView(SpinButton& spin, QWidget& parent, const Actions& actions)
    : QAbstractSpinBox(&parent), m_spin(spin), m_actions(actions)
{
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
    setFocusPolicy(spin.IsTabStop() ? Qt::StrongFocus : Qt::NoFocus);
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

void SpinView::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
}

} // namespace Tamrivo
