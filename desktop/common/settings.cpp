#include "desktop/common/settings.h"

#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace Tamrivo
{

namespace
{

constexpr int mostRecentStores = 8;

QString PlaceKey(const QWidget& window)
{
    return "places/" + window.objectName();
}

/// A store's address as one key; slashes would make groups.
QString ParameterKey(const QString& store)
{
    return "parameters/" + QString::fromLatin1(store.toUtf8().toHex());
}

} // namespace

void RememberPlace(const QWidget& window)
{
    QSettings().setValue(PlaceKey(window), window.saveGeometry());
}

void RestorePlace(QWidget& window, QSize first)
{
    if (!window.restoreGeometry(QSettings().value(PlaceKey(window)).toByteArray()))
        window.resize(first.boundedTo(window.screen()->availableSize() * 0.95));
}

QStringList RecentStores()
{
    return QSettings().value("stores").toStringList();
}

void RememberStore(const QString& address)
{
    QStringList stores = RecentStores();
    stores.removeAll(address);
    stores.prepend(address);
    QSettings().setValue("stores", stores.mid(0, mostRecentStores));
}

void ForgetStore(const QString& address)
{
    QStringList stores = RecentStores();
    stores.removeAll(address);
    QSettings().setValue("stores", stores);
}

QString LastParameter(const QString& store)
{
    return QSettings().value(ParameterKey(store)).toString();
}

void RememberParameter(const QString& store, const QString& parameter)
{
    QSettings().setValue(ParameterKey(store), parameter);
}

QStringList KeptSearches()
{
    return QSettings().value("searches").toStringList();
}

void RememberSearches(const QStringList& searches)
{
    QSettings().setValue("searches", searches);
}

bool IsTipRead(const QString& tip)
{
    return QSettings().value("tips/" + tip).toBool();
}

void RememberTip(const QString& tip)
{
    QSettings().setValue("tips/" + tip, true);
}

int TextSteps()
{
    return QSettings().value("text").toInt();
}

void RememberTextSteps(int steps)
{
    QSettings().setValue("text", steps);
}

} // namespace Tamrivo
