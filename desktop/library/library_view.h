#pragma once

#include "desktop/library/locus_group.h"
#include "desktop/library/locus_preview.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QSplitter;

namespace Tamrivo
{

class FindingsView;
class FindingWatch;
class LibraryModel;
class LibraryTable;
class SearchLine;
class Store;

/// The loci of a store: a search field, the table of those that it finds in the chosen group, and a
/// preview of the chosen ones.
class LibraryView : public QWidget
{
    Q_OBJECT

public:
    LibraryView(const Actions& actions, QWidget* parent);
    ~LibraryView() override;

    /// The store to show, which must stay until another is set; null for none.
    void SetStore(Store* store);
    /// Reads the loci anew and keeps the chosen ones chosen. Raises failures of the store.
    void Read();
    /// What was read last; null before.
    Library* Loci() const { return m_library.get(); }

    void ShowGroup(const LocusGroup& group);
    const LocusGroup& Group() const { return m_group; }
    /// The loci that the open parameter selects, by number; none without one.
    void SetSelected(std::optional<std::unordered_set<std::int32_t>> selected);

    /// Tags of the chosen loci, in the order of the rows.
    std::vector<std::string> ChosenTags() const;
    std::size_t ChosenCount() const;
    std::size_t ShownCount() const;
    /// Chooses those of the loci that are on show.
    void ChooseTags(const std::vector<std::string>& tags);
    void ChooseNumbers(const std::unordered_set<std::int32_t>& numbers);

    QString SearchText() const;
    void SetSearch(const QString& search);
    void FocusSearch();

    LibraryTable& LociTable() const { return *m_table; }
    LocusPreview& Preview() const { return *m_preview; }
    /// Checks the loci whenever they are read.
    FindingWatch& Watch() const { return *m_watch; }
    /// A tab of the preview: what is found in the loci on show.
    FindingsView& FoundProblems() const { return *m_findings; }

signals:
    /// Shortly after another choice of loci, or other loci are on show.
    void Chosen();
    void Ticked(const std::string& tag, bool isTicked);

private:
    void Filter();
    std::vector<LaneLocus> LanesOfChoice() const;
    void ShowPreview();
    void TakeFindings();
    void ShowFindings();

    const Actions& m_actions;
    Store* m_store = nullptr;
    std::unique_ptr<Library> m_library;
    LocusGroup m_group;
    std::optional<std::unordered_set<std::int32_t>> m_selected;
    QTimer m_chosenChanged;
    int m_lanesNumber = 0; ///< `LocusPreview::Content::LanesNumber`
    bool m_lanesAreOfChosen = false;

    SearchLine* m_search;
    QSplitter* m_splitter;
    LibraryModel* m_model;
    LibraryTable* m_table;
    LocusPreview* m_preview;
    FindingWatch* m_watch;
    FindingsView* m_findings;
};

} // namespace Tamrivo
