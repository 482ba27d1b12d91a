#include "desktop/forms/container_views.h"

#include "controls/user.h"
#include "desktop/common/actions.h"
#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <QTabBar>

namespace Tamrivo
{

FrameView::FrameView(Frame& frame, QWidget& parent, const Actions& /*actions*/)
    : QGroupBox(ToQString(frame.Caption()), &parent), m_frame(frame)
{}

void FrameView::Refresh()
{
    ApplyReach(*this, m_frame);
}

QFont FrameView::CaptionFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QSize FrameView::LeastSize() const
{
    const int margin = 2 * fontMetrics().averageCharWidth();
    return QFontMetrics(CaptionFont()).size(Qt::TextShowMnemonic, title()) + QSize(margin, 0);
}

int FrameView::HeaderHeight() const
{
    return QFontMetrics(CaptionFont()).height();
}

void FrameView::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    painter.setFont(CaptionFont());
    option.fontMetrics = QFontMetrics(CaptionFont());
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

TabStripView::TabStripView(TabStrip& strip, QWidget& parent, const Actions& actions)
    : QTabWidget(&parent), m_strip(strip)
{
    for (const std::string& caption : strip.Captions())
        addTab(new QWidget(this), ToQString(caption));
    connect(this, &QTabWidget::currentChanged, this, [this, &actions](int tab) {
        if (tab != m_strip.Tab())
            actions.Run([&] { User::Turn(m_strip, tab); });
        Refresh();
    });
}

void TabStripView::Refresh()
{
    ApplyReach(*this, m_strip);
    setCurrentIndex(m_strip.Tab());
}

QSize TabStripView::LeastSize() const
{
    return tabBar()->sizeHint();
}

QWidget& TabStripView::PlaceFor(const Control& control)
{
    const auto* frame = dynamic_cast<const Frame*>(&control);
    return *widget(frame != nullptr ? frame->Tab() : 0);
}

QWidget& TabStripView::FocusWidget()
{
    return *tabBar();
}

} // namespace Tamrivo
