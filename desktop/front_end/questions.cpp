#include "desktop/front_end/questions.h"

#include "host/alleles/allele_pane.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// @param goOn the button that loses the work; Enter and Escape keep it
bool Ask(QWidget* parent, const QString& title, const QString& text, const QString& goOn,
         const QString& keep)
{
    QMessageBox box(parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    const QPushButton* goesOn = box.addButton(goOn, QMessageBox::DestructiveRole);
    QPushButton* keeps = box.addButton(keep, QMessageBox::RejectRole);
    box.setDefaultButton(keeps);
    box.setEscapeButton(keeps);
    box.exec();
    return box.clickedButton() == goesOn;
}

} // namespace

bool MayReplaceAlleles(QWidget* parent, const AllelePane& pane)
{
    const auto own = std::ranges::count_if(
        pane.Rows(), [](const auto& row) { return row->AlleleInt1 != AlleleOrigin::Generated; });
    if (own == 0)
        return true;
    return Ask(parent, "Generate Allele List",
               QString("The new list takes the place of all %1 alleles. Sizes and bins of %2 of "
                       "them were edited by hand or imported. Undo brings them back as long as "
                       "the page is open.")
                   .arg(pane.Rows().size())
                   .arg(own),
               "&Replace", "&Keep the List");
}

bool MayDiscardChanges(QWidget* parent)
{
    return Ask(parent, "Unsaved Changes",
               "What was changed on this page isn't stored yet, and would be lost.",
               "&Discard Changes", "&Go On Editing");
}

} // namespace Tamrivo
