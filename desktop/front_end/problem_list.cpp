#include "desktop/front_end/problem_list.h"

#include <QEvent>
#include <QStyle>

namespace Tamrivo
{

ProblemList::ProblemList(QWidget* parent) : QListWidget(parent)
{
    setObjectName("problems");
    setAccessibleName("Why the page can't be finished");
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const auto pick = [this](QListWidgetItem* item) {
        emit Picked(PageProblem(m_problems[static_cast<std::size_t>(row(item))]));
    };
    connect(this, &QListWidget::itemClicked, this, pick);
    connect(this, &QListWidget::itemActivated, this, pick);
    Show({});
    Fit();
}

void ProblemList::Show(std::vector<PageProblem> problems)
{
    setFrameShape(problems.empty() ? QFrame::NoFrame : QFrame::StyledPanel);
    viewport()->setAutoFillBackground(!problems.empty());
    setFocusPolicy(problems.empty() ? Qt::NoFocus : Qt::StrongFocus);
    if (problems == m_problems)
        return;
    m_problems = std::move(problems);
    clear();
    const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    for (const PageProblem& problem : m_problems)
    {
        auto* item = new QListWidgetItem(icon, problem.Text, this);
        item->setToolTip(problem.Text);
    }
}

void ProblemList::Fit()
{
    const int line = fontMetrics().lineSpacing();
    setIconSize({line, line});
}

QSize ProblemList::sizeHint() const
{
    constexpr int lines = 3;
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    return {40 * fontMetrics().averageCharWidth(),
            lines * (fontMetrics().lineSpacing() + 2) + 2 * frame + 2};
}

QSize ProblemList::minimumSizeHint() const
{
    return {20 * fontMetrics().averageCharWidth(), sizeHint().height()};
}

void ProblemList::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
    {
        Fit();
        updateGeometry();
    }
}

} // namespace Tamrivo
