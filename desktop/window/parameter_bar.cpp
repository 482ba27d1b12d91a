#include "desktop/window/parameter_bar.h"

#include "desktop/help/first_use_tip.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Tamrivo
{

ParameterBar::ParameterBar(const QList<QAction*>& commands, QWidget* parent)
    : QWidget(parent), m_name(new QLabel(this)), m_hint(new QLabel(this))
{
    setObjectName("parameterBar");
    m_name->setTextFormat(Qt::PlainText);
    m_name->setObjectName("parameterName");
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    // A narrow window cuts the hint, not the buttons.
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout;
    row->addWidget(m_name);
    row->addWidget(m_hint, 1);
    for (QAction* command : commands)
    {
        auto* button = new QToolButton(this);
        button->setObjectName(command->objectName());
        button->setDefaultAction(command);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(new FirstUseTip(
        "parameter",
        "Ticks select loci, and Save stores the selection. Select Loci has both lists side by "
        "side.",
        this));
}

void ParameterBar::Show(const QString& parameter, bool isChanged, bool isReadOnly)
{
    m_name->setText(parameter + (isChanged ? "*" : ""));
    m_hint->setText(isReadOnly  ? "The store is read only: the selection can't be saved."
                    : isChanged ? "The selection has changes that are not saved."
                                : "A tick before a locus selects it.");
}

} // namespace Tamrivo
