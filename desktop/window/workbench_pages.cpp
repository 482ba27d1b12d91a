#include "desktop/window/workbench_pages.h"

#include "desktop/common/text.h"
#include "desktop/library/library_view.h"
#include "desktop/window/commands.h"
#include "desktop/window/parameter_bar.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/start_page.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace Tamrivo
{

WorkbenchPages::WorkbenchPages(LibraryView& library, QWidget* parent)
    : QWidget(parent), m_library(library), m_stack(new QStackedWidget(this))
{}

void WorkbenchPages::Offer(const Commands& commands)
{
    m_bar = new ParameterBar(commands.For(CommandPlace::ParameterBar), this);
    m_noStore = new StartPage("No store is open.", commands.For(CommandPlace::NoStore), this);
    m_emptyStore =
        new StartPage("The store has no loci yet.\nBring in a panel, or define a locus by hand.",
                      commands.For(CommandPlace::EmptyStore), this);
    for (QWidget* page : {m_noStore, m_emptyStore, static_cast<QWidget*>(&m_library)})
        m_stack->addWidget(page);
    auto* layout = new QVBoxLayout(this);
    const int margin = fontMetrics().averageCharWidth();
    layout->setContentsMargins(0, margin, margin, 0);
    layout->addWidget(m_bar);
    layout->addWidget(m_stack, 1);
}

void WorkbenchPages::Add(ParameterView& parameter)
{
    m_stack->addWidget(&parameter);
}

void WorkbenchPages::TurnToTable()
{
    m_stack->setCurrentWidget(&m_library);
}

void WorkbenchPages::TurnTo(ParameterView& parameter)
{
    m_stack->setCurrentWidget(&parameter);
}

bool WorkbenchPages::IsShown(const ParameterView& parameter) const
{
    return m_stack->currentWidget() == &parameter;
}

void WorkbenchPages::Update(bool hasStore, const ParameterView* parameter, bool isReadOnly)
{
    if (parameter == nullptr || !IsShown(*parameter))
    {
        const bool hasLoci = m_library.Loci() != nullptr && !m_library.Loci()->Loci().empty();
        m_stack->setCurrentWidget(hasLoci || parameter != nullptr ? &m_library
                                  : hasStore                      ? m_emptyStore
                                                                  : m_noStore);
    }
    m_bar->setVisible(parameter != nullptr);
    if (parameter != nullptr)
        m_bar->Show(ToQString(parameter->Name()), parameter->IsChanged(), isReadOnly);
}

} // namespace Tamrivo
