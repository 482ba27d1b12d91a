#include "desktop/help/guide_window.h"

#include "desktop/common/settings.h"

#include <QDesktopServices>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

/// A library's resources have to be asked for, from outside of any namespace.
static void ProvideGuide()
{
    Q_INIT_RESOURCE(guide);
}

namespace Tamrivo
{

namespace
{

const char* const guidePage = "qrc:/guide/docs/guide.md";

/// A heading as links have it: "Define a locus" as "define-a-locus".
QString LinkOf(const QString& heading)
{
    return heading.toLower().replace(' ', '-').remove(
        QRegularExpression(R"([^\w-])", QRegularExpression::UseUnicodePropertiesOption));
}

} // namespace

GuideWindow::GuideWindow(QWidget* beside) : QTextBrowser(beside)
{
    setObjectName("guide");
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("User's Guide");
    setAccessibleName("User's guide");
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &GuideWindow::Follow);
    ProvideGuide();
    Load(QUrl(guidePage));
    RestorePlace(*this, {fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 46});
}

void GuideWindow::Load(const QUrl& page)
{
    setSource(page);
    document()->setDocumentMargin(2 * fontMetrics().averageCharWidth());
}

void GuideWindow::ShowAt(const QString& heading, QWidget* beside)
{
    auto* guide = beside != nullptr ? beside->findChild<GuideWindow*>() : nullptr;
    if (guide == nullptr)
        guide = new GuideWindow(beside);
    guide->show();
    guide->raise();
    guide->activateWindow();
    guide->Follow(QUrl(guidePage));
    guide->TurnTo(heading);
}

void GuideWindow::TurnTo(const QString& heading)
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    {
        if (block.blockFormat().headingLevel() == 0 || LinkOf(block.text()) != LinkOf(heading))
            continue;
        setTextCursor(QTextCursor(block));
        const QRect place = cursorRect();
        verticalScrollBar()->setValue(verticalScrollBar()->value() + place.top());
        return;
    }
}

void GuideWindow::Follow(const QUrl& link)
{
    const QUrl target = source().resolved(link);
    const QUrl page = target.adjusted(QUrl::RemoveFragment);
    if (page.scheme() != "qrc")
    {
        QDesktopServices::openUrl(target);
        return;
    }
    if (page != source().adjusted(QUrl::RemoveFragment))
        Load(page);
    TurnTo(target.fragment());
}

} // namespace Tamrivo
