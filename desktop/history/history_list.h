#pragma once

#include "host/store/history_record.h"

#include <QTreeWidget>

#include <vector>

namespace Tamrivo
{

/// Records of the history, a line each, in the order given.
class HistoryList : public QTreeWidget
{
public:
    explicit HistoryList(QWidget* parent);

    void Show(std::vector<HistoryRecord> records);
    const std::vector<HistoryRecord>& Records() const { return m_records; }
    /// The chosen records, from top to bottom.
    std::vector<const HistoryRecord*> Chosen() const;

private:
    std::vector<HistoryRecord> m_records;
};

} // namespace Tamrivo
