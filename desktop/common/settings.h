#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

class QWidget;

namespace Tamrivo
{

// What the program remembers between its runs, in the user's configuration.

/// Size and place of a window, under its object name.
void RememberPlace(const QWidget& window);
/// Gives the window what is remembered of it; if nothing is, a size, as far as the screen has it.
void RestorePlace(QWidget& window, QSize first);

/// Addresses of the stores that were opened last, the latest first.
QStringList RecentStores();
void RememberStore(const QString& address);
void ForgetStore(const QString& address);

/// The analysis parameter that was shown last in a store; empty for none.
QString LastParameter(const QString& store);
void RememberParameter(const QString& store, const QString& parameter);

/// The searches that are kept as groups.
QStringList KeptSearches();
void RememberSearches(const QStringList& searches);

/// Whether a tip, by its name, was read before.
bool IsTipRead(const QString& tip);
void RememberTip(const QString& tip);

/// Steps by which the text is larger than the desktop's own.
int TextSteps();
void RememberTextSteps(int steps);

} // namespace Tamrivo
