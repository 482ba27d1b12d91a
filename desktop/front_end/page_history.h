#pragma once

#include "core/event.h"
#include "desktop/front_end/page_content.h"
#include "host/alleles/pane_user.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace Tamrivo
{

/// What a person has done on a page, step by step, to be taken back and done again: the fields, and
/// the rows of its allele pane, which keeps its own steps. What is typed into one field is one step
/// until that field is left.
class PageHistory : public QObject
{
    Q_OBJECT

public:
    /// The page must outlive the history.
    explicit PageHistory(UserControl& page);

    bool CanUndo() const;
    bool CanRedo() const { return !m_undone.empty(); }

    /// Take back the last step, or do it again. Give the field that was changed, null for none.
    /// Raise `User::Refusal` when the alleles can't be reached, and what handlers of fields raise.
    Control* Undo();
    Control* Redo();

    /// What follows is a step of its own.
    void EndStep();

signals:
    void Changed();

private:
    struct Step
    {
        PageFields Before;
        PageFields After;
        bool IsOfAlleles; ///< A step of the allele pane belongs to it.
    };

    Control* Go(std::vector<Step>& from, std::vector<Step>& to, PageFields Step::*fields,
                void (*stepAlleles)(const User::AllelePaneControl& pane));
    /// Something changes, and more may do so in the same action.
    void Await();
    void Note();
    void ForgetAlleles(std::size_t steps);
    bool Extends(const PageFields& fields) const;
    std::size_t AlleleSteps() const;

    UserControl& m_page;
    const AllelePane* m_pane = nullptr;
    PageFields m_fields;
    std::size_t m_alleles = 0;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
    bool m_hasEnded = true; ///< Whether the last step takes nothing more.
    QTimer m_changed;
    Connections m_changes;
};

} // namespace Tamrivo
