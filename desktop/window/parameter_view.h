#pragma once

#include "contracts/locus.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <set>
#include <string>
#include <vector>

class QSplitter;
class QTableView;

namespace Tamrivo
{

class Actions;
class FormView;
class HostApplication;
class LocusLanes;
class ParameterPage;

/// The page of one analysis parameter: the selector, under it the picture of the selected loci.
class ParameterView : public QWidget
{
    Q_OBJECT

public:
    /// Raises what opening the page raises. Host and actions must outlive the view.
    ParameterView(HostApplication& host, const Actions& actions, const std::string& name,
                  QWidget* parent = nullptr);
    ~ParameterView() override;

    const std::string& Name() const { return m_name; }
    /// Whether there is anything to save.
    bool IsChanged() const;
    void Save();
    /// Drops what wasn't saved.
    void Revert();
    /// Whether the page may go: nothing unsaved, or the person has been asked and has decided.
    bool MayLeave();
    /// Reads the store's loci anew and keeps the selection as far as they are still there.
    void Reload();

    /// Tags of the selection, in the order of its rows.
    std::vector<std::string> SelectedTags() const;
    /// The loci of the selection, in no order that matters.
    std::vector<std::shared_ptr<Locus>> SelectedLoci() const;
    /// The tags of the rows that are highlighted in the grids.
    std::vector<std::string> HighlightedTags() const;

    /// Adds loci to the selection or takes them out, by the selector's own buttons. Tags that the
    /// selector doesn't have are left out.
    void Select(const std::vector<std::string>& tags, bool isSelected);

    FormView& Selector() const { return *m_form; }
    LocusLanes& Picture() const { return *m_lanes; }

signals:
    /// The selection may have changed, shortly after it did.
    void Changed();

private:
    void Open();
    void WatchSelection();
    void ShowSelection();
    void SelectOnly(const std::set<std::string>& tags);

    HostApplication& m_host;
    const Actions& m_actions;
    std::string m_name;
    std::unique_ptr<ParameterPage> m_page;
    FormView* m_form = nullptr;
    QSplitter* m_splitter;
    LocusLanes* m_lanes;
    QTimer m_selectionChanged;
    bool m_isChanged = false; ///< As long as the timer doesn't run.
};

} // namespace Tamrivo
