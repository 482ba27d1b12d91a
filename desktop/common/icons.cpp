#include "desktop/common/icons.h"

#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <iterator>

namespace Tamrivo
{

namespace
{

/// An icon of the program's own: strokes on a square of 24 units.
struct OwnIcon
{
    const char* Name;
    const char* Strokes;
};

constexpr OwnIcon ownIcons[] = {
    {"application-exit", "M9 4H4v16h5 M14 8l5 4-5 4 M19 12H9"},
    {"document-edit", "M4 20l1-5L16 4l4 4L9 19z M14 6l4 4"},
    {"document-export", "M6 10v10h12V10 M12 15V3 M8 7l4-4 4 4"},
    {"document-import", "M6 10v10h12V10 M12 3v12 M8 11l4 4 4-4"},
    {"document-new", "M6 3h8l4 4v14H6z M14 3v4h4 M12 10v7 M8.5 13.5h7"},
    {"document-open", "M3 19V5h6l2 2h8v3 M3 19l3-9h16l-3 9z"},
    {"document-print", "M7 9V3h10v6 M5 9h14v8h-2v4H7v-4H5z M7 14h10"},
    {"document-properties", "M6 3h12v18H6z M9 8h6 M9 12h6 M9 16h4"},
    {"document-revert", "M4 12a8 8 0 1 0 3-6 M4 3v5h5"},
    {"document-save-as", "M9 20H4V4h13l3 3v4 M8 4v5h8V4 M12 20l1-4 5-5 3 3-5 5z"},
    {"document-save", "M4 4h13l3 3v13H4z M8 4v5h8V4 M7 20v-7h10v7"},
    {"edit-copy", "M8 8h12v12H8z M16 8V4H4v12h4"},
    {"edit-delete", "M5 7h14 M9 7V4h6v3 M7 7l1 13h8l1-13 M10 11v6 M14 11v6"},
    {"dialog-warning", "M12 4L21 20H3z M12 10v5 M12 17v1"},
    {"edit-find", "M10 4a6 6 0 1 0 .01 0z M14.5 14.5L20 20"},
    {"edit-paste", "M6 5h12v15H6z M9 3h6v4H9z M9 12h6 M9 16h6"},
    {"edit-redo", "M20 9H9a5 5 0 0 0 0 10h4 M16 5l4 4-4 4"},
    {"edit-rename", "M4 8h12v8H4z M18 4v16 M16 4h4 M16 20h4"},
    {"edit-undo", "M4 9h11a5 5 0 0 1 0 10h-4 M8 5L4 9l4 4"},
    {"help-about", "M12 3a9 9 0 1 0 .01 0z M12 11v6 M12 7v1"},
    {"help-contents",
     "M4 5h6a2 2 0 0 1 2 2v13a2 2 0 0 0-2-2H4z M20 5h-6a2 2 0 0 0-2 2v13a2 2 0 0 1 2-2h6z"},
    {"list-add", "M12 5v14 M5 12h14"},
    {"list-remove", "M5 12h14"},
    {"network-server", "M4 5h16v6H4z M4 13h16v6H4z M7 8h1 M7 16h1"},
    {"text-x-generic", "M6 3h8l4 4v14H6z M14 3v4h4 M9 12h6 M9 16h6"},
    {"view-refresh", "M19 13a7 7 0 1 1-2-6l2 2 M19 4v5h-5"},
    {"view-dual", "M4 5h7v14H4z M13 5h7v14h-7z M6 9h3 M15 9h3 M15 12h3"},
    {"x-office-spreadsheet", "M4 5h16v14H4z M4 10h16 M4 14.5h16 M10 5v14"},
    {"zoom-in", "M10 4a6 6 0 1 0 .01 0z M14.5 14.5L20 20 M10 7v6 M7 10h6"},
    {"zoom-original", "M10 4a6 6 0 1 0 .01 0z M14.5 14.5L20 20 M9 8l1.5-1v6"},
    {"zoom-out", "M10 4a6 6 0 1 0 .01 0z M14.5 14.5L20 20 M7 10h6"},
};

/// Draws an icon in the colour that the text of buttons has at the time.
class OwnIconEngine : public QIconEngine
{
public:
    explicit OwnIconEngine(const OwnIcon& icon) : m_icon(icon) {}

    QIconEngine* clone() const override { return new OwnIconEngine(m_icon); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
        const QString svg = QString("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>"
                                    "<path d='%1' fill='none' stroke='%2' stroke-width='1.8' "
                                    "stroke-linecap='round' stroke-linejoin='round'/></svg>")
                                .arg(m_icon.Strokes, color.name());
        QSvgRenderer(svg.toUtf8()).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }

private:
    const OwnIcon& m_icon;
};

} // namespace

QIcon ThemeIcon(const char* name)
{
    if (QIcon::hasThemeIcon(name))
        return QIcon::fromTheme(name);
    const auto own = std::ranges::find_if(
        ownIcons, [&](const OwnIcon& candidate) { return QString(candidate.Name) == name; });
    return own == std::end(ownIcons) ? QIcon() : QIcon(new OwnIconEngine(*own));
}

} // namespace Tamrivo
