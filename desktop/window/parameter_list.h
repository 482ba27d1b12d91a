#pragma once

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QAction;
class QListWidget;

namespace Tamrivo
{

/// The names of a store's analysis parameters.
class ParameterList : public QWidget
{
public:
    /// @param commands what can be done with parameters; buttons below the list and its menu
    ParameterList(const QList<QAction*>& commands, QWidget* parent);

    void SetNames(const std::vector<std::string>& names);
    /// Shows which one is open, without raising `onChosen`; an empty name for none.
    void ShowChosen(const std::string& name);

    QSize sizeHint() const override;

    /// The person has chosen a parameter.
    std::function<void(const std::string& name)> onChosen;

private:
    QListWidget* m_names;
    bool m_isShowing = false;
};

} // namespace Tamrivo
