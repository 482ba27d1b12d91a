#include "desktop/window/ask_name.h"

#include "desktop/common/actions.h"
#include "desktop/common/text.h"

#include <QInputDialog>

namespace Tamrivo
{

void AskName(QWidget* parent, const Actions& actions, const QString& title, const QString& label,
             const std::string& proposed, const std::function<void(const std::string&)>& use)
{
    QString name = ToQString(proposed);
    bool isGiven = true;
    do
    {
        name = QInputDialog::getText(parent, title, label, QLineEdit::Normal, name, &isGiven);
    } while (isGiven && !actions.Run([&] { use(FromQString(name)); }));
}

} // namespace Tamrivo
