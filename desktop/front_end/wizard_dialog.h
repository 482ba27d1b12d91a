#pragma once

#include "core/event.h"
#include "desktop/front_end/page_content.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace Tamrivo
{

class Actions;
class FormView;
class WizardSession;

/// A wizard with its page, named by what stands on it. Finish is refused while the page is not
/// valid, and the reasons then stand above the buttons. What would lose a person's work is asked
/// first. Whatever ends the dialog ends the wizard.
class WizardDialog : public QDialog
{
    Q_OBJECT

public:
    WizardDialog(WizardSession& wizard, const Actions& actions, QWidget* parent);
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
    void SetUpReasons();
    void LayOut();
    void AskAboutAlleles();
    bool MayCancel();
    void ShowReasons();
    void FocusFault();

    WizardSession& m_wizard;
    const Actions& m_actions;
    FormView* m_page;
    QLabel* m_reasons;
    QPushButton* m_finish;
    QPushButton* m_cancel;
    PageContent m_stored; ///< The page as it is in the store.
    Connection m_validated;
};

} // namespace Tamrivo
