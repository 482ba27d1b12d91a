#pragma once

#include <QWidget>

#include <memory>

class QLabel;
class QTableWidget;

namespace Tamrivo
{

class AllelePicture;
class Locus;
class Dyes;

/// What differs between two loci: the fields in which they do, and their bins one above the other
/// on the same axis.
class Comparison : public QWidget
{
public:
    explicit Comparison(QWidget* parent);

    /// Raises failures of the store when alleles have to be read.
    void Show(Locus& left, Locus& right, const Dyes& dyes);

private:
    QLabel* m_summary;
    QTableWidget* m_fields;
    QLabel* m_leftTitle;
    QLabel* m_rightTitle;
    AllelePicture* m_left;
    AllelePicture* m_right;
};

/// A table that only shows texts, without a grid and without row numbers.
QTableWidget* NewReadingTable(const QString& name, const QStringList& titles, QWidget* parent);

} // namespace Tamrivo
