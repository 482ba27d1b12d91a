#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace Tamrivo
{

class AllelePane;

/// The row above the allele list: a button for each action, and a line that says what is wrong with
/// the list, or how many alleles it has.
class AlleleTools : public QWidget
{
public:
    explicit AlleleTools(QWidget* parent);

    /// Adds a button, which is there while the action is visible.
    void Add(QAction& action);
    void ShowState(const AllelePane& pane);
    /// The buttons that answer, in their order.
    std::vector<QWidget*> Answering() const;

private:
    QHBoxLayout* m_layout;
    QLabel* m_state;
    std::vector<QToolButton*> m_buttons;
};

} // namespace Tamrivo
