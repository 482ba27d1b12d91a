#include "desktop/front_end/wizard_dialog.h"

#include "contracts/parameters.h"
#include "desktop/alleles/allele_pane_view.h"
#include "desktop/common/actions.h"
#include "desktop/common/icons.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/findings/editor_findings.h"
#include "desktop/forms/form_view.h"
#include "desktop/front_end/hosted_views.h"
#include "desktop/front_end/problem_list.h"
#include "desktop/front_end/questions.h"
#include "desktop/front_end/wizard_text.h"
#include "desktop/help/first_use_tip.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"
#include "host/framework/host_application.h"
#include "host/framework/wizard_session.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

QLabel* NewNotice(const std::string& text)
{
    auto* notice = new QLabel(ToQString(text));
    notice->setObjectName("notice");
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    notice->setFrameShape(QFrame::StyledPanel);
    notice->setMargin(notice->fontMetrics().averageCharWidth());
    return notice;
}

} // namespace

WizardDialog::WizardDialog(HostApplication& host, WizardSession& wizard, const Actions& actions,
                           QWidget* parent)
    : QDialog(parent),
      m_wizard(wizard),
      m_actions(actions),
      m_page(new FormView(wizard.Page(), actions, HostedViews(host.Store().Dyes()))),
      m_history(wizard.Page()),
      m_problems(new ProblemList(this)),
      m_undo(NewUndoAction("Undo", "edit-undo", QKeySequence::Undo, &PageHistory::Undo)),
      m_redo(NewUndoAction("Redo", "edit-redo", QKeySequence::Redo, &PageHistory::Redo)),
      m_stored(ContentOf(wizard.Page()))
{
    setObjectName(ToQString(wizard.Name()));
    setSizeGripEnabled(true);
    LayOut();
    SetUpEditor(host.Store());
    connect(m_problems, &ProblemList::Picked, this,
            [this](const PageProblem& problem) { GoTo(problem); });
    const auto showSteps = [this] {
        m_undo->setEnabled(m_history.CanUndo());
        m_redo->setEnabled(m_history.CanRedo());
        setWindowModified(IsChanged());
    };
    connect(&m_history, &PageHistory::Changed, this, showSteps);
    connect(qApp, &QApplication::focusChanged, &m_history, &PageHistory::EndStep);
    m_validated = m_wizard.Validated.Connect([this] {
        ShowProblems();
        ShowTitle();
    });
    ShowProblems();
    ShowTitle();
    showSteps();
}

void WizardDialog::ShowTitle()
{
    QString title = TextOf(m_wizard.Name()).Title;
    if (const auto* editor = dynamic_cast<LocusEditorForm*>(&m_wizard.Page()))
    {
        const QString tag = ToQString(editor->txtLocusTag.Text()).trimmed();
        title = (tag.isEmpty() ? "New locus" : tag) + "[*] – " + title;
    }
    setWindowTitle(title);
}

QAction* WizardDialog::NewUndoAction(const char* text, const char* icon,
                                     QKeySequence::StandardKey keys,
                                     Control* (PageHistory::*step)())
{
    auto* action = new QAction(ThemeIcon(icon), text, this);
    action->setObjectName(QString(text).toLower());
    action->setShortcuts(keys);
    action->setToolTip(
        QString("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, [this, step] {
        m_actions.Run([&] {
            if (const Control* changed = (m_history.*step)())
                m_page->BringToView(*changed);
        });
    });
    addAction(action);
    return action;
}

void WizardDialog::LayOut()
{
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    // A click beside the controls leaves the focus where it is.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(m_page);

    auto* layout = new QVBoxLayout(this);
    if (!m_wizard.Notice.empty())
        layout->addWidget(NewNotice(m_wizard.Notice));
    if (dynamic_cast<LocusEditorForm*>(&m_wizard.Page()) != nullptr)
        layout->addWidget(new FirstUseTip(
            "editor",
            "F6 goes from the fields to the alleles and back, Ctrl+Z takes back any step, and what "
            "keeps the page from being finished stands beside its buttons.",
            this));
    layout->addWidget(scroll, 1);
    layout->addLayout(MakeBottomRow());
    const QSize natural = m_page->sizeHint() + (sizeHint() - scroll->sizeHint());
    RestorePlace(*this, natural.expandedTo(sizeHint()));
}

QLayout* WizardDialog::MakeBottomRow()
{
    auto* row = new QHBoxLayout;
    for (QAction* action : {m_undo, m_redo})
    {
        auto* button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        row->addWidget(button, 0, Qt::AlignBottom);
    }
    row->addWidget(m_problems, 1);
    // Their access keys are letters that no page has.
    auto* buttons = new QDialogButtonBox(this);
    m_finish = buttons->addButton("F&inish", QDialogButtonBox::AcceptRole);
    m_finish->setObjectName("finish");
    m_cancel = buttons->addButton("&Cancel", QDialogButtonBox::RejectRole);
    m_cancel->setObjectName("cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    row->addWidget(buttons, 0, Qt::AlignBottom);
    return row;
}

void WizardDialog::SetUpEditor(Store& store)
{
    auto* editor = dynamic_cast<LocusEditorForm*>(&m_wizard.Page());
    if (editor == nullptr)
        return;
    m_page->AskBefore(editor->cmdGenAlleleList, [this, editor] {
        return MayReplaceAlleles(this, User::AllelesOf(editor->ctlPaneAlleleList));
    });
    if (auto* pane = dynamic_cast<AllelePaneView*>(m_page->ViewOf(editor->ctlPaneAlleleList)))
        pane->LeaveUndoToPage();
    m_findings = new EditorFindings(store, *editor, *this);
    connect(m_findings, &EditorFindings::Changed, this, &WizardDialog::ShowProblems);
}

WizardDialog::~WizardDialog()
{
    RememberPlace(*this);
}

void WizardDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        m_page->FocusFirst();
}

void WizardDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F6)
        m_page->FocusNextArea(!(event->modifiers() & Qt::ShiftModifier));
    // A field takes these keys for itself before they are anybody's shortcut, and passes them on.
    else if (event->matches(QKeySequence::Undo))
        m_undo->trigger();
    else if (event->matches(QKeySequence::Redo))
        m_redo->trigger();
    else
        QDialog::keyPressEvent(event);
}

void WizardDialog::ShowProblems()
{
    std::vector<PageProblem> problems;
    if (!m_wizard.IsValid())
        problems = ProblemsOf(m_wizard.Page());
    if (!m_wizard.IsValid() && problems.empty())
        problems.push_back({TextOf(m_wizard.Name()).Invalid, nullptr});
    auto* editor = dynamic_cast<LocusEditorForm*>(&m_wizard.Page());
    if (editor != nullptr && m_findings != nullptr)
        AddFindings(problems, *editor, *m_findings);
    m_problems->Show(std::move(problems));
}

void WizardDialog::GoTo(const PageProblem& problem)
{
    if (problem.Where == nullptr)
        return m_page->FocusFirst();
    ControlView* view = m_page->ViewOf(*problem.Where);
    m_page->BringToView(*problem.Where);
    if (auto* pane = dynamic_cast<AllelePaneView*>(view))
        pane->GoTo(problem.Allele);
    else
        view->FocusWidget().setFocus(Qt::OtherFocusReason);
}

void WizardDialog::accept()
{
    // The field is left first, so that its repair runs before the page is judged.
    m_page->LeaveFocus(*m_finish);
    m_actions.Run([this] {
        if (m_wizard.Finish())
            QDialog::accept();
        else
            GoTo(m_problems->Shown().front());
    });
}

void WizardDialog::NoteSavedAs()
{
    // Once the click that has opened the other page has ended: it goes on to change this one.
    QTimer::singleShot(0, this, [this] {
        const auto& parameters = *m_wizard.Base().Parameters();
        if (!parameters.KeyExists(ParameterKey::SaveLocusAs))
            return;
        const auto locus =
            ParameterItem<std::shared_ptr<Locus>>(parameters, ParameterKey::SaveLocusAs);
        if (locus->LocusID() <= 0)
            return;
        m_stored = ContentOf(m_wizard.Page());
        setWindowModified(false);
        emit SavedAs(ToQString(locus->LocusTag()));
    });
}

bool WizardDialog::IsChanged() const
{
    return TextOf(m_wizard.Name()).AsksToCancel && ContentOf(m_wizard.Page()) != m_stored;
}

void WizardDialog::reject()
{
    const QPointer<QWidget> focus = focusWidget();
    m_page->LeaveFocus(*m_cancel);
    if (IsChanged() && !MayDiscardChanges(this))
    {
        if (focus)
            focus->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_actions.Run([this] { m_wizard.Cancel(); });
    QDialog::reject();
}

} // namespace Tamrivo
