#pragma once

#include <functional>
#include <string>

class QString;
class QWidget;

namespace Tamrivo
{

class Actions;

/// Asks for a text and lets `use` take it, again until it does or the person gives up.
void AskName(QWidget* parent, const Actions& actions, const QString& title, const QString& label,
             const std::string& proposed, const std::function<void(const std::string&)>& use);

} // namespace Tamrivo
