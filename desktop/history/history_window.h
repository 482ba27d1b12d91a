#pragma once

#include "host/store/history.h"

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace Tamrivo
{

class Actions;
class HistoryList;
class Store;

/// The changes of a store or of one locus, what each has changed, and the loci that were deleted;
/// earlier states can be brought back.
class HistoryWindow : public QWidget
{
public:
    /// Told of the tags of loci that were brought back.
    using Restored = std::function<void(const std::vector<std::string>& tags)>;

    /// Store and actions must outlive the window.
    HistoryWindow(Store& store, const Actions& actions, Restored onRestored);
    ~HistoryWindow() override;

    /// Shows the newest changes of the whole store.
    void ShowAll();
    void ShowLocus(const std::string& tag);
    /// Shows the loci that were deleted and not restored since.
    void ShowDeleted();

private:
    enum Scope
    {
        AllChanges,
        DeletedLoci,
    };

    QLayout* MakeTopRow();
    void ShowWindow(Scope scope, const QString& name);
    HistoryFilter Filter() const;
    std::vector<HistoryRecord> Deleted();
    void Load();
    void ShowChosen();
    void Restore();
    /// The record with the state that restoring a record brings back: itself or, for a deletion,
    /// the one before it. None for what can't be restored.
    std::vector<HistoryRecord> StatesOfChosen();
    /// Asks for another tag for a state whose own is taken; gives the tag of the restored locus.
    std::string RestoreUnderAnotherTag(const HistoryRecord& state);

    Store& m_store;
    const Actions& m_actions;
    Restored m_onRestored;
    QComboBox* m_scope;
    QLineEdit* m_name;
    QLineEdit* m_by;
    QLineEdit* m_since;
    HistoryList* m_list;
    QTreeWidget* m_differences;
    QLabel* m_status;
    QPushButton* m_restore;
};

} // namespace Tamrivo
