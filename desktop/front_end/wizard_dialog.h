#pragma once

#include "core/event.h"
#include "desktop/front_end/page_content.h"
#include "desktop/front_end/page_history.h"

#include <QDialog>
#include <QKeySequence>

class QAction;
class QPushButton;

namespace Tamrivo
{

class Actions;
class EditorFindings;
class FormView;
class HostApplication;
class ProblemList;
class Store;
class WizardSession;
struct PageProblem;

/// A wizard with its page, named by what stands on it. What was done on the page can be
/// taken back. Finish is refused while the page is not valid; why, a list beside the buttons says,
/// with what a check finds in the locus of an editor.
/// What would lose a person's work is asked first. Whatever ends the dialog ends the wizard.
class WizardDialog : public QDialog
{
    Q_OBJECT

public:
    /// The host must outlive the dialog. Raises failures of its store.
    WizardDialog(HostApplication& host, WizardSession& wizard, const Actions& actions,
                 QWidget* parent);
    ~WizardDialog() override;

    FormView& Page() const { return *m_page; }

    /// What another page has just stored of this one counts as stored.
    void NoteSavedAs();

    void accept() override;
    void reject() override;

signals:
    /// What another page has stored of this one stands under the tag.
    void SavedAs(const QString& tag);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowTitle();
    void LayOut();
    QLayout* MakeBottomRow();
    QAction* NewUndoAction(const char* text, const char* icon, QKeySequence::StandardKey keys,
                           Control* (PageHistory::*step)());
    void SetUpEditor(Store& store);
    /// Whether something would be lost that was entered.
    bool IsChanged() const;
    void ShowProblems();
    void GoTo(const PageProblem& problem);

    WizardSession& m_wizard;
    const Actions& m_actions;
    FormView* m_page;
    PageHistory m_history;
    ProblemList* m_problems;
    EditorFindings* m_findings = nullptr; ///< None but for the locus editor.
    QAction* m_undo;
    QAction* m_redo;
    QPushButton* m_finish;
    QPushButton* m_cancel;
    PageContent m_stored; ///< The page as it is in the store.
    Connection m_validated;
};

} // namespace Tamrivo
