#pragma once

#include "core/event.h"
#include "host/checks/loci_beside.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace Tamrivo
{

class LocusEditorForm;
class Store;

/// What a check finds in the locus of an open editor, as the page has it by now, by itself and
/// beside the loci that it is analysed with. Those are read between events, a few milliseconds at a
/// time, and anew whenever the editor's window becomes the active one; the check follows each edit
/// shortly after.
class EditorFindings : public QObject
{
    Q_OBJECT

public:
    /// Store, page and window must outlive it.
    EditorFindings(Store& store, LocusEditorForm& page, QWidget& window);

    const std::vector<Finding>& Found() const { return m_found; }
    /// Why the loci beside couldn't be read; empty: they could.
    const QString& FailureText() const { return m_failure; }

signals:
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ReadAnew();
    void GoOn();
    void Check();

    Store& m_store;
    LocusEditorForm& m_page;
    Dyes m_dyes;
    std::string m_tag;   ///< For which the loci beside are read.
    std::string m_panel; ///< The same.
    std::unique_ptr<LociBeside> m_beside;
    std::vector<Finding> m_found;
    QString m_failure;
    QTimer m_reading;
    QTimer m_edited; ///< Runs from an edit until what it comes to is checked.
    Connections m_changes;
};

} // namespace Tamrivo
