#include "desktop/findings/editor_findings.h"

#include "core/error.h"
#include "desktop/alleles/page_fields.h"
#include "desktop/common/long_work.h"
#include "desktop/common/text.h"
#include "editor/locus_editor_form.h"
#include "host/alleles/pane_user.h"
#include "host/store/store.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace Tamrivo
{

EditorFindings::EditorFindings(Store& store, LocusEditorForm& page, QWidget& window)
    : QObject(&window), m_store(store), m_page(page), m_dyes(store.Dyes())
{
    constexpr int rest = 150; // ms; a person goes on typing
    m_edited.setSingleShot(true);
    m_edited.setInterval(rest);
    connect(&m_edited, &QTimer::timeout, this, &EditorFindings::Check);
    connect(&m_reading, &QTimer::timeout, this, &EditorFindings::GoOn);
    m_changes.On(page.ControlChanged, [this](Control&) { m_edited.start(); });
    m_changes.On(User::AllelesOf(page.ctlPaneAlleleList).Changed, [this] { m_edited.start(); });
    window.installEventFilter(this);
    m_edited.start();
}

bool EditorFindings::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_beside)
        ReadAnew();
    return QObject::eventFilter(watched, event);
}

void EditorFindings::ReadAnew()
{
    m_failure.clear();
    m_beside = std::make_unique<LociBeside>(m_store, m_dyes, m_tag, m_panel);
    m_reading.start(0);
}

void EditorFindings::GoOn()
{
    constexpr int slice = 8; // ms; half a frame
    // The store is in the middle of something.
    if (LongWork::IsAtWork())
        return;
    try
    {
        QElapsedTimer time;
        time.start();
        while (m_beside->Step())
        {
            if (time.elapsed() >= slice)
                return;
        }
    }
    catch (const Failure& failure)
    {
        m_failure = ToQString(failure.Record().Description);
    }
    m_reading.stop();
    Check();
}

void EditorFindings::Check()
{
    const AllelePane& pane = User::AllelesOf(m_page.ctlPaneAlleleList);
    if (!pane.ShownLocus())
        return;
    const LocusFields fields = FieldsOn(m_page, *pane.ShownLocus());
    const std::string& tag = m_page.txtLocusTag.Text();
    if (!m_beside || m_tag != tag || m_panel != fields.PrimerSet)
    {
        m_tag = tag;
        m_panel = fields.PrimerSet;
        ReadAnew();
    }
    // What is found beside the others stays until they are read.
    if (m_reading.isActive())
        return;
    std::vector<const AlleleFields*> alleles;
    for (const auto& row : pane.Rows())
        alleles.push_back(row.get());
    CheckedLocus locus(tag, fields, std::move(alleles));
    locus.Dye = m_dyes.TitleOf(fields.DyeIndex);
    locus.HasKnownDye = fields.DyeIndex >= 0 && fields.DyeIndex < m_dyes.Count();
    m_found = m_beside->FindingsOf(locus);
    emit Changed();
}

} // namespace Tamrivo
