#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace Tamrivo
{

/// The field in which a search for loci is typed, and below it what is wrong with the search.
class SearchLine : public QWidget
{
    Q_OBJECT

public:
    explicit SearchLine(QWidget* parent);

    QString Text() const;
    void SetText(const QString& search);
    /// Gives it the focus with all of the text selected.
    void Focus();
    /// A line each; none hides them.
    void ShowErrors(const QStringList& errors);

signals:
    void Changed();
    /// By the Enter key: on to what was found.
    void Entered();

private:
    QLineEdit* m_field;
    QLabel* m_errors;
};

} // namespace Tamrivo
