#include "desktop/help/help_topics.h"

#include <QWidget>

#include <algorithm>
#include <iterator>

namespace Tamrivo
{

namespace
{

/// A widget, by its name, and the heading of the guide under which it is told about.
struct HelpTopic
{
    const char* Widget;
    const char* Heading;
};

constexpr HelpTopic topics[] = {
    {"LocusEditor", "Define a locus"},
    {"SaveLocusTagAs", "Define a locus"},
    {"import", "Import and export"},
    {"exportLoci", "Import and export"},
    {"storeProperties", "Dyes"},
    {"search", "Search"},
    {"STRLocusTagSelector", "Choose the loci of an analysis parameter"},
    {"parameterBar", "Choose the loci of an analysis parameter"},
    {"main", "The library"},
    {"commandList", "The library"},
    {"findings", "Check the definitions"},
    {"reports", "Look and report"},
    {"history", "History"},
    {"projects", "Copies"},
    {"backup", "Copies"},
    {"failure", "When something goes wrong"},
};

} // namespace

QString HelpTopicOf(const QWidget* focus)
{
    for (; focus != nullptr; focus = focus->parentWidget())
    {
        const auto* found = std::ranges::find(topics, focus->objectName(), &HelpTopic::Widget);
        if (found != std::end(topics))
            return found->Heading;
    }
    return {};
}

} // namespace Tamrivo
