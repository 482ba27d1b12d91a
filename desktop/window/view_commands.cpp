#include "desktop/window/view_commands.h"

#include "desktop/common/settings.h"
#include "desktop/lanes/locus_lanes.h"
#include "desktop/library/library_view.h"
#include "desktop/window/parameter_view.h"
#include "desktop/window/workbench.h"

#include <QApplication>

#include <algorithm>

namespace Tamrivo
{

namespace
{

void ChangeText(int steps)
{
    constexpr int most = 12;
    constexpr int least = -3;
    const int before = TextSteps();
    const int after = std::clamp(before + steps, least, most);
    RememberTextSteps(after);
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() + after - before);
    QApplication::setFont(font);
}

} // namespace

void ViewCommands::LargerText()
{
    ChangeText(1);
}

void ViewCommands::SmallerText()
{
    ChangeText(-1);
}

void ViewCommands::NormalText()
{
    ChangeText(-TextSteps());
}

void ViewCommands::SavePicture()
{
    if (m_workbench.IsSelectorShown())
        return m_workbench.Parameter().View()->Picture().SavePictureAs();
    LocusPreview& preview = m_workbench.Loci().Preview();
    preview.setCurrentIndex(LocusPreview::Lanes);
    preview.Picture().SavePictureAs();
}

} // namespace Tamrivo
