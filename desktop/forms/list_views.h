#pragma once

#include "controls/lists.h"
#include "desktop/forms/control_view.h"

#include <QComboBox>
#include <QListView>

namespace Tamrivo
{

class EntryModel;

class ComboView : public QComboBox, public ControlView
{
public:
    ComboView(ComboBox& combo, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    bool ShowsEntries() const;

    ComboBox& m_combo;
};

/// A list of any length: the entries stay in the control.
class ListView : public QListView, public ControlView
{
public:
    ListView(ListBox& list, QWidget& parent, const Actions& actions);

    QWidget& Widget() override { return *this; }
    void Refresh() override;
    QSize LeastSize() const override;
    bool CanGrow() const override { return true; }

private:
    void Choose(int row);

    ListBox& m_list;
    const Actions& m_actions;
    EntryModel* m_model;
};

} // namespace Tamrivo
