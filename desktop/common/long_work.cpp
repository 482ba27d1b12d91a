#include "desktop/common/long_work.h"

#include "desktop/common/actions.h"
#include "host/store/store.h"

#include <QApplication>

namespace Tamrivo
{

int LongWork::s_atWork = 0;

LongWork::LongWork(const QString& what, QWidget* parent) : m_dialog(what, "Cancel", 0, 0, parent)
{
    m_dialog.setObjectName("longWork");
    m_dialog.setWindowModality(Qt::ApplicationModal);
    m_dialog.setMinimumDuration(500);
    m_dialog.setValue(0);
    m_dialog.setWindowTitle("Please Wait");
    m_sinceShown.start();
    QApplication::setOverrideCursor(Qt::BusyCursor);
    ++s_atWork;
}

LongWork::LongWork(Store& store, const QString& what, QWidget* parent) : LongWork(what, parent)
{
    m_progress = store.OnProgress([this] { GoOn(); });
}

LongWork::~LongWork()
{
    --s_atWork;
    QApplication::restoreOverrideCursor();
}

void LongWork::Show(std::size_t done, std::size_t total)
{
    m_dialog.setMaximum(static_cast<int>(total));
    if (done < total)
        m_dialog.setValue(static_cast<int>(done));
    if (m_dialog.wasCanceled())
        throw Cancelled();
}

void LongWork::GoOn()
{
    constexpr int pause = 100; // ms
    if (m_sinceShown.elapsed() < pause)
        return;
    m_sinceShown.restart();
    // Without a total any new value keeps the bar moving.
    if (m_dialog.maximum() == 0)
        m_dialog.setValue(m_dialog.value() + 1);
    if (m_dialog.wasCanceled())
        throw Cancelled();
}

} // namespace Tamrivo
