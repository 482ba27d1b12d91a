#include "desktop/help/first_use_tip.h"

#include "desktop/common/settings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace Tamrivo
{

FirstUseTip::FirstUseTip(const QString& name, const QString& text, QWidget* parent) : QFrame(parent)
{
    setObjectName("tip");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto* words = new QLabel(text, this);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setForegroundRole(QPalette::ToolTipText);
    auto* done = new QToolButton(this);
    done->setObjectName("tipRead");
    done->setText("Got It");
    done->setToolTip("Don't show this tip again");
    done->setAccessibleDescription(text);
    done->setFocusPolicy(Qt::TabFocus);
    auto* layout = new QHBoxLayout(this);
    const int margin = fontMetrics().averageCharWidth() / 2;
    layout->setContentsMargins(2 * margin, margin, margin, margin);
    layout->addWidget(words, 1);
    layout->addWidget(done);
    connect(done, &QToolButton::clicked, this, [this, name] {
        RememberTip(name);
        hide();
    });
    setVisible(!IsTipRead(name));
}

} // namespace Tamrivo
