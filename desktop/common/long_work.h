#pragma once

#include "core/event.h"

#include <QElapsedTimer>
#include <QProgressDialog>

namespace Tamrivo
{

class Store;

/// Work that may take its time, on the store or of the library on what it has read: guards let pass
/// what ends it. While it lives the pointer says so, and after half a second a dialog shows how far
/// the work is and lets the person cancel it.
class LongWork
{
public:
    /// @param what what the person is told, such as "Reading the loci..."
    LongWork(const QString& what, QWidget* parent);
    /// Watches the store, which must outlive it.
    LongWork(Store& store, const QString& what, QWidget* parent);
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;
    ~LongWork();

    /// Whether any is going on: the store is then in the middle of something, and events that come
    /// meanwhile must leave it alone.
    static bool IsAtWork() { return s_atWork > 0; }

    /// Shows how much is done. Raises `Cancelled` once the person has cancelled.
    void Show(std::size_t done, std::size_t total);
    /// Shows that the work goes on, where nobody knows how far it is. Raises `Cancelled` as well.
    void GoOn();

private:
    static int s_atWork;

    QProgressDialog m_dialog;
    QElapsedTimer m_sinceShown;
    Connection m_progress;
};

} // namespace Tamrivo
