#pragma once

#include "host/alleles/pane_user.h"
#include "host/fit/ladder_fit.h"

#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QPushButton;

namespace Tamrivo
{

class Actions;
class AllelePicture;
class LocusEditorForm;

/// Observed sizes laid over the pane's bins: what stands under the picture while they are compared.
/// It counts them, lets them propose bins, and takes a proposal over as one change of the pane.
class ObservedComparison : public QWidget
{
public:
    ObservedComparison(LocusEditorForm& page, AllelePicture& picture, const Actions& actions,
                       QWidget* parent);

    /// Reads a table of observed sizes and compares those of the locus on show. Raises failures for
    /// a table that can't be read or that has none of them.
    void Read(const QString& path);
    /// Fits the sizes and shows the proposed bins beside those as they are.
    void Propose();
    void TakeOver();
    /// Ends the comparison.
    void Close();
    /// The pane has changed.
    void Refresh();

private:
    QPushButton* AddButton(const QString& text, void (ObservedComparison::*action)());
    std::vector<const AlleleFields*> Known() const;
    void Show();

    LocusEditorForm& m_page;
    AllelePane& m_pane;
    AllelePicture& m_picture;
    const Actions& m_actions;
    const Locus* m_locus = nullptr; ///< Whose sizes they are.
    std::vector<double> m_sizes;
    std::optional<LadderFit> m_fit;
    QLabel* m_words;
    QWidget* m_buttons;
    QPushButton* m_takeOver;
};

} // namespace Tamrivo
