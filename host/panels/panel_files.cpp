#include "host/panels/panel_files.h"

#include "core/error.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/osiris/kit_reader.h"
#include "host/panels/table/panel_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& name, const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "PanelFile",
                  "The file \"" + name + "\" can't be read: " + why);
}

class FilesReader
{
public:
    FilesReader(const ReadChoice& choice, bool isOnly) : m_choice(choice), m_isOnly(isOnly) {}

    void Read(const PanelText& file)
    {
        const std::string name = m_isOnly ? "" : file.Name;
        std::string problem = ProblemOfBytes(file.Text);
        if (!problem.empty())
            return m_reading.Complaints.push_back({name, 0, {}, std::move(problem)});
        switch (m_choice.Format.value_or(DetectFormat(file.Text)))
        {
        case PanelFormat::PanelTable:
        case PanelFormat::KitTable: Add(ReadPanelTable(file.Text), name); break;
        case PanelFormat::OsirisKit: Add(ReadOsirisKit(file.Text, m_choice.Interval), name); break;
        case PanelFormat::PanelsBins:
            if (IsBins(file.Text))
                m_binsFiles.push_back(ReadBinsFile(file.Text, file.Name));
            else
                m_panelsFiles.push_back(ReadPanelsFile(file.Text, file.Name));
            break;
        }
    }

    PanelReading Take()
    {
        if (!m_panelsFiles.empty() || !m_binsFiles.empty())
            Add(JoinPanelsAndBins(m_panelsFiles, m_binsFiles, m_choice.BinSet, m_choice.Panels),
                {});
        return std::move(m_reading);
    }

private:
    void Add(PanelReading reading, const std::string& file)
    {
        for (PanelMarker& marker : reading.Markers)
        {
            marker.File = file.empty() ? marker.File : file;
            m_reading.Markers.push_back(std::move(marker));
        }
        for (PanelComplaint& complaint : reading.Complaints)
        {
            complaint.File = file.empty() ? complaint.File : file;
            m_reading.Complaints.push_back(std::move(complaint));
        }
        std::ranges::move(reading.Remarks, std::back_inserter(m_reading.Remarks));
        std::ranges::move(reading.BinSets, std::back_inserter(m_reading.BinSets));
    }

    const ReadChoice& m_choice;
    bool m_isOnly; ///< There is one file, which places need not name.
    std::vector<PanelsFile> m_panelsFiles;
    std::vector<BinsFile> m_binsFiles;
    PanelReading m_reading;
};

} // namespace

PanelText LoadPanelFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               &std::fclose);
    PanelText loaded{path, {}};
    char block[65536];
    std::size_t length = 1;
    while (file && length > 0)
    {
        length = std::fread(block, 1, sizeof block, file.get());
        loaded.Text.append(block, length);
    }
    if (!file || std::ferror(file.get()) != 0)
        Refuse(path, std::generic_category().message(errno));
    return loaded;
}

PanelText LoadPanelStream(std::istream& in, const std::string& name)
{
    PanelText loaded{name, {std::istreambuf_iterator<char>(in), {}}};
    if (in.bad())
        Refuse(name, "reading has failed");
    return loaded;
}

PanelReading ReadPanels(std::span<const PanelText> texts, const ReadChoice& choice)
{
    FilesReader reader(choice, texts.size() == 1);
    for (const PanelText& text : texts)
        reader.Read(text);
    return reader.Take();
}

} // namespace Tamrivo
