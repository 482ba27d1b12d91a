#include "host/panels/osiris/kit_reader.h"

#include "core/text.h"
#include "host/panels/cells.h"

#include <pugixml.hpp>

#include <algorithm>
#include <map>

namespace Tamrivo
{

namespace
{

constexpr std::string_view channelColors[] = {"blue", "green", "yellow", "red", "purple"};

std::string ValueOf(const pugi::xml_node& node, const char* name)
{
    std::string_view text = node.child(name).text().get();
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos)
        return {};
    text.remove_prefix(start);
    return std::string(text.substr(0, text.find_last_not_of(" \t\r\n") + 1));
}

constexpr std::size_t largestKit = 16'000'000; // Bytes; the largest real one has 200,000.

bool IsDocumentType(const pugi::xml_node& node)
{
    return node.type() == pugi::node_doctype;
}

/// Where characters of a text stand. Places are asked for in the text's order, as a rule.
class TextPlaces
{
public:
    explicit TextPlaces(const std::string& text) : m_text(text) {}

    struct Place
    {
        std::size_t Line;      ///< From 1.
        std::size_t Character; ///< In its line, from 1.
    };

    Place At(std::ptrdiff_t offset)
    {
        const auto end =
            static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(offset, 0, std::ssize(m_text)));
        if (end < m_lineStart)
        {
            m_counted = m_lineStart = 0;
            m_line = 1;
        }
        for (std::size_t at = m_text.find('\n', m_counted); at < end;
             at = m_text.find('\n', at + 1))
        {
            ++m_line;
            m_lineStart = at + 1;
        }
        m_counted = end; // A place in the same line may lie before the last one.
        const std::string_view before(m_text.data() + m_lineStart, end - m_lineStart);
        return {m_line, CharacterCount(before) + 1};
    }

private:
    const std::string& m_text;
    std::size_t m_counted = 0; ///< Up to where lines have been counted.
    std::size_t m_line = 1;
    std::size_t m_lineStart = 0; ///< Of the line in which `m_counted` is.
};

class KitReader
{
public:
    KitReader(LineReader& source, double interval) : m_interval(interval)
    {
        m_isTooLarge = !source.ReadRest(m_text, largestKit);
    }

    PanelReading Read()
    {
        if (m_isTooLarge)
            Complain("The XML is larger than 16 million bytes; this is no kit file of OSIRIS");
        else if (!IsUtf8(m_text))
            Complain("The text isn't UTF-8; save the kit file as UTF-8");
        else
            Parse();
        return std::move(m_reading);
    }

private:
    void Parse()
    {
        pugi::xml_document document;
        const pugi::xml_parse_result result =
            document.load_buffer(m_text.data(), m_text.size(),
                                 pugi::parse_default | pugi::parse_doctype, pugi::encoding_utf8);
        const pugi::xml_node root = document.child("KitData");
        if (!result)
        {
            Complain("The XML can't be read (" + std::string(result.description()) +
                     "); the file may have been cut off");
            SetPlace(m_reading.Complaints.back(), result.offset);
        }
        else if (std::ranges::any_of(document, &IsDocumentType))
            Complain("The XML declares entities or a document type, which no kit file of OSIRIS "
                     "does");
        else if (!root)
            Complain("The XML is no kit file of OSIRIS: its root is <" +
                     std::string(document.document_element().name()) + ">; expected <KitData>");
        else
            ReadKits(root);
    }

    void Complain(std::string problem)
    {
        m_reading.Complaints.push_back({{}, 0, {}, std::move(problem)});
    }

    void SetPlace(PanelComplaint& complaint, std::ptrdiff_t offset)
    {
        const auto [line, character] = m_places.At(offset);
        complaint.Line = line;
        complaint.Character = character;
    }

    void ReadKits(const pugi::xml_node& root)
    {
        for (const pugi::xml_node& set : root.child("Kits").children("Set"))
        {
            const std::map<int, std::string> colors = ColorsOf(set);
            for (const pugi::xml_node& locus : set.children("Locus"))
                ReadLocus(set, locus, colors);
        }
        if (m_reading.Markers.empty())
            Complain("The kit file has no loci, perhaps a size standard alone");
    }

    static std::map<int, std::string> ColorsOf(const pugi::xml_node& set)
    {
        std::map<int, std::string> colors;
        for (const pugi::xml_node& channel : set.child("FsaChannelMap").children("Channel"))
            colors[channel.child("KitChannelNumber").text().as_int()] =
                FoldCase(ValueOf(channel, "Color"));
        return colors;
    }

    void AddFlaw(PanelMarker& marker, const pugi::xml_node& node, const char* element,
                 const std::string& expected)
    {
        if (marker.Flaws.size() >= MaxPanelComplaints)
            return;
        const std::string value = ValueOf(node, element);
        marker.Flaws.push_back({{},
                                0,
                                element,
                                QuotedCell(value) + " stands there; expected " + expected,
                                value.empty()});
        const pugi::xml_node child = node.child(element);
        SetPlace(marker.Flaws.back(), (child ? child : node).offset_debug());
    }

    double Number(PanelMarker& marker, const pugi::xml_node& node, const char* element,
                  const std::string& expected)
    {
        const auto number = CellNumber(ValueOf(node, element));
        if (!number)
            AddFlaw(marker, node, element, expected);
        return number.value_or(0);
    }

    void ReadLocus(const pugi::xml_node& set, const pugi::xml_node& locus,
                   const std::map<int, std::string>& colors)
    {
        PanelMarker& marker = m_reading.Markers.emplace_back();
        marker.Line = m_places.At(locus.offset_debug()).Line;
        marker.IsNominal = true;
        marker.Stated = {.Virtual = false};
        marker.Panel = ValueOf(set, "Name");
        marker.Marker = ValueOf(locus, "Name");
        if (marker.Marker.empty() || !IsPrintableText(marker.Marker) ||
            !IsPrintableText(marker.Panel))
            AddFlaw(marker, locus, "Name", "the name of a locus, without control characters");
        ReadColor(marker, locus, colors);

        const std::string core = ValueOf(locus, "CoreRepeatNumber");
        const auto repeat = CellWholeNumber(core);
        if (!repeat && !core.empty())
            AddFlaw(marker, locus, "CoreRepeatNumber", "a whole number of nt");
        marker.RepeatLength = repeat.value_or(4);

        for (const pugi::xml_node& allele : locus.child("LadderAlleles").children("Allele"))
            ReadAllele(marker, allele);
        ReadRange(marker, locus);
    }

    void ReadColor(PanelMarker& marker, const pugi::xml_node& locus,
                   const std::map<int, std::string>& colors)
    {
        const auto channel = CellWholeNumber(ValueOf(locus, "Channel"));
        if (channel)
        {
            const auto mapped = colors.find(*channel);
            if (mapped != colors.end() && !mapped->second.empty())
                marker.Color = mapped->second;
            else if (*channel >= 1 && *channel <= std::ssize(channelColors))
                marker.Color = channelColors[*channel - 1];
        }
        if (marker.Color.empty())
            AddFlaw(marker, locus, "Channel", "a channel from 1 to 5, or one of the channel map");
    }

    void ReadAllele(PanelMarker& marker, const pugi::xml_node& node)
    {
        PanelAllele& allele = marker.Alleles.emplace_back();
        allele.Name = ValueOf(node, "Name");
        if (allele.Name.empty() || !IsPrintableText(allele.Name))
            AddFlaw(marker, node, "Name", "the name of an allele");
        allele.Size = Number(marker, node, "BP", "a size in nt");
        allele.BinStart = allele.Size - m_interval;
        allele.BinEnd = allele.Size + m_interval;
        allele.Repeats = CellNumber(allele.Name).value_or(0);
    }

    void ReadRange(PanelMarker& marker, const pugi::xml_node& locus)
    {
        marker.RangeStart = Number(marker, locus, "MinBP", "the start of the range in nt");
        marker.RangeEnd = Number(marker, locus, "MaxBP", "the end of the range in nt");
        const auto widen = [&](const pugi::xml_node& node, const char* low, const char* high) {
            const auto from = CellNumber(ValueOf(node, low));
            const auto to = CellNumber(ValueOf(node, high));
            marker.RangeStart = std::min(marker.RangeStart, from.value_or(marker.RangeStart));
            marker.RangeEnd = std::max(marker.RangeEnd, to.value_or(marker.RangeEnd));
        };
        for (const pugi::xml_node& region : locus.child("SearchRegions").children("Region"))
            widen(region, "MinGrid", "MaxGrid");
        widen(locus, "MinGridLSBasePair", "MaxGridLSBasePair");
    }

    std::string m_text;
    bool m_isTooLarge = false;
    double m_interval;
    TextPlaces m_places{m_text};
    PanelReading m_reading;
};

} // namespace

PanelReading ReadOsirisKit(LineReader& source, double interval)
{
    return KitReader(source, interval).Read();
}

} // namespace Tamrivo
