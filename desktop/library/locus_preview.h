#pragma once

#include "contracts/locus.h"
#include "host/loci/dyes.h"
#include "host/store/history_record.h"

#include <QTabWidget>

#include <functional>
#include <memory>
#include <vector>

class QLabel;
class QStackedWidget;
class QTableWidget;

namespace Tamrivo
{

struct LaneLocus;
class Actions;
class AllelePicture;
class Comparison;
class HistoryList;
class LocusLanes;

/// What there is to see of the chosen loci, a tab each. Only the tab on show is filled.
class LocusPreview : public QTabWidget
{
public:
    enum Tab
    {
        Alleles,
        Lanes,
        Details,
        Changes,
        Compare,
        Findings, ///< Added by what knows them.
    };

    LocusPreview(const Actions& actions, QWidget* parent);

    /// What is chosen. The functions are called when a tab needs them, which may be never.
    struct Content
    {
        std::size_t Count = 0; ///< Chosen loci.
        std::function<std::shared_ptr<Locus>(std::size_t chosen)> Load;
        std::function<std::vector<LaneLocus>()> Lanes; ///< Of all chosen, or of all on show.
        int LanesNumber = 0; ///< The same for the same lanes, which are asked for once.
        std::function<std::vector<HistoryRecord>()> Changes; ///< Of the first, the newest first.
        Tamrivo::Dyes LabDyes;
    };
    void Show(Content content);

    LocusLanes& Picture() const { return *m_lanes; }

private:
    void ShowTab();
    void ShowAlleles();
    void ShowLanes();
    void ShowDetails();
    void ShowChanges();
    void ShowComparison();

    const Actions& m_actions;
    Content m_content;
    QLabel* m_heading;
    AllelePicture* m_alleles;
    LocusLanes* m_lanes;
    int m_lanesShown = 0; ///< Their number.
    QTableWidget* m_details;
    HistoryList* m_changes;
    Comparison* m_comparison;
    QStackedWidget* m_comparePages;
};

} // namespace Tamrivo
