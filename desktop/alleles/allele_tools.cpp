#include "desktop/alleles/allele_tools.h"

#include "desktop/common/text.h"
#include "host/alleles/allele_pane.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace Tamrivo
{

namespace
{

QString StateText(const AllelePane& pane)
{
    const auto& reasons = pane.IsValid() ? pane.Warnings() : pane.Problems();
    if (reasons.empty())
        return QString(pane.Rows().size() == 1 ? "%1 allele" : "%1 alleles")
            .arg(pane.Rows().size());
    QString text = QString("Row %1: %2").arg(reasons[0].Row).arg(ToQString(reasons[0].Reason));
    if (reasons.size() > 1)
        text += QString(" (and %1 more)").arg(reasons.size() - 1);
    return text;
}

} // namespace

AlleleTools::AlleleTools(QWidget* parent)
    : QWidget(parent), m_layout(new QHBoxLayout(this)), m_state(new QLabel(this))
{
    m_state->setObjectName("alleleState");
    m_state->setTextFormat(Qt::PlainText);
    m_state->setAccessibleName("State of the allele list");
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    m_layout->addSpacing(fontMetrics().averageCharWidth());
    m_layout->addWidget(m_state, 1);
}

void AlleleTools::Add(QAction& action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(&action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(action.text());
    connect(&action, &QAction::visibleChanged, button,
            [button, &action] { button->setVisible(action.isVisible()); });
    m_layout->insertWidget(static_cast<int>(m_buttons.size()), button);
    m_buttons.push_back(button);
}

void AlleleTools::ShowState(const AllelePane& pane)
{
    m_state->setText(StateText(pane));
}

std::vector<QWidget*> AlleleTools::Answering() const
{
    std::vector<QWidget*> answering;
    for (QToolButton* button : m_buttons)
    {
        if (button->isEnabled())
            answering.push_back(button);
    }
    return answering;
}

} // namespace Tamrivo
