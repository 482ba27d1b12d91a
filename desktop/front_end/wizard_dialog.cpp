#include "desktop/front_end/wizard_dialog.h"

#include "contracts/launcher.h"
#include "contracts/parameters.h"
#include "controls/text_field.h"
#include "desktop/common/actions.h"
#include "desktop/common/settings.h"
#include "desktop/common/text.h"
#include "desktop/forms/form_view.h"
#include "desktop/front_end/hosted_views.h"
#include "desktop/front_end/page_reasons.h"
#include "desktop/front_end/questions.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"
#include "host/framework/wizard_session.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// What a person is told of a wizard.
struct WizardText
{
    std::string_view Wizard;
    const char* Title;         ///< What the page is about.
    const char* Invalid;       ///< When the page marks no field.
    bool AsksToCancel = false; ///< When something was changed.
};

constexpr WizardText wizardTexts[] = {
    {LocusEditorWizard.Name, "Locus", "The locus can't be stored as it is.", true},
    {SaveAsWizard.Name, "Save Locus Tag As", "Enter a tag that no other locus has."},
};

/// Dark on a pale yellow: readable in light and dark themes alike.
QPalette ReasonPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(255, 243, 196));
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

WizardText TextOf(const std::string& wizard)
{
    const auto* found = std::ranges::find(wizardTexts, wizard, &WizardText::Wizard);
    return found != std::end(wizardTexts)
               ? *found
               : WizardText{wizard, wizard.c_str(), "The page is not valid yet."};
}

} // namespace

WizardDialog::WizardDialog(WizardSession& wizard, const Actions& actions, QWidget* parent)
    : QDialog(parent),
      m_wizard(wizard),
      m_actions(actions),
      m_page(new FormView(wizard.Page(), actions, NewHostedView)),
      m_reasons(new QLabel(this)),
      m_stored(ContentOf(wizard.Page()))
{
    setObjectName(ToQString(wizard.Name()));
    setSizeGripEnabled(true);
    SetUpReasons();
    LayOut();
    AskAboutAlleles();
    m_validated = m_wizard.Validated.Connect([this] {
        ShowReasons();
        ShowTitle();
    });
    ShowReasons();
    ShowTitle();
}

void WizardDialog::ShowTitle()
{
    QString title = TextOf(m_wizard.Name()).Title;
    if (const auto* editor = dynamic_cast<LocusEditorForm*>(&m_wizard.Page()))
    {
        const QString tag = ToQString(editor->txtLocusTag.Text()).trimmed();
        title = (tag.isEmpty() ? "New locus" : tag) + " – " + title;
    }
    setWindowTitle(title);
}

void WizardDialog::SetUpReasons()
{
    m_reasons->setObjectName("reasons");
    m_reasons->setAccessibleName("Why the page can't be finished");
    m_reasons->setTextFormat(Qt::PlainText);
    m_reasons->setWordWrap(true);
    m_reasons->setMargin(fontMetrics().averageCharWidth());
    m_reasons->setAutoFillBackground(true);
    m_reasons->setPalette(ReasonPalette());
    m_reasons->hide();
}

void WizardDialog::LayOut()
{
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    // A click beside the controls leaves the focus where it is.
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(m_page);

    // Their access keys are letters that no page has.
    auto* buttons = new QDialogButtonBox(this);
    m_finish = buttons->addButton("F&inish", QDialogButtonBox::AcceptRole);
    m_finish->setObjectName("finish");
    m_finish->setDefault(true);
    m_cancel = buttons->addButton("&Cancel", QDialogButtonBox::RejectRole);
    m_cancel->setObjectName("cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll, 1);
    layout->addWidget(m_reasons);
    layout->addWidget(buttons);
    const QSize natural = m_page->sizeHint() + (sizeHint() - scroll->sizeHint());
    RestorePlace(*this, natural.expandedTo(sizeHint()));
}

void WizardDialog::AskAboutAlleles()
{
    auto* editor = dynamic_cast<LocusEditorForm*>(&m_wizard.Page());
    if (editor == nullptr)
        return;
    m_page->AskBefore(editor->cmdGenAlleleList, [this, editor] {
        return MayReplaceAlleles(this, User::AllelesOf(editor->ctlPaneAlleleList));
    });
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
    else
        QDialog::keyPressEvent(event);
}

void WizardDialog::ShowReasons()
{
    QStringList reasons = ReasonsOf(m_wizard.Page());
    if (reasons.isEmpty())
        reasons += TextOf(m_wizard.Name()).Invalid;
    m_reasons->setText(reasons.join('\n'));
    m_reasons->setVisible(!m_wizard.IsValid());
}

void WizardDialog::FocusFault()
{
    const TextField* field = FirstFault(m_wizard.Page());
    if (field == nullptr)
        return m_page->FocusFirst();
    QWidget& widget = m_page->ViewOf(*field)->FocusWidget();
    m_page->BringToView(*field);
    widget.setFocus(Qt::OtherFocusReason);
}

void WizardDialog::accept()
{
    // The field is left first, so that its repair runs before the page is judged.
    m_page->LeaveFocus(*m_finish);
    m_actions.Run([this] {
        if (m_wizard.Finish())
            QDialog::accept();
        else
            FocusFault();
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
        emit SavedAs(ToQString(locus->LocusTag()));
    });
}

bool WizardDialog::MayCancel()
{
    return !TextOf(m_wizard.Name()).AsksToCancel || ContentOf(m_wizard.Page()) == m_stored ||
           MayDiscardChanges(this);
}

void WizardDialog::reject()
{
    const QPointer<QWidget> focus = focusWidget();
    m_page->LeaveFocus(*m_cancel);
    if (!MayCancel())
    {
        if (focus)
            focus->setFocus(Qt::OtherFocusReason);
        return;
    }
    m_actions.Run([this] { m_wizard.Cancel(); });
    QDialog::reject();
}

} // namespace Tamrivo
