#pragma once

#include "desktop/lanes/locus_overlaps.h"
#include "host/loci/dyes.h"

#include <QWidget>

#include <functional>
#include <string>

class QLabel;
class QPlainTextEdit;

namespace Tamrivo
{

class Actions;
class LanePicture;

/// Which of the chosen loci can't be told apart in one run: a picture with a lane a dye and a bar a
/// locus over the fragment length, and below it the overlaps in words. Its menu saves the picture.
class LocusLanes : public QWidget
{
public:
    /// The actions must outlive the widget.
    explicit LocusLanes(const Actions& actions, QWidget* parent = nullptr);

    /// Shows these loci instead of those before, in the colours of the dyes.
    void SetLoci(std::vector<LaneLocus> loci, Dyes dyes = {});

    /// The person has clicked a locus, or double clicked one.
    std::function<void(const std::string& tag)> onClicked;
    std::function<void(const std::string& tag)> onDoubleClicked;

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
    void ShowOverlaps(const LocusOverlaps& overlaps, const std::vector<LaneLocus>& loci);

    const Actions& m_actions;
    LanePicture* m_picture;
    QLabel* m_summary;
    QPlainTextEdit* m_list;
};

} // namespace Tamrivo
