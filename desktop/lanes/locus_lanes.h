#pragma once

#include "desktop/lanes/lane_details.h"
#include "desktop/lanes/locus_overlaps.h"
#include "host/loci/dyes.h"

#include <QWidget>

#include <functional>
#include <map>
#include <string>
#include <unordered_set>
#include <vector>

class QLabel;
class QPlainTextEdit;

namespace Tamrivo
{

class Actions;
class LanePicture;

/// Which of the chosen loci can't be told apart in one run: a picture with a lane a dye and a bar a
/// locus over the fragment length, and below it the overlaps in words. Its menu zooms, saves and
/// prints the picture, and shows sizes that an instrument has shown.
class LocusLanes : public QWidget
{
public:
    /// The actions must outlive the widget.
    explicit LocusLanes(const Actions& actions, QWidget* parent = nullptr);

    /// Shows these loci instead of those before, in the colours of the dyes.
    void SetLoci(std::vector<LaneLocus> loci, Dyes dyes = {});

    /// Marks those of the loci that are chosen, and of those that are set later.
    void SetChosen(const std::vector<std::string>& tags);

    /// Gives the alleles of a locus; without it none are shown.
    std::function<std::vector<LaneAllele>(const std::string& tag)> allelesOf;

    /// The person has clicked a locus, or double clicked one.
    std::function<void(const std::string& tag)> onClicked;
    std::function<void(const std::string& tag)> onDoubleClicked;

    /// Shows the observed sizes of a table, locus by locus of the marker's name. Raises
    /// `ErrorNumber::InvalidArgument` when it can't be read.
    void ShowObserved(const QString& path);
    void HideObserved();

    /// Asks for the printer, and prints the picture.
    void PrintPicture();
    /// Asks where to, and saves the picture.
    void SavePictureAs();
    /// Saves the picture of all lanes, as wide as it is shown, for paper: SVG when the name ends in
    /// ".svg", else PNG. Raises `ErrorNumber::InvalidArgument` when the file can't be written.
    void SavePicture(const QString& path) const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitList();
    LaneDetails DetailsOf(std::size_t locus);
    void ChooseObserved();
    void MarkChosen();
    void ShowOverlaps(const LocusOverlaps& overlaps, const std::vector<LaneLocus>& loci,
                      const Dyes& dyes);

    const Actions& m_actions;
    LanePicture* m_picture;
    QLabel* m_summary;
    QPlainTextEdit* m_list;
    std::map<std::string, std::vector<double>> m_observed; ///< Sizes in nt, by the tag's key.
    std::unordered_set<std::string> m_chosen;              ///< Tags.
    bool m_canLoad = true; ///< Loading alleles hasn't failed since the loci were set.
};

} // namespace Tamrivo
