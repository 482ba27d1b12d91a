#include "desktop/forms/label_view.h"

#include "desktop/common/text.h"
#include "desktop/forms/appearance.h"

namespace Tamrivo
{

LabelView::LabelView(Label& label, QWidget& parent, const Actions& /*actions*/)
    : QLabel(&parent), m_label(label), m_declaredCaption(ToQString(label.Caption()))
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ApplyFont(*this, label.Font());
}

void LabelView::Refresh()
{
    ApplyReach(*this, m_label);
    ShowCaption();
}

void LabelView::ShowCaption()
{
    const QString caption = ToQString(m_label.Caption());
    const QString shown = fontMetrics().elidedText(caption, Qt::ElideRight, width());
    setText(shown);
    setToolTip(shown == caption ? QString() : caption);
    setAccessibleName(caption);
}

void LabelView::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    ShowCaption();
}

QSize LabelView::LeastSize() const
{
    return fontMetrics().size(Qt::TextSingleLine, m_declaredCaption);
}

} // namespace Tamrivo
