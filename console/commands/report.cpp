#include "console/commands/command.h"
#include "console/commands/locus_listing.h"
#include "console/commands/output_format.h"
#include "console/commands/stored_loci.h"
#include "platform/framework/host_application.h"
#include "platform/framework/parameter_page.h"
#include "platform/framework/wizard_session.h"

#include <memory>

namespace Tamrivo
{

namespace
{

struct Options
{
    std::string Parameter;
    OutputFormat Format = OutputFormat::Table;
};

/// What a report is about, with the loci in it.
struct Report
{
    std::string Subject;
    nlohmann::ordered_json About;
    std::vector<std::string> Keys;
    Loci Items;
};

/// Nobody answers while a report is made: what would be shown goes to standard error.
class SilentFrontEnd : public FrontEnd
{
public:
    explicit SilentFrontEnd(std::ostream& err) : m_err(err) {}

    void RunWizard(WizardSession& wizard) override { wizard.Cancel(); }
    void ShowMenu(UserControl&, Menu&) override {}
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string&) override
    {
        m_err << "tamrivo: " << text << '\n';
        return kind == MessageKind::ExclamationYesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport& report) override
    {
        // What isn't final goes on to the command, which says it.
        if (report.Final)
            ShowFailure(report.Error);
    }
    void ShowFailure(const ErrorRecord& error) override
    {
        m_err << "tamrivo: " << error.Description << '\n';
    }

private:
    std::ostream& m_err;
};

Report ContextsOf(HostApplication& host, const HostReportContextType& type)
{
    Report report{
        type.Name(),
        {{"Identifier", type.Identifier()}, {"Name", type.Name()}, {"Number", type.Number()}},
        {},
        {}};
    const ReportContexts contexts = host.Contexts(type.Identifier());
    for (const auto& [key, locus] : contexts.Entries())
    {
        report.Keys.push_back(key);
        report.Items.push_back(locus);
    }
    return report;
}

Report LociOfParameter(HostApplication& host, const std::string& name)
{
    ParameterPage page(host, host.Parameters().Open(name));
    Report report{"Analysis parameter " + page.Name(), {{"Parameter", page.Name()}}, {}, {}};
    for (const auto& locus : page.Selector().SelectedLocusTags())
    {
        report.Keys.push_back(locus->LocusTag());
        report.Items.push_back(locus);
    }
    return report;
}

std::vector<Report> Reports(HostApplication& host, const Options& options)
{
    if (!options.Parameter.empty())
        return {LociOfParameter(host, options.Parameter)};
    std::vector<Report> reports;
    for (const auto& type : host.ContextTypes())
        reports.push_back(ContextsOf(host, dynamic_cast<const HostReportContextType&>(*type)));
    return reports;
}

/// The loci under their keys.
Table TableOf(const Report& report, Audience audience)
{
    Table table = LociTable(report.Items, audience);
    table.Columns.front().Title = "Context";
    for (std::size_t row = 0; row < table.Rows.size(); ++row)
        table.Rows[row].front() = report.Keys[row];
    return table;
}

void PrintForPeople(std::ostream& out, const std::vector<Report>& reports)
{
    for (const Report& report : reports)
    {
        out << report.Subject << ": " << CountOfLoci(report.Items.size()) << "\n\n";
        PrintAligned(out, TableOf(report, Audience::People));
    }
}

void PrintJson(std::ostream& out, const std::vector<Report>& reports)
{
    auto array = nlohmann::ordered_json::array();
    for (const Report& report : reports)
    {
        auto contexts = LociJson(report.Items);
        for (std::size_t at = 0; at < contexts.size(); ++at)
            contexts[at]["Context"] = report.Keys[at];
        auto& object = array.emplace_back(report.About);
        object["Contexts"] = std::move(contexts);
    }
    out << JsonText(array) << '\n';
}

void PrintHtmlPage(std::ostream& out, const std::vector<Report>& reports)
{
    out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<title>Loci</title>\n<style>\n"
           "body { font-family: sans-serif; margin: 2em }\n"
           "table { border-collapse: collapse }\n"
           "th, td { border-bottom: 1px solid #ccc; padding: 0.3em 0.8em; text-align: left }\n"
           ".number { text-align: right }\n"
           "</style>\n</head>\n<body>\n";
    for (const Report& report : reports)
    {
        out << "<h1>" << EscapeHtml(report.Subject) << ": " << CountOfLoci(report.Items.size())
            << "</h1>\n";
        PrintHtml(out, TableOf(report, Audience::People));
    }
    out << "</body>\n</html>\n";
}

void PrintReport(Context& context, const Options& options)
{
    Store store(context.StoreLocation);
    SilentFrontEnd frontEnd(context.Err);
    HostApplication host(store, frontEnd);
    const std::vector<Report> reports = Reports(host, options);
    switch (options.Format)
    {
    case OutputFormat::Table: PrintForPeople(context.Out, reports); break;
    case OutputFormat::Tsv:
        for (const Report& report : reports)
            PrintTsv(context.Out, TableOf(report, Audience::Programs));
        break;
    case OutputFormat::Json: PrintJson(context.Out, reports); break;
    case OutputFormat::Html: PrintHtmlPage(context.Out, reports); break;
    }
}

} // namespace

void AddReportCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "report", "Print the loci as reports get them.",
                   "  tamrivo report                           the contexts of every kind\n"
                   "  tamrivo report --parameter Casework      the loci of one analysis parameter\n"
                   "  tamrivo report --format html > loci.html a page to print or send\n"
                   "  tamrivo report --format json             for a program\n");
    const auto options = std::make_shared<Options>();
    command
        .add_option("--parameter", options->Parameter,
                    "Only the loci that this analysis parameter uses, in their order")
        ->type_name("NAME");
    AddFormatOption(
        command, options->Format,
        {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json, OutputFormat::Html});
    command.callback([&context, options] { PrintReport(context, *options); });
}

} // namespace Tamrivo
