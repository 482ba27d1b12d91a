#include "host/panels/panel_files.h"

#include "core/error.h"
#include "host/panels/bins/bins_lines.h"
#include "host/panels/bins/panels_bins.h"
#include "host/panels/osiris/kit_reader.h"
#include "host/panels/table/panel_reader.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
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

    void Read(const PanelFile& file)
    {
        const std::string name = m_isOnly ? "" : file.Name;
        LineReader source(*file.Bytes);
        const std::string_view head = source.Head();
        std::string problem = ProblemOfBytes(head);
        if (!problem.empty())
            return m_reading.Complaints.push_back({name, 0, {}, std::move(problem)});
        switch (m_choice.Format.value_or(DetectFormat(head)))
        {
        case PanelFormat::PanelTable:
        case PanelFormat::KitTable: Add(ReadPanelTable(source, m_choice.Panels), name); break;
        case PanelFormat::OsirisKit: Add(ReadOsirisKit(source, m_choice.Interval), name); break;
        case PanelFormat::PanelsBins:
            if (IsBins(head))
                m_binsFiles.push_back(ReadBinsFile(source, name));
            else
                m_panelsFiles.push_back(ReadPanelsFile(source, name));
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
            marker.File = file.empty() ? marker.File : file;
        for (PanelComplaint& complaint : reading.Complaints)
            complaint.File = file.empty() ? complaint.File : file;
        MoveBehind(std::move(reading.Markers), m_reading.Markers);
        MoveBehind(std::move(reading.Complaints), m_reading.Complaints);
        MoveBehind(std::move(reading.Remarks), m_reading.Remarks);
        MoveBehind(std::move(reading.BinSets), m_reading.BinSets);
    }

    const ReadChoice& m_choice;
    bool m_isOnly; ///< There is one file, which places need not name.
    std::vector<PanelsFile> m_panelsFiles;
    std::vector<BinsFile> m_binsFiles;
    PanelReading m_reading;
};

} // namespace

PanelFile OpenPanelFile(const std::string& path)
{
    errno = 0;
    auto file = std::make_shared<std::ifstream>(path, std::ios::binary);
    // A directory can be opened, but not read.
    file->peek();
    if (!file->is_open() || file->bad())
        Refuse(path, std::generic_category().message(errno));
    file->clear();
    return {path, std::move(file)};
}

PanelFile PanelFileOf(const std::string& name, const std::string& text)
{
    return {name, std::make_shared<std::istringstream>(text)};
}

PanelText LoadPanelFile(const std::string& path)
{
    const PanelFile file = OpenPanelFile(path);
    PanelText loaded{path, {std::istreambuf_iterator<char>(*file.Bytes), {}}};
    if (file.Bytes->bad())
        Refuse(path, "reading has failed");
    return loaded;
}

PanelReading ReadPanels(std::span<const PanelFile> files, const ReadChoice& choice)
{
    FilesReader reader(choice, files.size() == 1);
    for (const PanelFile& file : files)
        reader.Read(file);
    return reader.Take();
}

} // namespace Tamrivo
