#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace Tamrivo
{

class Actions;
class FormView;
class WizardSession;

/// A wizard with its page. Finish is refused while the page is not valid, and the reasons then
/// stand above the buttons. Whatever ends the dialog ends the wizard.
class WizardDialog : public QDialog
{
public:
    WizardDialog(WizardSession& wizard, const Actions& actions, QWidget* parent);
    ~WizardDialog() override;

    FormView& Page() const { return *m_page; }

    void accept() override;
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowReasons();
    void FocusFault();

    WizardSession& m_wizard;
    const Actions& m_actions;
    FormView* m_page;
    QLabel* m_reasons;
    QPushButton* m_finish;
    QPushButton* m_cancel;
};

} // namespace Tamrivo
