#include "desktop/library/search_line.h"

#include "desktop/common/icons.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Tamrivo
{

namespace
{

/// What is wrong with the search, dark on a pale yellow: readable in light and dark themes alike.
QLabel* NewErrorLine(QWidget* parent)
{
    auto* line = new QLabel(parent);
    line->setObjectName("searchErrors");
    line->setAccessibleName("What is wrong with the search");
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    line->setMargin(line->fontMetrics().averageCharWidth() / 2);
    line->setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(255, 243, 196));
    palette.setColor(QPalette::WindowText, Qt::black);
    line->setPalette(palette);
    line->hide();
    return line;
}

} // namespace

SearchLine::SearchLine(QWidget* parent)
    : QWidget(parent), m_field(new QLineEdit(this)), m_errors(NewErrorLine(this))
{
    m_field->setObjectName("search");
    m_field->setAccessibleName("Search");
    m_field->setClearButtonEnabled(true);
    m_field->setPlaceholderText("Search, such as: TH01   dye:blue   panel:H24   range:100-200   "
                                "allele:9.3   used:no   problem:");
    m_field->addAction(ThemeIcon("edit-find"), QLineEdit::LeadingPosition);
    setFocusProxy(m_field);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_field);
    layout->addWidget(m_errors);
    connect(m_field, &QLineEdit::textChanged, this, &SearchLine::Changed);
    connect(m_field, &QLineEdit::returnPressed, this, &SearchLine::Entered);
}

QString SearchLine::Text() const
{
    return m_field->text();
}

void SearchLine::SetText(const QString& search)
{
    m_field->setText(search);
}

void SearchLine::Focus()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

void SearchLine::ShowErrors(const QStringList& errors)
{
    m_errors->setText(errors.join('\n'));
    m_errors->setVisible(!errors.isEmpty());
}

} // namespace Tamrivo
