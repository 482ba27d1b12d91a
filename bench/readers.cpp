#include "bench/figures.h"
#include "bench/panel_samples.h"
#include "bench/timing.h"
#include "host/panels/panel_files.h"

#include <pugixml.hpp>

#include <algorithm>

namespace Tamrivo::Bench
{

namespace
{

constexpr int turns = 15;

/// Makes the compiler believe that the strings are looked at.
void Look(const std::vector<std::string>& strings)
{
    asm volatile("" : : "r"(strings.data()) : "memory");
}

/// Calls `take(part)` for what stands between separators.
template <class Take>
void ForEachPart(std::string_view text, char separator, Take&& take)
{
    for (std::size_t start = 0; start <= text.size();)
    {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        take(text.substr(start, end - start));
        start = end + 1;
    }
}

/// Every cell of every line as a string of its own, and so every name of a list in a cell.
void SplitIntoStrings(std::string_view text)
{
    std::vector<std::string> strings;
    ForEachPart(text, '\n', [&strings](std::string_view line) {
        strings.clear();
        ForEachPart(line, '\t', [&strings](std::string_view cell) {
            ForEachPart(cell, ',',
                        [&strings](std::string_view name) { strings.emplace_back(name); });
        });
        Look(strings);
    });
}

/// Reading the texts as files / splitting them.
double ReadingAgainstSplitting(const std::vector<std::string>& texts)
{
    return RatioOf(
        turns,
        [&texts] {
            std::vector<PanelFile> files;
            for (const std::string& text : texts)
                files.push_back(PanelFileOf("file", text));
            return ReadPanels(files);
        },
        [&texts] {
            for (const std::string& text : texts)
                SplitIntoStrings(text);
        });
}

} // namespace

double ReadingOfPanelTable()
{
    return ReadingAgainstSplitting({SamplePanelTable()});
}

double ReadingOfKitTable()
{
    return ReadingAgainstSplitting({SampleKitTable()});
}

double ReadingOfPanelsBins()
{
    return ReadingAgainstSplitting({SamplePanelsFile(), SampleBinsFile()});
}

double ReadingOfKitFile()
{
    const std::string text = SampleKitFile();
    return RatioOf(
        turns,
        [&text] {
            const PanelFile file = PanelFileOf("file", text);
            return ReadPanels({&file, 1});
        },
        [&text] {
            pugi::xml_document document;
            return document.load_buffer(text.data(), text.size()).status;
        });
}

} // namespace Tamrivo::Bench
