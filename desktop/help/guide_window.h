#pragma once

#include <QTextBrowser>

namespace Tamrivo
{

/// The user's guide in a window of its own, beside the one that it was asked for in.
class GuideWindow : public QTextBrowser
{
public:
    /// Shows the guide at a heading, in the window that shows it already if there is one.
    /// @param heading as `HelpTopicOf` gives it; empty for the guide's beginning
    /// @param beside the window in front, which may be modal
    static void ShowAt(const QString& heading, QWidget* beside);

private:
    explicit GuideWindow(QWidget* beside);
    void Load(const QUrl& page);
    /// Turns to the heading whose text, or whose form in links, it is.
    void TurnTo(const QString& heading);
    void Follow(const QUrl& link);
};

} // namespace Tamrivo
