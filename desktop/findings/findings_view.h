#pragma once

#include "host/checks/check_rules.h"

#include <QWidget>

#include <set>
#include <string>

class QLabel;
class QTreeView;

namespace Tamrivo
{

class FindingModel;
class FindingWatch;

/// The findings of a watch as a list, of some loci or of all. Enter or a double click on one asks
/// to be led to what it is about.
class FindingsView : public QWidget
{
    Q_OBJECT

public:
    /// The watch must outlive the view.
    FindingsView(const FindingWatch& watch, QWidget* parent);

    /// Shows what is found in loci by their tags, and what no locus has if asked for.
    void ShowLoci(std::set<std::string> tags, bool withNoLocus);

signals:
    void Chosen(const Finding& finding);

private:
    void ShowFound();
    void ShowState();

    const FindingWatch& m_watch;
    std::set<std::string> m_tags;
    bool m_withNoLocus = false;
    FindingModel* m_model;
    QLabel* m_state;
    QTreeView* m_list;
};

} // namespace Tamrivo
