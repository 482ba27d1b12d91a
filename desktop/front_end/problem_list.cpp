#include "desktop/front_end/problem_list.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// How a kind of problem is told apart.
struct ProblemLook
{
    PageProblemKind Kind;
    QStyle::StandardPixmap Icon;
    const char* Name; ///< Before the text, for screen readers.
    const char* Tip;
};

constexpr ProblemLook problemLooks[] = {
    {PageProblemKind::Obstacle, QStyle::SP_MessageBoxCritical, "Not valid",
     "It keeps the page from being finished."},
    {PageProblemKind::Error, QStyle::SP_MessageBoxWarning, "Error",
     "The check calls it an error; the page can be finished all the same."},
    {PageProblemKind::Warning, QStyle::SP_MessageBoxInformation, "Warning",
     "The check calls it worth a look."},
};

} // namespace

ProblemList::ProblemList(QWidget* parent) : QListWidget(parent)
{
    setObjectName("problems");
    setAccessibleName("Problems of the page");
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
    for (const PageProblem& problem : m_problems)
    {
        const ProblemLook& look =
            *std::ranges::find(problemLooks, problem.Kind, &ProblemLook::Kind);
        auto* item = new QListWidgetItem(style()->standardIcon(look.Icon, nullptr, this),
                                         problem.Text, this);
        item->setToolTip(problem.Text + "\n" + look.Tip);
        item->setData(Qt::AccessibleTextRole, QString(look.Name) + ": " + problem.Text);
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
