#pragma once

#include "desktop/front_end/page_problems.h"

#include <QListWidget>

namespace Tamrivo
{

/// What keeps a page from being finished, and what a check has found on it, a line each; Return or
/// a click goes to where it is. It keeps its height whatever it holds.
class ProblemList : public QListWidget
{
    Q_OBJECT

public:
    explicit ProblemList(QWidget* parent);

    void Show(std::vector<PageProblem> problems);
    const std::vector<PageProblem>& Shown() const { return m_problems; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The person wants to mend one.
    void Picked(const PageProblem& problem);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Fit();

    std::vector<PageProblem> m_problems;
};

} // namespace Tamrivo
