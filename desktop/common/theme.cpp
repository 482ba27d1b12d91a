#include "desktop/common/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QSettings>
#include <QStyleOption>

namespace Tamrivo
{

namespace
{

constexpr const char* themeKey = "theme";

QPalette LightPalette()
{
    QPalette palette(QColor(239, 239, 239));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Highlight, QColor(61, 126, 214));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(70, 70, 70));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
    return palette;
}

/// Gives boxes and options an outline that is seen on a dark ground too.
class OutliningStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isOption = element == PE_IndicatorRadioButton;
        if (!isOption && element != PE_IndicatorCheckBox &&
            element != PE_IndicatorItemViewItemCheck)
            return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, isOption);
        painter->setPen(option->palette.color(QPalette::PlaceholderText));
        painter->setBrush(Qt::NoBrush);
        const QRect outline = option->rect.adjusted(0, 0, -1, -1);
        if (isOption)
            painter->drawEllipse(outline);
        else
            painter->drawRect(outline);
        painter->restore();
    }
};

} // namespace

Theme ChosenTheme()
{
    const int theme = QSettings().value(themeKey).toInt();
    const bool isKnown =
        theme == static_cast<int>(Theme::Light) || theme == static_cast<int>(Theme::Dark);
    return isKnown ? static_cast<Theme>(theme) : Theme::Desktop;
}

void UseTheme(Theme theme)
{
    // Of the styles at hand only Fusion takes any palette.
    static const QString desktopStyle = QApplication::style()->name();
    QApplication::setStyle(
        new OutliningStyle(theme == Theme::Desktop ? desktopStyle : QString("fusion")));
    QApplication::setPalette(theme == Theme::Light  ? LightPalette()
                             : theme == Theme::Dark ? DarkPalette()
                                                    : QPalette());
    QSettings().setValue(themeKey, static_cast<int>(theme));
}

} // namespace Tamrivo
